#include "pages/student/frmPage12_1.h"

#include <algorithm>

#include "base/text.h"
#include "grid/cell_entry.h"
#include "store/recordset.h"

namespace survey {
namespace {

constexpr int kFirstLine = 3;  // rows of the grid
constexpr int kLastLine = 37;

// Failures of the handlers that have no name in the page's rules.
constexpr ErrorName kTypeAheadName{"frmPage12_1", "Fillsubjectcombo2"};
constexpr ErrorName kTakeChoiceName{"frmPage12_1", "cmdOK"};
constexpr ErrorName kRemoveLineName{"frmPage12_1", "cmdRemove"};

// clang-format off
const GridDesign& EnrolmentDesign() {
  static const GridDesign design = {
      .columns = 8,
      .rows = 38,
      .column_widths = {340, 780, 820, 6400, 260, 640, 800, 1200},
      .row_height = 395,
      .row_heights = {480, 480},
      .head_rows = 2,
      .label_columns = 2,
      .texts = {
          {2, 1, "3.14"},
          {3, 1, "Student registration for Occupational Qualifications, NQF Levels 2-4 (Students "
                 "should not be\ndouble counted)"},

          {3, 2, "NQF ID"},      {4, 2, "Qualification Title"},  {6, 2, "NQF\nField"},
          {7, 2, "NQF\nLevel"},  {8, 2, "ENROLMENT\nTOTAL"},

          // Until the lines are first loaded their id is a blank, which is not empty.
          {1, 3, "1"},   {2, 3, "3.14.1"},    {3, 3, " "},  {6, 3, " "},
          {1, 4, "2"},   {2, 4, "3.14.2"},    {3, 4, " "},
          {1, 5, "3"},   {2, 5, "3.14.3"},    {3, 5, " "},
          {1, 6, "4"},   {2, 6, "3.14.4"},    {3, 6, " "},
          {1, 7, "5"},   {2, 7, "3.14.5"},    {3, 7, " "},
          {1, 8, "6"},   {2, 8, "3.14.6"},    {3, 8, " "},
          {1, 9, "7"},   {2, 9, "3.14.7"},    {3, 9, " "},
          {1, 10, "8"},  {2, 10, "3.14.8"},   {3, 10, " "},
          {1, 11, "9"},  {2, 11, "3.14.9"},   {3, 11, " "},
          {1, 12, "10"}, {2, 12, "3.14.10"},  {3, 12, " "},
          {1, 13, "11"}, {2, 13, "3.14.11"},  {3, 13, " "},
          {1, 14, "12"}, {2, 14, "3.14.12"},  {3, 14, " "},
          {1, 15, "13"}, {2, 15, "3.14.13"},  {3, 15, " "},
          {1, 16, "14"}, {2, 16, "3.14.14"},  {3, 16, " "},
          {1, 17, "15"}, {2, 17, "3.14.15"},  {3, 17, " "},
          {1, 18, "16"}, {2, 18, "3.14.16"},  {3, 18, " "},
          {1, 19, "17"}, {2, 19, "3.14.17"},  {3, 19, " "},
          {1, 20, "18"}, {2, 20, "3.14.18"},  {3, 20, " "},
          {1, 21, "19"}, {2, 21, "3.14.19"},  {3, 21, " "},
          {1, 22, "20"}, {2, 22, "3.14.20"},  {3, 22, " "},
          {1, 23, "21"}, {2, 23, "3.14.21"},  {3, 23, " "},
          {1, 24, "22"}, {2, 24, "3.14.22"},  {3, 24, " "},
          {1, 25, "23"}, {2, 25, "3.14.23"},  {3, 25, " "},
          {1, 26, "24"}, {2, 26, "3.14.24"},  {3, 26, " "},
          {1, 27, "25"}, {2, 27, "3.14.25"},  {3, 27, " "},
          {1, 28, "26"}, {2, 28, "3.14.26"},  {3, 28, " "},
          {1, 29, "27"}, {2, 29, "3.14.27"},  {3, 29, " "},
          {1, 30, "28"}, {2, 30, "3.14.28"},  {3, 30, " "},
          {1, 31, "29"}, {2, 31, "3.14.29"},  {3, 31, " "},
          {1, 32, "30"}, {2, 32, "3.14.30"},  {3, 32, " "},
          {1, 33, "31"}, {2, 33, "3.14.31"},  {3, 33, " "},
          {1, 34, "32"}, {2, 34, "3.14.32"},  {3, 34, " "},
          {1, 35, "33"}, {2, 35, "3.14.33"},  {3, 35, " "},
          {1, 36, "34"}, {2, 36, "3.14.34"},  {3, 36, " "},
          {1, 37, "35"}, {2, 37, "3.14.35"},  {3, 37, " "},
                         {2, 38, "TOTAL"},
      },
      .rules = {
          {{3, 3, 7, 37}, Text(255), false},
          {{8, 3, 8, 37}, Number(0, 99999)},
          {{3, 38, 8, 38}, Number(0, 9999999.99), false},
      },
      .totals = {
          {{4, 38, 6, 38}, {{4, 3, 4, 37}}},
          {{7, 38}, {{8, 3, 8, 10}}},  // the first eight lines alone
          {{8, 38}, {{8, 3, 8, 37}}},
      },
      .spans = {{3, 1, 8, 1}, {4, 2, 5, 2}},
      .alignments = {{{3, 3, 3, 37}, Alignment::kRight}, {{6, 3, 6, 37}, Alignment::kCenter}},
      .bold = {{2, 38}},
      .title = "Table 3.14 Student registration for occupational qualifications",
  };
  return design;
}

// A tick that older catalogues want in the line, and the locks that went with it.
struct LockChange {
  int column;
  bool locked;
};
struct OldLevel {
  std::string_view level;
  int ticked_column;  // 0: none
  LockChange locks[3];
};

// Levels as older catalogues write them, a bare digit.
constexpr OldLevel kOldLevels[] = {
    {"5", 4, {{5, true}, {5, true}, {4, false}}},
    {"6", 5, {{5, false}, {6, true}, {4, true}}},
    {"7", 6, {{5, true}, {6, false}, {4, true}}},
    {"8", 0, {{6, false}, {6, false}, {4, false}}},
};
// clang-format on

Recordset ReadLines(const SiteRecords& site) {
  Recordset lines;
  lines.Open(
      "SELECT tbl_StudentRegistrationOccupational.CollegeEmisNumber, "
      "tbl_StudentRegistrationOccupational.CampusEmisNumber, "
      "tbl_StudentRegistrationOccupational.SurveyYear, "
      "lst_OccupationalQualification.NQFID,lst_OccupationalQualification.NQFField, "
      "lst_OccupationalQualification.QualificationTitle, "
      "lst_OccupationalQualification.NQFLevel, tbl_StudentRegistrationOccupational.Quantity "
      "FROM tbl_StudentRegistrationOccupational INNER JOIN lst_OccupationalQualification ON "
      "tbl_StudentRegistrationOccupational.NQFID = lst_OccupationalQualification.NQFID where "
      "CampusEMISNumber = " +
          NumberText(site.campus_emis_number) +
          " and CollegeEMISNumber = " + NumberText(site.college_emis_number) +
          " order by lst_OccupationalQualification.NQFID,"
          "lst_OccupationalQualification.NQFField",
      site.connection);
  return lines;
}

void ShowLine(const Recordset& line, int row, Grid& grid) {
  grid.SetText(3, row, line.Field("NQFID").Text());
  grid.SetText(4, row, line.Field("QualificationTitle").Text());
  grid.SetText(6, row, line.Field("NQFField").Text());
  grid.SetText(7, row, line.Field("NQFLevel").Text());
  grid.SetText(8, row, line.Field("Quantity").Text());
}

void ShowLines(const SiteRecords& site, Grid& grid) {
  Recordset lines = ReadLines(site);
  for (int row = kFirstLine; !lines.Eof(); lines.MoveNext(), ++row) ShowLine(lines, row, grid);
}

}  // namespace

const std::vector<KeptTable>& FrmPage12_1::Kept() {
  static const std::vector<KeptTable> tables = {
      {.number = "3.14",
       .grid = "gridPage12_2",
       .index = -1,
       .design = &EnrolmentDesign(),
       .load = ShowLines},
  };
  return tables;
}

FrmPage12_1::FrmPage12_1(FormHost& host, const PageRow& page)
    : SurveyPage(host, page, {.menu = kToMainMenu}),
      gridPage12_2(*this, "gridPage12_2", EnrolmentDesign()) {
  MarkChangesOf(gridPage12_2);
  cboSelect.on_click = [this] { cmdOK.BackColor = kYellow; };
  cboSelect.on_key_press = [this](char32_t character) {
    Trap(kTypeAheadName, [&] { TypeAhead(character); });
  };
  // A changed line has the list read anew, which empties it.
  cboSelect.on_edit = [this] { Trap(kTypeAheadName, [this] { Fillsubjectcombo2(cboSelect); }); };
  cmdOK.on_click = [this] { Trap(kTakeChoiceName, [this] { TakeChoice(); }); };
  cmdAdd.on_click = [this] { this->host().ShowModal("frmAddQualification"); };
  cmdRemove.on_click = [this] { Trap(kRemoveLineName, [this] { RemoveLine(); }); };
}

Layout FrmPage12_1::Body() {
  return ColumnOf(
      {RowOf({Place(Label1), Place(cboSelect, 1), Place(cmdOK), Place(cmdAdd)}),
       Place(gridPage12_2),
       FrameOf(Frame3, RowOf({Place(Label4), Place(txtRow), Place(cmdRemove), Space()}))});
}

void FrmPage12_1::Form_Load() {
  SurveyPage::Form_Load();
  shown_ = {};  // the catalogue is read first, and may fail
  Frame1.Caption = "Occupational Qualifications - Enter code to scroll list";
}

void FrmPage12_1::Form_Activate() {
  Trap(row().errors.activate, [this] {
    survey().OpenDatabaseConnection();
    Fillsubjectcombo2(cboSelect);
    GetPage();
  });
}

// ---- The lines in the store ----------------------------------------------------------------

void FrmPage12_1::GetPage() {
  shown_ = {};
  shown_.complete = TrapSilently([this] {
    gridPage12_2.ClearRange(3, kFirstLine, 11, kLastLine);
    survey().OpenDatabaseConnection();
    Recordset lines = ReadLines(survey());
    for (int row = kFirstLine; !lines.Eof(); lines.MoveNext(), ++row) {
      ShowLine(lines, row, gridPage12_2);
      shown_.keys.insert(lines.Field("NQFID").Text());
    }
  });
}

bool FrmPage12_1::MaySave() {
  if (cmdOK.BackColor == kYellow) {
    boxes().UserMessage(
        "Please click on the OK button to retrieve any previous data before continuing.");
    return false;
  }
  return MayReplace(shown_, [this] {
    std::vector<std::string> ids;
    for (Recordset lines = ReadLines(survey()); !lines.Eof(); lines.MoveNext()) {
      ids.push_back(lines.Field("NQFID").Text());
    }
    return ids;
  });
}

// The lines of every year go, those of this year come: the table holds one set of lines a site.
void FrmPage12_1::SavePage() {
  TrapSilently([this] {
    survey().OpenDatabaseConnection();
    const std::string campus = NumberText(survey().CampusEmisNumber);
    const std::string college = NumberText(survey().CollegeEmisNumber);
    survey().Execute("DELETE * FROM tbl_StudentRegistrationOccupational WHERE CampusEMISNumber = " +
                     campus + " and CollegeEMISNumber = " + college);
    for (int row = kFirstLine; row <= kLastLine; ++row) {
      const std::string& id = gridPage12_2.GetText(3, row);
      if (LeadingNumber(id) == 0) continue;
      survey().Execute(
          "INSERT INTO tbl_StudentRegistrationOccupational(CollegeEMISNumber,CampusEmisNumber,"
          "NQFID,Quantity,Surveyyear)VALUES(" +
          college + "," + campus + "," + id + "," +
          NumberText(LeadingNumber(gridPage12_2.GetText(8, row))) + "," +
          NumberText(survey().SurveyYear) + ")");
    }
  });
}

void FrmPage12_1::DataSaved() {
  boxes().ExtendedMsgBox("Your Information has been Saved.", kOkOnly, "Data Saved", Picture::kSaved,
                         "");
}

// ---- The catalogue -------------------------------------------------------------------------

void FrmPage12_1::Fillsubjectcombo2(ComboBox& combo) {
  survey().OpenDatabaseConnection();
  combo.Clear();
  Recordset catalogue;
  catalogue.Open(
      "Select NQFField,NQFID,QualificationTitle,NQFLevel from lst_OccupationalQualification where "
      "NQFField >= 1 order by NQFID,QualificationTitle ",
      survey().DatabaseConnection.get());
  for (; !catalogue.Eof(); catalogue.MoveNext()) {
    const Value& id = catalogue.Field("NQFID");
    const std::int32_t item_data = id.IsEmpty() ? 0 : ToWholeNumber(id.Number());
    if (!id.IsEmpty()) {
      combo.AddItem(id.Text() + " " + catalogue.Field("QualificationTitle").Text(), item_data);
    } else if (!combo.items().empty()) {
      // A qualification without an id is not offered, and spoils the one above it.
      combo.SetItemData(static_cast<int>(combo.items().size()) - 1, item_data);
    }
  }
  survey().CloseDatabaseConnection();
}

// The line of the list never holds what was typed, but the item that begins with it: what was
// typed stands unselected, so that the next character goes on behind it.
void FrmPage12_1::TypeAhead(char32_t character) {
  constexpr char32_t kFirst = 32;
  constexpr char32_t kLast = 127;
  if (character < kFirst) return;
  if (character > kLast) {
    Fillsubjectcombo2(cboSelect);  // it goes into the line
    return;
  }
  const std::string& line = cboSelect.Text();
  std::string search =
      cboSelect.SelectionLength == 0 ? line : FirstCharacters(line, cboSelect.SelectionStart);
  search += static_cast<char>(character);
  cboSelect.DroppedDown = true;
  const auto& items = cboSelect.items();
  const auto found = std::ranges::find_if(
      items, [&](const ListItem& item) { return BeginsWith(item.text, search); });
  if (found == items.end()) return;
  cboSelect.SetListIndex(static_cast<int>(found - items.begin()));
  cboSelect.SelectionStart = CharacterCount(search);
  cboSelect.SelectionLength = CharacterCount(found->text) - cboSelect.SelectionStart;
}

// ---- A line of the grid --------------------------------------------------------------------

void FrmPage12_1::TakeChoice() {
  if (cboSelect.ListIndex() < 0) {
    boxes().UserMessage("Please select a qualification to continue.");
    SetFocus(cboSelect);
    return;
  }
  if (const auto choice = ReadChoice()) EnterInFirstFreeLine(*choice);
}

// None where the choice cannot be entered; the user knows then. A choice that has left the
// catalogue meanwhile comes back with the id 0 and nothing else.
std::optional<FrmPage12_1::Qualification> FrmPage12_1::ReadChoice() {
  Qualification choice;
  survey().OpenDatabaseConnection();
  Recordset catalogue;
  catalogue.Open(
      "Select NQFID, QualificationTitle,NQFField,NQFLevel from lst_OccupationalQualification where "
      "nqfid = " +
          NumberText(cboSelect.items().at(cboSelect.ListIndex()).item_data),
      survey().DatabaseConnection.get());
  if (!catalogue.Eof()) {
    if (catalogue.Field("NQFID").IsEmpty()) {
      boxes().UserMessage(
          "This Qualification does not have an official ID.\r\nPlease correct before you can use "
          "this Qualification.");
      survey().CloseDatabaseConnection();
      cmdOK.BackColor = kButtonFace;
      return std::nullopt;
    }
    choice.id = ToWholeNumber(catalogue.Field("NQFID").Number());
    if (!IsNewQualification(choice.id)) {
      cmdOK.BackColor = kButtonFace;
      return std::nullopt;
    }
    choice.title = catalogue.Field("QualificationTitle").Text();
    choice.field = ToSmallWholeNumber(catalogue.Field("NQFField").Number());
    choice.level = catalogue.Field("NQFLevel").Text();
  }
  survey().CloseDatabaseConnection();
  cmdOK.BackColor = kButtonFace;
  return choice;
}

bool FrmPage12_1::IsNewQualification(std::int32_t id) {
  bool is_new = true;
  for (int row = kFirstLine; row <= kLastLine; ++row) {
    const std::string& held = gridPage12_2.GetText(3, row);
    if (held.empty() || LeadingNumber(held) != id) continue;
    boxes().UserMessage("You have already entered this qualification");
    is_new = false;
  }
  return is_new;
}

// The unsaved mark comes with the enrolment, not with the line.
void FrmPage12_1::EnterInFirstFreeLine(const Qualification& qualification) {
  int row = kFirstLine;
  while (row <= kLastLine && !gridPage12_2.GetText(3, row).empty()) ++row;
  if (row > kLastLine) {
    // The count has run past the last line, so that this is never said: a full grid has always
    // refused without a word.
    if (row == kLastLine) {
      boxes().UserMessage(
          "You have reached the maximum number of Qualifications.\r\nYou must remove a "
          "Qualification from the grid before you can add another subject.");
    }
    return;
  }
  gridPage12_2.SetText(3, row, qualification.id);
  gridPage12_2.SetText(4, row, qualification.title);
  gridPage12_2.SetText(6, row, qualification.field);
  gridPage12_2.SetText(7, row, qualification.level);
  gridPage12_2.SetActiveCell(3, row);
  MarkOldLevel(qualification.level, row);
  gridPage12_2.SetActiveCell(3, row);
}

void FrmPage12_1::MarkOldLevel(const std::string& level, int row) {
  const auto old_level =
      std::ranges::find_if(kOldLevels, [&](const OldLevel& rule) { return rule.level == level; });
  if (old_level == std::end(kOldLevels)) return;
  if (old_level->ticked_column > 0) gridPage12_2.SetText(old_level->ticked_column, row, "1");
  for (const LockChange& lock : old_level->locks) {
    gridPage12_2.SetLock(lock.column, row, lock.locked);
  }
}

void FrmPage12_1::RemoveLine() {
  if (txtRow.Text.empty()) {
    boxes().UserMessage("Please enter a grid line number between 1 and 20 to remove.");
    return;
  }
  constexpr int kRowsAboveLines = kFirstLine - 1;
  const auto line = NumberHeld(txtRow.Text);
  if (!line) throw TypeMismatch();  // words are no line, least of all line 0
  const int row = ToWholeNumber(*line + kRowsAboveLines);
  gridPage12_2.ClearRange(3, row, 8, row);
  MarkUnsaved();
  cmdRemove.BackColor = kButtonFace;
  txtRow.Text.clear();
}

}  // namespace survey
