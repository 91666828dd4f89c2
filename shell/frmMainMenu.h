#ifndef SHELL_FRMMAINMENU_H_
#define SHELL_FRMMAINMENU_H_

#include <memory>
#include <string>
#include <vector>

#include "forms/form.h"

namespace survey {

// The hub of the program. Its upper part (Frame1) identifies a new site, its lower part (Frame3,
// Frame4) leads to the sections of the survey; EditMode tells which is seen.
class FrmMainMenu : public Form {
 public:
  explicit FrmMainMenu(FormHost& host);
  Layout Arrange() override;
  void Form_Activate() override;

  // Whether a site is told in full; says what is missing. Guards nothing: the user may go on.
  bool ValidateSite();

  std::string& EditMode = Declare("EditMode");  // "Add" or "Edit" of a site

  Frame Frame1{*this, "Frame1", "Select a college or campus"};
  Label lblSiteType{*this, "lblSiteType",
                    "Please identify your site as the college central office or a campus"};
  OptionButton optHO{*this, "optHO", "College central office", "site type"};
  OptionButton optCampus{*this, "optCampus", "College campus", "site type"};
  Label lblProvince{*this, "lblProvince", "Please select your province:"};
  ComboBox cboProvince{*this, "cboProvince", "Please select your province:"};
  Label lblCollege{*this, "lblCollege", "Select College:"};
  ComboBox cboCollege{*this, "cboCollege", "Select College:"};
  Label lblCampus{*this, "lblCampus", "Select Site/Campus:"};
  ComboBox cboCampus{*this, "cboCampus", "Select Site/Campus:"};
  Label lblColEmis{*this, "lblColEmis", "College EMIS Number:"};
  TextBox txtColEmis{*this, "txtColEmis", "College EMIS Number:"};
  Label lblCamEmis{*this, "lblCamEmis", "Campus EMIS Number:"};
  TextBox txtCamEmis{*this, "txtCamEmis", "Campus EMIS Number:"};
  Button cmdContinue{*this, "cmdContinue", "Continue"};

  Frame Frame4{*this, "Frame4", "Main Menu (Central office and campus)"};
  Button cmdGeneral{*this, "cmdGeneral", "General Information"};
  Button cmdHostel{*this, "cmdHostel", "Hostel Accommodation"};
  Button cmdStafffSummary{*this, "cmdStafffSummary", "Staff Summary Data"};
  Button cmdStaff{*this, "cmdStaff", "Individual Staff Data"};
  Button cmdPrintSurvey{*this, "cmdPrintSurvey", "Print Campus Survey", ButtonRole::kPrint};

  Frame Frame3{*this, "Frame3", "Student Menu (Data to be completed by each campus)"};
  std::vector<std::unique_ptr<Button>> cmdLearner;  // in survey order; the index tells the page

  Frame Frame2{*this, "Frame2"};
  Label lblSelectItem{*this, "lblSelectItem", "Select a menu item to enter data"};
  Label lblSignature{*this, "lblSignature", "Signature page prints with general information page"};
  Button cmdList{*this, "cmdList", "Return to College/Campus list"};
  Button cmdDisclaimer{*this, "cmdDisclaimer", "Version + Disclaimer"};
  Button cmdExit{*this, "cmdExit", "Exit"};

 protected:
  void Form_Load() override;

 private:
  void LoadProvinces();
  void LoadSiteDetails();
  int SiteType() const;  // 1 central office, 2 campus, 0 neither ticked

  void ChooseSiteType();
  void EmptyEmisNumbers();
  void ListColleges();
  void ListCampuses();
  void ShowCampus();
  void ClaimSite();
  void ShowMenu(bool visible);
  void PlacePage(const PageRow& row);
  void Open(const std::string& target);
  void OpenForSite(const std::string& target);
  void PrintSurvey();
};

}  // namespace survey

#endif  // SHELL_FRMMAINMENU_H_
