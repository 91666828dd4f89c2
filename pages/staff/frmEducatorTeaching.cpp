#include "pages/staff/frmEducatorTeaching.h"

#include "base/text.h"
#include "records/codes.h"
#include "store/recordset.h"

namespace survey {
namespace {

constexpr int kTickRow = 3;
constexpr int kJanuary = 2;  // columns
constexpr int kDecember = 13;
constexpr int kColumnsBeforeMonths = kJanuary - 1;
constexpr char kTicked[] = "1";

// clang-format off
const GridDesign& MonthsDesign() {
  static const GridDesign design = {
      .columns = 13,
      .rows = 3,
      .column_widths = {800, 870, 870, 870, 870, 870, 870, 870, 870, 870, 870, 870, 870},
      .row_height = 350,
      .head_rows = 2,
      .label_columns = 1,
      .texts = {
          {1, 1, "4.29"},
          {2, 1, "Indicate each month or part thereof in which the lecturer was engaged in actual "
                 "teaching time this year"},

          {2, 2, "Jan"},   {3, 2, "Feb"},   {4, 2, "March"},  {5, 2, "April"},
          {6, 2, "May"},   {7, 2, "June"},  {8, 2, "July"},   {9, 2, "Aug"},
          {10, 2, "Sept"}, {11, 2, "Oct"},  {12, 2, "Nov"},   {13, 2, "Dec"},
      },
      .rules = {{{2, 3, 13, 3}, CheckBoxCell()}},
      .spans = {{2, 1, 13, 1}},
      .alignments = {{{2, 2, 13, 2}, Alignment::kCenter}},
      .bold = {{1, 1, 13, 1}},
      .title = "4.29 Months in which the lecturer taught",
  };
  return design;
}

const SubjectList& TeachingSubjects() {
  static const SubjectList list = WithLines({
      .design = {
          .columns = 6,
          .rows = 16,
          .column_widths = {700, 6600, 1300, 1350, 1350, 0},
          .row_height = 450,
          .row_heights = {1300},
          .head_rows = 1,
          .label_columns = 2,
          .texts = {
              {1, 1, "4.30"},
              {2, 1, "Indicate the subjects that the staff member is teaching in 2012 for Report "
                     "191, NC(V) and NSC (+ Report 550)\n"
                     "(a maximum of 15 subjects should be indicated)"},
              {3, 1, "Number of teaching hours per week"},
              {4, 1, "Number of years teaching experience in the subject"},
              {5, 1, "Number of years formal training for this subject"},
          },
          .rules = {{{3, 2, 5, 16}, Number(0, 9999999.99, 2)}},
          .bold = {{1, 1, 2, 1}},
          .title = "4.30 Subjects that the staff member is teaching",
      },
      .figures = {{"TeachingHours", 3}, {"TeachingExperience", 4}, {"TrainingYears", 5}},
      .code_column = 6,
      .select =
          "SELECT tbl_LecturerTeachingSubject.CollegeEmisNumber, "
          "tbl_LecturerTeachingSubject.CampusEmisNumber,  "
          "tbl_LecturerTeachingSubject.SurveyYear, tbl_LecturerTeachingSubject.IDnumber,  "
          "tbl_LecturerTeachingSubject.TeachingHours, tbl_LecturerTeachingSubject.SubjectCode,  "
          "tbl_LecturerTeachingSubject.TeachingExperience, "
          "tbl_LecturerTeachingSubject.TrainingYears,  "
          "lst_Subject.Description,lst_Subject.programme FROM lst_Subject  "
          "INNER JOIN tbl_LecturerTeachingSubject ON lst_Subject.SubjectCode = "
          "tbl_LecturerTeachingSubject.SubjectCode  Where collegeemisnumber = ",
      .remove = "Delete * from tbl_LecturerTeachingSubject  where collegeemisnumber = ",
      .insert = "Insert into tbl_LecturerTeachingSubject(CollegeEmisNumber,CampusEmisnumber,"
                "SurveyYear,IDnumber,SubjectCode,TeachingHours,TeachingExperience,TrainingYears)"
                "VALUES",
      .already_assigned =
          "The subject you have selected has already been assigned as a teaching subject.",
      .title = "4.30 Teaching Subjects in 2012 for Report 191, NC(V) and NSC ",
      .advice = {"Only 15 subjects can be selected"},
      .offers_report_550 = true,
      .add_button = "cmdSubject",
      .printing_routine = {"frmEducatorTraining", "Print Routine"},
  });
  return list;
}
// clang-format on

std::vector<Code> Months() {
  std::vector<Code> codes;
  for (int column = kJanuary; column <= kDecember; ++column) {
    codes.push_back({"tbl_LecturerContactMonth", "MonthCD", column - kColumnsBeforeMonths,
                     LabelOf(MonthsDesign(), {column, kTickRow - 1})});
  }
  return codes;
}

}  // namespace

const std::vector<KeptTable>& FrmEducatorTeaching::Kept() {
  static const std::vector<KeptTable> tables = {
      {.number = "4.29",
       .grid = "gridmonths",
       .design = &MonthsDesign(),
       .staff = StaffRecords{"tbl_LecturerContactMonth"},
       .codes = Months},
      {.number = "4.30",
       .grid = "gridSubjects",
       .design = &TeachingSubjects().design,
       .staff = StaffRecords{"tbl_LecturerTeachingSubject", kOfTheCatalogue}},
  };
  return tables;
}

FrmEducatorTeaching::FrmEducatorTeaching(FormHost& host, const PageRow& page)
    : SubjectPage(host, page, TeachingSubjects()), gridmonths(*this, "gridmonths", MonthsDesign()) {
  MarkChangesOf(gridmonths);
  gridmonths.on_check = [this](int, int) { MarkUnsaved(); };
}

Layout FrmEducatorTeaching::Body() { return ColumnOf({Place(gridmonths), SubjectPage::Body()}); }

void FrmEducatorTeaching::GetPage() {
  GetMonths();
  GetSubjects();
}

void FrmEducatorTeaching::SavePage() {
  SaveMonths();
  SaveSubjects();
}

void FrmEducatorTeaching::GetMonths() {
  Recordset months;
  months.Open(
      "Select * from tbl_LecturerContactMonth  where collegeemisnumber = " + OfThisStaffMember(),
      survey().DatabaseConnection.get());
  for (; !months.Eof(); months.MoveNext()) {
    const int column = ToWholeNumber(months.Field("MonthCD").Number() + kColumnsBeforeMonths);
    gridmonths.SetText(column, kTickRow, kTicked);
  }
}

void FrmEducatorTeaching::SaveMonths() {
  survey().Execute("Delete * from tbl_LecturerContactMonth  where collegeemisnumber = " +
                   OfThisStaffMember());
  for (int column = kJanuary; column <= kDecember; ++column) {
    if (gridmonths.GetText(column, kTickRow) != kTicked) continue;
    survey().Execute(
        "Insert into tbl_LecturerContactMonth(CollegeEmisNumber,CampusEmisnumber,SurveyYear,"
        "IDnumber,MonthCD)VALUES(" +
        KeyValues() + NumberText(column - kColumnsBeforeMonths) + ")");
  }
}

}  // namespace survey
