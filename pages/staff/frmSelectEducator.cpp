#include "pages/staff/frmSelectEducator.h"

#include <algorithm>
#include <ranges>

#include "base/text.h"
#include "forms/survey_page.h"
#include "store/dialect.h"

namespace survey {
namespace {

constexpr int kRows = 200;
constexpr int kNameColumn = 1;
constexpr int kIdColumn = 2;
constexpr char kNobodySelected[] = "Please select a staff member to continue";

// Users have always read these names in the box.
constexpr ErrorName kLoadRoutine = {"frmSelectSchool", "Load Schools Routine"};
constexpr ErrorName kDeleteRoutine = {"Delete Function", " cmddelete Educator"};
constexpr ErrorName kPrintPagesRoutine = {"frmselecteducator", "Print Routine"};
constexpr ErrorName kPrintListRoutine = {"frmSelectEducator", "Print Routine"};

const GridDesign& StaffListDesign() {
  static const GridDesign design = {
      .columns = 4,
      .rows = kRows,
      .column_widths = {4800, 2100, 2100, 2200},
      .row_height = 270,
      .heads = {"Name of Staff Member", "ID Number", "Persal Number", "Employee Number"},
      .locked_color = kWhite,
      .title = "Staff members of this site",
  };
  return design;
}

// An ID number is the key of all tables of the staff. Only the staff member's own record is
// changed whatever its year, and is then one of the current survey.
struct IdCorrection {
  const char* opening;
  bool of_any_year = false;
};

// clang-format off
constexpr IdCorrection kIdCorrections[] = {
    {"update tbl_lecturercontactmonth set Idnumber = '"},
    {"update tbl_lecturerqualificationsubject set Idnumber = '"},
    {"update  tbl_lecturerteachingfields set Idnumber = '"},
    {"update  tbl_lecturerteachingsubject set Idnumber = '"},
    {"update  tbl_staffdetail set Idnumber = '", true},
    {"update  tbl_staffqualificationtype set Idnumber = '"},
    {"update tbl_stafftraining set Idnumber = '"},
};
// clang-format on

// The button names and their captions do not always match.
const std::vector<Link> kLinks = {
    {"cmdMenu", "frmMainMenu", Guard::kNone, Leaving::kShowThenUnload},
    {"cmdEdit", "frmEducatorData", Guard::kOwn, Leaving::kStays, {"EducatorId", "EmisNumber"}},
    {"cmdAddNew", "frmEducatorData", Guard::kOwn, Leaving::kStays, {"EducatorId", "EmisNumber"}},
    {"cmdLoad", "frmEducatorTeaching", Guard::kOwn, Leaving::kStays, {"EducatorId"}},
    {"cmdLoad2", "frmEducatorTeaching2", Guard::kOwn, Leaving::kStays, {"EducatorId"}},
    {"cmdStaffteaching", "frmEducatorTeaching1", Guard::kOwn, Leaving::kStays, {"EducatorId"}},
    {"cmdSpecialisation", "frmLecQualifications1", Guard::kOwn, Leaving::kStays, {"EducatorId"}},
};

std::string_view LastCampusPage(const std::vector<PageRow>& pages) {
  const auto last =
      std::ranges::find(pages | std::views::reverse, Section::kCampus, &PageRow::section);
  return last->name;
}

}  // namespace

FrmSelectEducator::FrmSelectEducator(FormHost& host)
    : Form(host, "frmSelectEducator", "Staff List"),
      gridEducator(*this, "gridEducator", StaffListDesign()) {
  txtNumber.Locked = true;
  cmdSpecialisation.ToolTip = "Subject Majors";
  gridEducator.on_click = [this](int, int row) {
    if (row == 0) return;
    Select(gridEducator.GetText(kIdColumn, row), row);
    SelectedStaffName = gridEducator.GetText(kNameColumn, row);
  };
  gridEducator.Default = &cmdEdit;
  cmdAddNew.on_click = [this] { AddNew(); };
  cmdDelete.on_click = [this] { Delete(); };
  cmdUpdateID.on_click = [this] { UpdateID(); };
  for (Button* button : {&cmdEdit, &cmdSpecialisation, &cmdStaffteaching, &cmdLoad, &cmdLoad2}) {
    button->on_click = [this, button] { OpenPageOfSelected(*button); };
  }
  cmdPrint.on_click = [this] { TrapPrint(kPrintListRoutine, [this] { PrintList(); }); };
  cmdPrintSurvey.on_click = [this] { TrapPrint(kPrintPagesRoutine, [this] { PrintPages(); }); };
  cmdPrevious.on_click = [this] {
    FollowLink({"cmdPrevious", LastCampusPage(this->host().pages()), Guard::kNone,
                Leaving::kShowThenUnload});
  };
  cmdMenu.on_click = [this] {
    this->host().Get("frmMainMenu").Property("EditMode") = "Edit";
    FollowLink(LinkOf(kLinks, "cmdMenu"));
  };
}

Layout FrmSelectEducator::Arrange() {
  return ColumnOf(
      {Place(lblAdvice), RowOf({Place(lblSelect), Space(), Place(lblNumber), Place(txtNumber)}),
       RowOf({Place(gridEducator),
              ColumnOf({Place(cmdAddNew), Place(cmdEdit), Place(cmdDelete), Place(cmdUpdateID),
                        Place(cmdSpecialisation), Place(cmdStaffteaching), Place(cmdLoad),
                        Place(cmdLoad2), Space(), Place(cmdPrint), Place(chAll),
                        Place(cmdPrintSurvey)})},
             1),
       FootOf(RowOf({Place(cmdPrevious), Gap(), Place(cmdMenu), Space()}))});
}

void FrmSelectEducator::Form_Load() {
  Caption = survey().SurveyCaption("Staff List");
  survey().OpenDatabaseConnection();
  Select({});
  for (int row = 2; row <= kRows; ++row) gridEducator.SetRowHidden(row, true);
}

void FrmSelectEducator::Form_Activate() {
  LoadSchools();
  Select({});
  SetFocus(gridEducator);
}

void FrmSelectEducator::Select(std::optional<std::string> id, int row) {
  SelectedStaffId = std::move(id);
  gridEducator.SetChosenRow(row);
}

// ---- The list --------------------------------------------------------------------------------

void FrmSelectEducator::LoadSchools() {
  Trap(kLoadRoutine, [this] {
    gridEducator.ClearRange(1, 1, gridEducator.MaxColumns(), kRows);
    Recordset staff;
    staff.Open(
        "Select IDNumber,Initials,Surname,PersalNo,employeenumber from tbl_staffdetail where "
        "collegeEmisNumber =" +
            NumberText(survey().CollegeEmisNumber) + " and campusemisnumber = " +
            NumberText(survey().CampusEmisNumber) + " order by surname",
        survey().DatabaseConnection.get());
    txtNumber.Text = NumberText(staff.RecordCount());
    // Who comes behind the last row is counted and not listed.
    for (int row = 1; !staff.Eof() && row <= kRows; staff.MoveNext(), ++row) ShowRow(staff, row);
  });
}

void FrmSelectEducator::ShowRow(const Recordset& member, int row) {
  gridEducator.SetText(kNameColumn, row,
                       member.Field("Surname").Text() + "  " + member.Field("Initials").Text());
  gridEducator.SetText(kIdColumn, row, member.Field("IDnumber").Text());
  gridEducator.SetText(3, row, member.Field("PersalNo").Text());
  gridEducator.SetText(4, row, member.Field("employeenumber").Text());
  gridEducator.SetRowHidden(row, false);
}

// ---- The staff pages -------------------------------------------------------------------------

void FrmSelectEducator::OpenPageOfSelected(const Button& button) {
  if (!SelectedStaffId) {
    boxes().UserMessage(kNobodySelected);
    return;
  }
  EducatorId = *SelectedStaffId;
  EmisNumber = survey().CollegeEmisNumber;
  if (&button == &cmdEdit) host().Get("frmEducatorData").Property("FormMode") = "Edit";
  FollowLink(LinkOf(kLinks, button.name()));
}

void FrmSelectEducator::AddNew() {
  const std::string id =
      host().platform().dialogs.InputBox("Please enter the ID number of the Staff Member", "");
  if (id.empty()) {
    boxes().UserMessage("You must enter an ID number to continue");
    return;
  }
  EducatorId = id;
  EmisNumber = survey().CollegeEmisNumber;
  host().Get("frmEducatorData").Property("FormMode") = StaffIdExists(id) ? "Edit" : "New";
  FollowLink(LinkOf(kLinks, "cmdAddNew"));
}

// Anywhere, so that who comes from another site or was removed comes with the old details.
bool FrmSelectEducator::StaffIdExists(const std::string& id) {
  Recordset found;
  found.Open("select idnumber from tbl_staffdetail where idnumber = '" + SqlEscape(id) + "'",
             survey().DatabaseConnection.get());
  return !found.Eof();
}

// ---- Removal and correction ------------------------------------------------------------------

// The record stays, at no college; so do all others of the staff member.
void FrmSelectEducator::Delete() {
  if (!SelectedStaffId) {
    boxes().UserMessage("Please select a staff member to remove from this campus");
    return;
  }
  if (!boxes().UserQuestion("Are you sure you want to remove " + *SelectedStaffId +
                            " from this campus?")) {
    return;
  }
  const bool removed = Trap(kDeleteRoutine, [this] {
    survey().Execute("Update tbl_staffdetail set CollegeEmisNumber = 0 where IDNumber ='" +
                     *SelectedStaffId + "'");
  });
  if (!removed) return;
  Select("");
  LoadSchools();
}

void FrmSelectEducator::UpdateID() {
  if (SelectedStaffId.value_or("").empty()) {
    boxes().UserMessage("You must select a staff member to continue.");
    return;
  }
  const std::string new_id = host().platform().dialogs.InputBox(
      "Enter the correct ID number for " + SelectedStaffName, "Staff member: " + *SelectedStaffId);
  if (new_id.empty()) {
    boxes().UserMessage("You have not entered a new ID number for the staff member");
  } else {
    CorrectID(SqlEscape(*SelectedStaffId), SqlEscape(new_id));
  }
  Select({});
  LoadSchools();
}

// Nothing keeps the new number from being somebody's already; the two are then one.
void FrmSelectEducator::CorrectID(const std::string& old_id, const std::string& new_id) {
  const std::string year = NumberText(survey().SurveyYear);
  for (const IdCorrection& correction : kIdCorrections) {
    std::string statement = correction.opening + new_id;
    if (correction.of_any_year) {
      statement += "',surveyyear = " + year + " WHERE IDNumber = '" + old_id + "'";
    } else {
      statement += "' WHERE IDNumber = '" + old_id + "' and surveyyear = " + year;
    }
    survey().Execute(statement);
  }
  survey().EndStatements();
}

// ---- Printing --------------------------------------------------------------------------------

void FrmSelectEducator::PrintPages() {
  Printer& printer = host().platform().printer;
  ChoosePrinter("staff survey", chAll.Value() ? "" : SelectedStaffId.value_or(""));
  if (chAll.Value()) {
    PrintAllMembers();
    Select({});
  } else if (SelectedStaffId.value_or("").empty()) {
    boxes().UserMessage(kNobodySelected);
  } else {
    PrintMember(*SelectedStaffId);
    printer.EndDoc();
  }
}

// One job; who is stopped at is left out with all behind.
void FrmSelectEducator::PrintAllMembers() {
  Printer& printer = host().platform().printer;
  const auto progress = host().platform().dialogs.BeginProgress(cmdPrintSurvey.Caption);
  const int members = ToWholeNumber(LeadingNumber(txtNumber.Text));
  for (int row = 1; row <= members; ++row) {
    if (!progress->Step(row - 1, members, gridEducator.GetText(kNameColumn, row))) break;
    const std::string& id = gridEducator.GetText(kIdColumn, row);
    if (id.empty()) continue;
    Select(id, row);  // stays so where the print fails
    PrintMember(id);
    printer.NewPage();
  }
  printer.EndDoc();
}

void FrmSelectEducator::PrintMember(const std::string& id) {
  for (const PageRow& row : host().pages()) {
    if (!row.staff_print) continue;
    host().RunOffScreen(std::string(row.name), [&](Form& form) {
      form.Property("EducatorId") = id;
      if (auto* mode = form.FindProperty<std::string>("FormMode")) *mode = "Edit";
      if (auto* college = form.FindProperty<double>("EmisNumber")) {
        *college = survey().CollegeEmisNumber;
      }
      form.Form_Activate();
      PrintSheet(host().platform().printer, row.paper, *row.staff_print,
                 dynamic_cast<SurveyPage&>(form).PrintedHead(),
                 [&](std::string_view name, int index) -> const Grid& {
                   return form.Find<Grid>(name, index);
                 });
    });
  }
}

void FrmSelectEducator::PrintList() {
  constexpr double kBottomMargin = 1000;
  Printer& printer = host().platform().printer;
  ChoosePrinter("staff list");
  printer.SetOrientation(Orientation::kPortrait);
  const double right = printer.Width();
  const double bottom = printer.Height() - kBottomMargin;
  const int pages = printer.OwnerPrintPageCount(gridEducator, 100, 1000, right, bottom);
  BeginHead(printer, kSheetHeadLeft, "");
  printer.SetCurrentX(500);
  printer.Print("Educator List ");
  printer.SetCurrentX(500);
  printer.Print("");
  printer.SetFontBold(false);
  for (int page = 1; page <= pages; ++page) {
    printer.OwnerPrintDraw(gridEducator, 300, 800, right, bottom, page);
    if (page < pages) printer.NewPage();
  }
  printer.EndDoc();
}

}  // namespace survey
