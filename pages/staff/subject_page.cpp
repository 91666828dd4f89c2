#include "pages/staff/subject_page.h"

#include "base/text.h"
#include "store/dialect.h"
#include "store/recordset.h"

namespace survey {
namespace {

constexpr int kTextColumn = 2;
constexpr int kFirstLine = 2;  // rows of the grid
constexpr int kLastLine = 16;
constexpr int kRowsAboveLines = kFirstLine - 1;

// clang-format off
const std::vector<CellText> kLineNumbers = {
    {1, 2, "1"},    {1, 3, "2"},    {1, 4, "3"},    {1, 5, "4"},    {1, 6, "5"},
    {1, 7, "6"},    {1, 8, "7"},    {1, 9, "8"},    {1, 10, "9"},   {1, 11, "10"},
    {1, 12, "11"},  {1, 13, "12"},  {1, 14, "13"},  {1, 15, "14"},  {1, 16, "15"},
};
// clang-format on

// What a subject reads as in the combo and in its line.
std::string SubjectText(const Recordset& subject) {
  return subject.Field("subjectcode").Text() + " " + subject.Field("description").Text() + " " +
         subject.Field("programme").Text();
}

bool IsDigitOrControl(char32_t character) {
  constexpr char32_t kLastControl = 30;
  return character <= kLastControl || (character >= U'0' && character <= U'9');
}

}  // namespace

SubjectList WithLines(SubjectList list) {
  list.design.texts.insert(list.design.texts.end(), kLineNumbers.begin(), kLineNumbers.end());
  return list;
}

SubjectPage::SubjectPage(FormHost& host, const PageRow& page, const SubjectList& list)
    : StaffPage(host, page,
                {.next = {"Previous", ButtonRole::kPrevious},
                 .previous = kToStaffList,
                 .menu = kNoButton}),
      gridSubjects(*this, "gridSubjects", list.design),
      Frame3(*this, "Frame3", list.title),
      cmdSubject(*this, list.add_button, "Add a subject"),
      list_(list) {
  AddLink(cmdForward);
  MarkChangesOf(gridSubjects);
  if (list.offers_report_550) {
    AddSubjectType(opt550.emplace(*this, "opt550", "Report 550", optNCV.group()));
  }
  for (OptionButton* type : {&optNCV, &optReport191, &optNSC}) AddSubjectType(*type);
  for (const char* advice : list.advice) {
    lblAdvice.emplace_back(*this, "lblAdvice", advice, static_cast<int>(lblAdvice.size()));
  }
  txtRow.takes_key = IsDigitOrControl;
  txtSearch.Default = &cmdGo;
  cmdGo.on_click = [this] { Search(); };
  cboSubject.on_click = [this] { TakePick(); };
  cboSubject.on_got_focus = [this] { cboSubject.BackColor = kWhite; };
  cmdRemove.on_click = [this] { RemoveLine(); };
  cmdSubject.on_click = [this] { MaintainCatalogue(); };
}

void SubjectPage::AddSubjectType(OptionButton& type) {
  subject_types_.push_back(&type);
  type.on_click = [this, &type] { FillWithType(type); };
}

Layout SubjectPage::Body() {
  std::vector<Layout> types = {Place(Label2)};
  for (OptionButton* type : subject_types_) types.push_back(Place(*type));
  types.push_back(Space());
  std::vector<Layout> rows = {
      RowOf({Place(Label1), Place(txtSearch, 1), Place(optname), Place(optCode), Place(cmdGo)}),
      RowOf(std::move(types)), RowOf({Place(Label3), Place(cboSubject, 1), Place(cmdSubject)}),
      RowOf({Place(Label4), Place(txtRow), Place(cmdRemove), Space()})};
  for (Label& advice : lblAdvice) rows.push_back(Place(advice));
  return ColumnOf({FrameOf(Frame3, ColumnOf(std::move(rows))), Place(gridSubjects)}, 1);
}

// A search is one by name while neither option is chosen, and the page says so.
void SubjectPage::Form_Load() { optname.SetValue(true); }

void SubjectPage::Form_Activate() {
  Caption = StaffCaption();
  StaffPage::Form_Activate();
}

void SubjectPage::Printpage() {
  Trap(list_.printing_routine, [this] { StaffPage::Printpage(); });
}

// ---- The lines in the store --------------------------------------------------------------------

// A line whose subject has left the catalogue does not come back, and goes with the next save.
void SubjectPage::GetSubjects() {
  Recordset subjects;
  subjects.Open(list_.select + OfThisStaffMember(), survey().DatabaseConnection.get());
  for (int row = kFirstLine; !subjects.Eof(); subjects.MoveNext(), ++row) {
    gridSubjects.SetText(kTextColumn, row, SubjectText(subjects));
    gridSubjects.SetText(list_.code_column, row, subjects.Field("SubjectCode").Text());
    for (const auto& [field, column] : list_.figures) {
      const Value& figure = subjects.Field(field);
      if (figure.IsEmpty()) {
        gridSubjects.SetText(column, row, "");
      } else {
        gridSubjects.SetInteger(column, row, ToWholeNumber(figure.Number()));
      }
    }
  }
}

// The code goes in as the catalogue has it: one with a quote is refused by the store.
void SubjectPage::SaveSubjects() {
  survey().Execute(list_.remove + OfThisStaffMember());
  for (int row = kFirstLine; row <= gridSubjects.MaxRows(); ++row) {
    std::string figures;
    for (const SubjectFigure& figure : list_.figures) {
      figures += "," + NumberText(gridSubjects.GetInteger(figure.column, row));
    }
    const std::string& code = gridSubjects.GetText(list_.code_column, row);
    if (code.empty()) continue;
    survey().Execute(list_.insert + ("(" + KeyValues()) + "'" + code + "'" + figures + ")");
  }
}

// ---- Finding a subject -------------------------------------------------------------------------

// Selecting the first hit is a pick like the user's: it is in the grid at once.
void SubjectPage::Search() {
  survey().OpenDatabaseConnection();
  const std::string text = SqlEscape(txtSearch.Text);
  const std::string wanted =
      optCode.Value() ? "subjectcode like  '" + text : "description like  '%" + text;
  if (!FillCombo("Select subjectCode,subjectid,description,programme from lst_Subject where " +
                 wanted + "%'")) {
    boxes().UserMessage("The subject could not be located");
    return;
  }
  cboSubject.SetListIndex(0);
  cboSubject.BackColor = kYellow;
}

void SubjectPage::FillWithType(const OptionButton& type) {
  FillCombo("Select * from lst_subject where programme = '" + type.Caption +
            "' order by programme,description");
  txtSearch.Text.clear();
}

bool SubjectPage::FillCombo(const std::string& query) {
  Recordset subjects;
  subjects.Open(query, survey().DatabaseConnection.get());
  cboSubject.Clear();
  for (; !subjects.Eof(); subjects.MoveNext()) {
    cboSubject.AddItem(SubjectText(subjects), ToWholeNumber(subjects.Field("subjectid").Number()));
  }
  return !cboSubject.items().empty();
}

// The catalogue that was read before stays in the combo until the next search.
void SubjectPage::MaintainCatalogue() {
  host().ShowModal("frmAddSubjects");
  for (OptionButton* type : subject_types_) type->SetValue(false);
}

// ---- A line of the grid ------------------------------------------------------------------------

void SubjectPage::TakePick() {
  cboSubject.BackColor = kWhite;
  if (cboSubject.ListIndex() < 0) return;
  const std::string code = GetSubjectCode(cboSubject.items().at(cboSubject.ListIndex()).item_data);
  if (SubjectAssigned(code)) {
    boxes().UserMessage(list_.already_assigned);
  } else {
    EnterInFirstFreeLine(code);
  }
  SetFocus(txtSearch);
  txtSearch.Text.clear();
}

// A sixteenth subject is dropped without a word. The unsaved mark comes with the figures.
void SubjectPage::EnterInFirstFreeLine(const std::string& code) {
  int row = kFirstLine;
  while (row <= kLastLine && !gridSubjects.GetText(kTextColumn, row).empty()) ++row;
  if (row > kLastLine) return;
  gridSubjects.SetText(kTextColumn, row, cboSubject.Text());
  gridSubjects.SetText(list_.code_column, row, code);
}

bool SubjectPage::SubjectAssigned(std::string_view code) const {
  for (int row = kFirstLine; row <= kLastLine; ++row) {
    if (gridSubjects.GetText(list_.code_column, row) == code) return true;
  }
  return false;
}

std::string SubjectPage::GetSubjectCode(std::int32_t subjectid) {
  Recordset subject;
  subject.Open("Select subjectcode from lst_subject where subjectid =" + NumberText(subjectid),
               survey().DatabaseConnection.get());
  return subject.Eof() ? NumberText(subjectid) : subject.Field("subjectcode").Text();
}

// The lines below stay where they are.
void SubjectPage::RemoveLine() {
  const double line = LeadingNumber(txtRow.Text);
  if (line < 1 || line > kLastLine - kRowsAboveLines) {
    boxes().UserMessage("Please enter a grid line number between 1 and 15 to remove.");
    return;
  }
  const int row = static_cast<int>(line) + kRowsAboveLines;
  gridSubjects.ClearRange(kTextColumn, row, list_.code_column, row);
  MarkUnsaved();
  cmdRemove.BackColor = kButtonFace;
  txtRow.Text.clear();
}

}  // namespace survey
