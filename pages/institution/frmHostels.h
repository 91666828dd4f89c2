#ifndef PAGES_INSTITUTION_FRMHOSTELS_H_
#define PAGES_INSTITUTION_FRMHOSTELS_H_

#include <string>

#include "forms/survey_page.h"

namespace survey {

// Questions 1.15 and 1.16: the site's hostels, each saved at once by a button of its own, and the
// SETAs it is registered with, which are what Save saves. The unsaved mark is never taken back,
// and it does not tell of unsaved hostel details. A failing statement ends the program.
class FrmHostels : public SurveyPage {
 public:
  FrmHostels(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();

  void Form_Activate() override;

  Label Label3{*this, "Label3", "Hostel Accommodation"};
  Label Label1{*this, "Label1",
               "To add a hostel that offers student accommodation for your campus, please click on "
               "the button ADD HOSTEL INFORMATION to clear the grid. Enter data into the grid and "
               "then click on SAVE HOSTEL INFORMATION"};
  GridControl gridGeneralInfo;  // one hostel
  Button cmdAdd{*this, "cmdAdd", "Add Hostel Information"};
  Button cmdSaveHostel{*this, "cmdSaveHostel", "Save Hostel Information"};  // own unsaved mark
  Button cmdDelete{*this, "cmdDelete", "Delete Hostel"};
  Label Label2{*this, "Label2",
               "To edit or delete a hostel from the system, click on a hostel name in the grid "
               "below to view or edit the hostel details."};
  GridControl gridhostels;  // names; the list shows five hostels at most
  GridControl gridSETA;

 protected:
  void Form_Load() override {}  // keeps its own caption and opens no connection

  Layout Body() override;
  void GetPage() override;
  void SavePage() override { SaveSetaSelection(); }

 private:
  void LoadSetaSelection();
  void SaveSetaSelection();
  void FillHostelList();
  // `escaped_name` is ready to stand between quotes.
  void ShowHostel(const std::string& escaped_name);
  void SaveHostel();
  void ClearHostel();
  void DeleteHostel();
};

}  // namespace survey

#endif  // PAGES_INSTITUTION_FRMHOSTELS_H_
