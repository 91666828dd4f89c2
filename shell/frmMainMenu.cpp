#include "shell/frmMainMenu.h"

#include "base/text.h"
#include "forms/campus_print.h"
#include "store/recordset.h"

namespace survey {
namespace {

constexpr int kCentralOffice = 1;
constexpr int kCampusSite = 2;

// The year whose figures are printed, and which then holds until the menu is loaded again.
constexpr int kPrintedYear = 2010;

// Statements fail without a word here; a commit does not.
constexpr ErrorName kContinueRoutine = {"frmMainMenu", "cmdContinue_Click"};
constexpr ErrorName kPrintRoutine = {"frmMainMenu", "Print Routine"};

}  // namespace

FrmMainMenu::FrmMainMenu(FormHost& host) : Form(host, "frmMainMenu", "Main Menu") {
  txtColEmis.Locked = txtCamEmis.Locked = true;

  optHO.on_click = [this] { ChooseSiteType(); };
  optCampus.on_click = [this] { ChooseSiteType(); };
  cboProvince.on_drop_down = [this] {
    cboCollege.Clear();
    EmptyEmisNumbers();
  };
  cboProvince.on_click = [this] { TrapSilently([this] { ListColleges(); }); };
  cboCollege.on_drop_down = [this] { EmptyEmisNumbers(); };
  cboCollege.on_click = [this] { TrapSilently([this] { ListCampuses(); }); };
  cboCampus.on_click = [this] { TrapSilently([this] { ShowCampus(); }); };
  cmdContinue.on_click = [this] {
    Trap(kContinueRoutine, [this] { TrapSilently([this] { ClaimSite(); }); });
  };

  for (const PageRow& row : host.pages()) PlacePage(row);
  cmdStaff.on_click = [this] { Open("frmSelectEducator"); };
  cmdPrintSurvey.on_click = [this] { TrapPrint(kPrintRoutine, [this] { PrintSurvey(); }); };
  cmdList.on_click = [this] { Open("frmSelectCollege"); };
  cmdDisclaimer.on_click = [this] { this->host().ShowModal("frmAbout"); };
  cmdExit.on_click = [this] { this->host().UnloadAll(); };
}

Layout FrmMainMenu::Arrange() {
  Layout site = ColumnOf({Place(lblSiteType), RowOf({Place(optHO), Place(optCampus), Space()}),
                          FieldsOf({{lblProvince, cboProvince},
                                    {lblCollege, cboCollege},
                                    {lblCampus, cboCampus},
                                    {lblColEmis, txtColEmis},
                                    {lblCamEmis, txtCamEmis}}),
                          RowOf({Space(), Place(cmdContinue)})});
  std::vector<Layout> learner_rows;
  constexpr int kButtonsInRow = 3;
  for (std::size_t first = 0; first < cmdLearner.size(); first += kButtonsInRow) {
    std::vector<Layout> row;
    for (std::size_t i = first; i < first + kButtonsInRow; ++i) {
      row.push_back(i < cmdLearner.size() ? Place(*cmdLearner[i], 1) : Space());
    }
    learner_rows.push_back(RowOf(std::move(row)));
  }
  learner_rows.push_back(Space());
  return ColumnOf(
      {FrameOf(Frame1, std::move(site)),
       RowOf({FrameOf(Frame4,
                      ColumnOf({Place(cmdGeneral), Place(cmdHostel), Place(cmdStafffSummary),
                                Place(cmdStaff), Place(cmdPrintSurvey), Space()}),
                      1),
              FrameOf(Frame3, ColumnOf(std::move(learner_rows)), 1)}),
       FrameOf(Frame2, RowOf({ColumnOf({Place(lblSelectItem), Place(lblSignature)}), Space(),
                              Place(cmdList)})),
       RowOf({Place(cmdDisclaimer), Space(), Place(cmdExit)})});
}

void FrmMainMenu::Form_Load() {
  survey().OpenDatabaseConnection();
  LoadProvinces();
  if (EditMode == "Edit") LoadSiteDetails();
  survey().SurveyYear = 2012;
}

void FrmMainMenu::Form_Activate() {
  survey().OpenDatabaseConnection();
  if (EditMode == "Add") {
    Frame1.Caption = "Select a college or campus";
    ShowMenu(false);
  } else if (EditMode == "Edit") {
    ShowMenu(true);
  }
}

void FrmMainMenu::ShowMenu(bool visible) {
  Frame1.Visible = !visible;
  Frame3.Visible = visible;
  Frame4.Visible = visible;
}

// ---- Choosing a site -------------------------------------------------------------------------

void FrmMainMenu::LoadProvinces() {
  TrapSilently([this] {
    Recordset provinces;
    provinces.Open(
        "Select provinceCD,province from lst_province where provincecd <10 order by province",
        survey().DatabaseConnection.get());
    for (; !provinces.Eof(); provinces.MoveNext()) {
      cboProvince.AddItem(provinces.Field("province").Text(),
                          ToWholeNumber(provinces.Field("provincecd").Number()));
    }
  });
}

void FrmMainMenu::LoadSiteDetails() {
  TrapSilently([this] {
    Recordset site;
    site.Open(
        "SELECT tbl_GeneralInformation.CollegeEmisNumber, "
        "tbl_GeneralInformation.CampusEmisNumber, tbl_GeneralInformation.CollegeName, "
        "tbl_GeneralInformation.CampusName, tbl_GeneralInformation.SiteType, lst_Province.Province"
        " FROM tbl_GeneralInformation INNER JOIN lst_Province ON "
        "tbl_GeneralInformation.ProvinceCD = lst_Province.ProvinceCD"
        " WHERE tbl_GeneralInformation.CollegeEmisNumber= " +
            NumberText(survey().CollegeEmisNumber) +
            "  AND tbl_GeneralInformation.CampusEmisNumber = " +
            NumberText(survey().CampusEmisNumber),
        survey().DatabaseConnection.get());
    if (site.Eof()) return;
    Frame1.Caption = site.Field("Collegename").Text();
    cboCollege.SetText(site.Field("Collegename").Text());
    txtColEmis.Text = site.Field("CollegeEmisNumber").Text();
    txtCamEmis.Text = site.Field("CampusEmisNumber").Text();
    cboCampus.SetText(site.Field("Campusname").Text());
    cboProvince.SetText(site.Field("province").Text());
    (site.Field("sitetype").Is(kCentralOffice) ? optHO : optCampus).SetValue(true);
  });
}

int FrmMainMenu::SiteType() const {
  if (optHO.Value()) return kCentralOffice;
  return optCampus.Value() ? kCampusSite : 0;
}

void FrmMainMenu::EmptyEmisNumbers() {
  txtColEmis.Text.clear();
  txtCamEmis.Text.clear();
}

void FrmMainMenu::ChooseSiteType() {
  if (EditMode == "Edit") return;
  cboProvince.SetText("");
  cboCollege.Clear();
  cboCampus.Clear();
  EmptyEmisNumbers();
}

void FrmMainMenu::ListColleges() {
  if (SiteType() == 0) {
    boxes().UserMessage("Please indicate if you are a central office or campus site");
    return;
  }
  if (cboProvince.ListIndex() < 0) return;
  cboCollege.Clear();
  Recordset colleges;
  colleges.Open("Select distinct collegeemisnumber,collegename from lst_college where sitetype = " +
                    NumberText(SiteType()) + " and provinceCD = " +
                    NumberText(cboProvince.items()[cboProvince.ListIndex()].item_data),
                survey().DatabaseConnection.get());
  for (; !colleges.Eof(); colleges.MoveNext()) {
    cboCollege.AddItem(colleges.Field("collegename").Text(),
                       ToWholeNumber(colleges.Field("collegeemisnumber").Number()));
  }
}

void FrmMainMenu::ListCampuses() {
  if (cboCollege.ListIndex() < 0) return;
  cboCampus.Clear();
  Recordset campuses;
  campuses.Open("Select campusemisnumber,campusname from lst_college where collegeemisnumber =  " +
                    NumberText(cboCollege.items()[cboCollege.ListIndex()].item_data) +
                    " and sitetype = " + NumberText(optHO.Value() ? kCentralOffice : kCampusSite),
                survey().DatabaseConnection.get());
  for (; !campuses.Eof(); campuses.MoveNext()) {
    cboCampus.AddItem(campuses.Field("campusname").Text(),
                      ToWholeNumber(campuses.Field("campusemisnumber").Number()));
  }
}

void FrmMainMenu::ShowCampus() {
  if (cboCollege.ListIndex() < 0) {
    boxes().UserMessage("You must select a college before you can select a site");
    return;
  }
  if (cboCampus.ListIndex() < 0) return;
  Recordset campus;
  campus.Open(
      "Select collegeemisnumber, collegename,campusemisnumber,campusname from lst_college where "
      "campusemisnumber =  " +
          NumberText(cboCampus.items()[cboCampus.ListIndex()].item_data),
      survey().DatabaseConnection.get());
  if (campus.Eof()) return;
  txtColEmis.Text = campus.Field("collegeemisnumber").Text();
  txtCamEmis.Text = campus.Field("CampusEMisnumber").Text();
  cmdContinue.BackColor = kYellow;
}

void FrmMainMenu::ClaimSite() {
  Recordset claimed;
  claimed.Open("Select * from tbl_Generalinformation where campusemisnumber = " + txtCamEmis.Text +
                   " and surveyyear = '2012'",
               survey().DatabaseConnection.get());
  if (!claimed.Eof()) {
    boxes().UserMessage(
        "The campus or college that you have selected already exists in the database. Return to "
        "the institution list and select the institution for editing.");
    return;
  }
  survey().Execute(
      "Update tbl_generalinformation set surveyyear = '2012' where campusemisnumber = " +
      txtCamEmis.Text);
  survey().EndStatements();
  survey().CollegeEmisNumber = LeadingNumber(txtColEmis.Text);
  survey().CampusEmisNumber = LeadingNumber(txtCamEmis.Text);
  ShowMenu(true);
  cmdContinue.BackColor = kButtonFace;
}

bool FrmMainMenu::ValidateSite() {
  std::string missing;
  if (cboCollege.Text().empty()) missing = "Please select your college or campus name.";
  if (cboProvince.Text().empty()) missing = "Please select your province.";
  if (SiteType() == 0) missing = "Please indicate your site as the central office or a campus.";
  if (missing.empty()) return true;
  boxes().UserMessage(missing);
  SetFocus(cboCollege);
  return false;
}

// A button of the student menu asks for no site.
void FrmMainMenu::PlacePage(const PageRow& row) {
  const std::string page(row.name);
  for (const MenuPlace& place : row.menu) {
    const std::string name(place.button);
    if (place.index == kNoIndex) {
      Find<Button>(name).on_click = [this, page] { OpenForSite(page); };
    } else {
      cmdLearner.push_back(std::make_unique<Button>(*this, name, std::string(place.caption),
                                                    ButtonRole::kNone, place.index));
      cmdLearner.back()->on_click = [this, page] { Open(page); };
    }
  }
}

// ---- The menu --------------------------------------------------------------------------------

void FrmMainMenu::Open(const std::string& target) {
  host().Show(target);
  host().Unload(*this);
}

void FrmMainMenu::OpenForSite(const std::string& target) {
  if (survey().CollegeEmisNumber != 0 && survey().CampusEmisNumber != 0) Open(target);
}

// ---- The printed survey ----------------------------------------------------------------------

void FrmMainMenu::PrintSurvey() {
  ChoosePrinter("campus survey");
  survey().CampusEmisNumber = LeadingNumber(txtCamEmis.Text);
  survey().CollegeEmisNumber = LeadingNumber(txtColEmis.Text);
  survey().SurveyYear = kPrintedYear;
  PrintCampusPages(host(), cmdPrintSurvey.Caption);
}

}  // namespace survey
