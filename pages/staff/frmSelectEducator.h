#ifndef PAGES_STAFF_FRMSELECTEDUCATOR_H_
#define PAGES_STAFF_FRMSELECTEDUCATOR_H_

#include <optional>
#include <string>

#include "forms/form.h"
#include "store/recordset.h"

namespace survey {

// The list of the site's staff and the hub of their pages: whoever is selected here is whose page
// opens. The list stays loaded beneath the staff pages and is read anew, with nobody selected,
// each time it comes to the front.
class FrmSelectEducator : public Form {
 public:
  explicit FrmSelectEducator(FormHost& host);
  Layout Arrange() override;
  void Form_Activate() override;

  std::string& EducatorId = Declare("EducatorId");     // whose page opens
  double& EmisNumber = Declare<double>("EmisNumber");  // the college's; handed on

  Label lblSelect{*this, "lblSelect", "CLICK on a name to select the Staff Member"};
  Label lblNumber{*this, "lblNumber", "Number of Staff members:"};
  TextBox txtNumber{*this, "txtNumber", "Number of Staff members:"};  // those not listed too
  Label lblAdvice{*this, "lblAdvice",
                  "Please add any missing staff members or remove staff that are no longer at your "
                  "campus. A staff member's details can be updated by selecting the staff member "
                  "and clicking on View/Update General Details. Please update each lecturer's "
                  "teaching details for 2012. "};
  GridControl gridEducator;
  Button cmdAddNew{*this, "cmdAddNew", "Add New Staff Member"};
  Button cmdEdit{*this, "cmdEdit", "View/Update General Details"};
  Button cmdDelete{*this, "cmdDelete", "Remove Staff Member"};
  Button cmdUpdateID{*this, "cmdUpdateID", "Update Staff Member ID"};
  Button cmdSpecialisation{*this, "cmdSpecialisation", "Staff Qualifications"};
  Button cmdStaffteaching{*this, "cmdStaffteaching", "Subjects Qualified to Teach 2012"};
  Button cmdLoad{*this, "cmdLoad", "Lecturer Teaching Details 2012"};
  Button cmdLoad2{*this, "cmdLoad2", "Teaching Details 2012 cont."};
  CheckBox chAll{*this, "chAll", "Print for all staff"};
  Button cmdPrint{*this, "cmdPrint", "Print Staff List", ButtonRole::kPrint};
  Button cmdPrintSurvey{*this, "cmdPrintSurvey", "Print Full Staff Survey"};
  Button cmdPrevious{*this, "cmdPrevious", "Previous Section", ButtonRole::kPrevious};
  Button cmdMenu{*this, "cmdMenu", "Main Menu", ButtonRole::kMenu};

 protected:
  void Form_Load() override;
  void OnUntrappedFailure(const RunTimeError& failure) override { ReportUntrapped(failure); }

 private:
  void LoadSchools();  // the staff
  // Nobody without a row; the list shows whoever is selected, and nobody else.
  void Select(std::optional<std::string> id, int row = 0);
  void ShowRow(const Recordset& member, int row);
  bool StaffIdExists(const std::string& id);
  void OpenPageOfSelected(const Button& button);
  void AddNew();
  void Delete();
  void UpdateID();
  void CorrectID(const std::string& old_id, const std::string& new_id);
  void PrintPages();  // of the selected, or of all
  void PrintAllMembers();
  void PrintMember(const std::string& id);  // leaves the job open
  void PrintList();

  // The ID number of who is selected: none for nobody, "" after a click on an empty row and after
  // a removal, which only the correction of an ID takes for nobody.
  std::optional<std::string> SelectedStaffId;
  std::string SelectedStaffName;
};

}  // namespace survey

#endif  // PAGES_STAFF_FRMSELECTEDUCATOR_H_
