#include "pages/staff/frmAddSubjects.h"

#include <algorithm>
#include <vector>

#include "base/text.h"
#include "store/dialect.h"
#include "store/recordset.h"

namespace survey {
namespace {

constexpr ErrorName kListRoutine{"frmAddSubject", "Get Subject Routine"};
constexpr ErrorName kAddRoutine{"frmAddSubjects", "CheckDuplicationBeforeSave Routine"};

constexpr int kCodeColumn = 1;
constexpr int kNameColumn = 2;
constexpr int kProgrammeColumn = 3;

constexpr const char* kProgrammes[] = {"Report 191", "NC(V)", "NSC", "Report 550"};

// What the list is filled with.
constexpr int kAllSubjects = 5;
constexpr int kSubjectsByCode = 6;
constexpr int kSubjectsByName = 7;

const GridDesign& SubjectListDesign() {
  static const GridDesign design = {
      .columns = 3,
      .rows = 1,
      .column_widths = {1900, 6800, 2000},
      .row_height = 270,
      .heads = {"Subject Code", "Subject Name", "Programme"},
      .locked_color = kWhite,
      .title = "Subject List",
  };
  return design;
}

struct ListedSubject {
  std::string key;  // what it is sorted by
  std::string code;
  std::string name;
  std::string programme;
};

void ShowSubject(const std::string& code, const std::string& name, const std::string& programme,
                 int row, Grid& grid) {
  grid.SetText(kCodeColumn, row, code);
  grid.SetText(kNameColumn, row, name);
  grid.SetText(kProgrammeColumn, row, programme);
}

}  // namespace

FrmAddSubjects::FrmAddSubjects(FormHost& host)
    : Form(host, "frmAddSubjects", "Maintain Subject list"),
      gridSubjectList(*this, "gridSubjectList", SubjectListDesign()) {
  // Digits and nothing else, the backspace key neither: a wrong digit is marked and typed over, or
  // goes with the delete key.
  txtSubjectCode.takes_key = [](char32_t key) { return key >= U'0' && key <= U'9'; };
  txtSubjectCode.on_key_down =
      txtSubjectName.on_key_down = [this] { cmdSaveSubject.BackColor = kYellow; };
  for (OptionButton& filter : optFilterSubjects) {
    filter.on_click = [this, &filter] {
      GetSubject(std::to_string(filter.index()));
      FilterChosen = filter.index();
    };
  }
  gridSubjectList.on_click = [this](int column, int row) {
    if (row == 0) SortBy(column);
  };
  txtSearch.Default = &cmdSubjects;
  cmdSubjects.on_click = [this] { Search(); };
  cmdSaveSubject.on_click = [this] { SaveSubject(); };
  cmdDone.on_click = [this] { this->host().Unload(*this); };
}

Layout FrmAddSubjects::Arrange() {
  std::vector<Layout> filters;
  for (OptionButton& filter : optFilterSubjects) filters.push_back(Place(filter));
  filters.push_back(Space());
  return ColumnOf(
      {FrameOf(Frame1, ColumnOf({FieldsOf({{Label1, txtSubjectName},
                                           {Label2, txtSubjectCode},
                                           {Label3, cboProgramme}}),
                                 RowOf({Space(), Place(cmdSaveSubject)})})),
       FrameOf(Frame2, ColumnOf({RowOf(std::move(filters)),
                                 RowOf({Place(Label4), Place(optSearch[0]), Place(optSearch[1]),
                                        Place(txtSearch, 1), Place(cmdSubjects)})})),
       FrameOf(Frame3, ColumnOf({Place(gridSubjectList), Place(Label5)}), 1),
       FootOf(RowOf({Space(), Place(cmdDone)}))});
}

void FrmAddSubjects::Form_Load() {
  for (const char* programme : kProgrammes) cboProgramme.AddItem(programme, 0);
  ResetSubjectList();
}

// ---- The list ----------------------------------------------------------------------------------

std::string FrmAddSubjects::TransformFilters(int index) {
  switch (index) {
    case 1:
      return "Report 191";
    case 2:
      return "NSC";
    case 3:
      return "NC(V)";
    case 4:
      return "Report 550";
    case kAllSubjects:
      return "ALL";
    default:
      return "";
  }
}

// Without a hit the list keeps its rows, empty.
void FrmAddSubjects::GetSubject(std::string_view code) {
  Trap(kListRoutine, [&] {
    gridSubjectList.ClearRange(kCodeColumn, 1, kProgrammeColumn, gridSubjectList.MaxRows());
    sorted_by_ = 0;
    gridSubjectList.SetChosenRow(0);
    survey().OpenDatabaseConnection();
    Recordset subjects;
    subjects.Open(StatementFor(ToWholeNumber(LeadingNumber(code))),
                  survey().DatabaseConnection.get());
    if (!subjects.Eof()) gridSubjectList.SetMaxRows(subjects.RecordCount());
    for (int row = 1; !subjects.Eof(); subjects.MoveNext(), ++row) {
      ShowSubject(subjects.Field("subjectCode").Text(), subjects.Field("description").Text(),
                  subjects.Field("programme").Text(), row, gridSubjectList);
    }
  });
}

std::string FrmAddSubjects::StatementFor(int code) const {
  const std::string subjects = "Select subjectCode,description,programme from lst_Subject ";
  switch (code) {
    case kAllSubjects:
      return subjects + "order by programme, description";
    case kSubjectsByCode:
      return subjects + "where subjectcode like  '" + SqlEscape(txtSearch.Text) + "%'";
    case kSubjectsByName:
      return subjects + "where description like  '%" + SqlEscape(txtSearch.Text) + "%'";
    default:
      return subjects + "where programme like  '" + TransformFilters(code) +
             "%' order by description";
  }
}

// Choosing the filter reads the list once more, where another one was chosen.
void FrmAddSubjects::ResetSubjectList() {
  GetSubject(std::to_string(kAllSubjects));
  optFilterSubjects.back().SetValue(true);
}

void FrmAddSubjects::Search() {
  if (optSearch[0].Value()) {
    GetSubject(std::to_string(kSubjectsByCode));
  } else if (optSearch[1].Value()) {
    GetSubject(std::to_string(kSubjectsByName));
  }
}

void FrmAddSubjects::SortBy(int column) {
  descending_ = sorted_by_ == column && !descending_;
  sorted_by_ = column;
  std::vector<ListedSubject> subjects;
  for (int row = 1; row <= gridSubjectList.MaxRows(); ++row) {
    subjects.push_back({gridSubjectList.GetText(column, row),
                        gridSubjectList.GetText(kCodeColumn, row),
                        gridSubjectList.GetText(kNameColumn, row),
                        gridSubjectList.GetText(kProgrammeColumn, row)});
  }
  std::ranges::stable_sort(
      subjects,
      [this](const std::string& left, const std::string& right) {
        return (descending_ ? CompareTexts(right, left) : CompareTexts(left, right)) < 0;
      },
      &ListedSubject::key);
  gridSubjectList.SetChosenRow(0);
  int row = 0;
  for (const auto& [key, code, name, programme] : subjects) {
    ShowSubject(code, name, programme, ++row, gridSubjectList);
  }
}

// ---- A new subject -----------------------------------------------------------------------------

// The details go and the list is read anew also where the subject was refused.
void FrmAddSubjects::SaveSubject() {
  cmdSaveSubject.BackColor = kButtonFace;
  if (txtSubjectName.Text.empty() || txtSubjectCode.Text.empty() || cboProgramme.Text().empty()) {
    boxes().UserMessage("Please complete all subject details before saving.");
    return;
  }
  CheckDuplicationBeforeSave();
  ResetSubjectList();
  ClearSubjectDetails();
}

void FrmAddSubjects::CheckDuplicationBeforeSave() {
  Trap(kAddRoutine, [this] {
    survey().OpenDatabaseConnection();
    const std::string code = SqlEscape(txtSubjectCode.Text);
    Recordset known;
    known.Open("Select subjectcode from lst_subject where subjectcode = '" + code + "'",
               survey().DatabaseConnection.get());
    if (!known.Eof()) {
      boxes().UserMessage("This subject code already exists and cannot be used again.");
      return;
    }
    survey().Execute("INSERT into lst_Subject(subjectcode,description,programme) VALUES('" + code +
                     "','" + SqlEscape(txtSubjectName.Text) + "','" + cboProgramme.Text() + "')");
  });
}

void FrmAddSubjects::ClearSubjectDetails() {
  txtSubjectName.Text.clear();
  txtSubjectCode.Text.clear();
  cboProgramme.SetListIndex(-1);
}

bool FrmAddSubjects::SubjectInLoad(double code) {
  Recordset load;
  load.Open("Select SubjectCode From tbl_SubjectLoad  where CollegeEmisNumber = " +
                NumberText(survey().CollegeEmisNumber),
            survey().DatabaseConnection.get());
  for (; !load.Eof(); load.MoveNext()) {
    if (load.Field("subjectCode").Is(code)) return true;
  }
  return false;
}

}  // namespace survey
