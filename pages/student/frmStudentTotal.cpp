#include "pages/student/frmStudentTotal.h"

namespace survey {
namespace {

constexpr Color kGrey = Rgb(221, 221, 221);

// clang-format off
const GridDesign& EnrolmentDesign() {
  static const GridDesign design = {
      .columns = 13,
      .rows = 4,
      .column_widths = {500, 1300, 830, 830, 830, 830, 830, 830, 830, 830, 830, 830, 1000},
      .row_heights = {500, 500, 330, 360},
      .head_rows = 3,
      .label_columns = 2,
      .texts = {
          {1, 1, "2.3"},
          {2, 1, "TOTAL Number of unique student enrolments at your college this year by "
                 "Programme and Gender"},
          {13, 1, "TOTAL"},

          {3, 2, "Report 191"},                   {3, 3, "Male"},   {4, 3, "Female"},
          {5, 2, "NC(V)"},                        {5, 3, "Male"},   {6, 3, "Female"},
          {7, 2, "NSC (Grade 10 - 12)"},          {7, 3, "Male"},   {8, 3, "Female"},
          {9, 2, "Occupational Qualifications"},  {9, 3, "Male"},   {10, 3, "Female"},
          {11, 2, "Other"},                       {11, 3, "Male"},  {12, 3, "Female"},

          {2, 4, "Students"},
      },
      .rules = {
          // Heads and labels are open, as everything but column 13 is.
          {.cells = {1, 1, 12, 3}, .kind = Text(255), .passed_over = true},
          {.cells = {1, 4, 2, 4}, .kind = Text(255), .passed_over = true},
          {{3, 4, 12, 4}, Number(0, 999999)},
          {{13, 4}, Number(0, 9999999), false},
      },
      .totals = {
          {{13, 4}, {{3, 4, 12, 4}}},
      },
      .spans = {
          {2, 1, 12, 1}, {13, 1, 13, 3},
          {3, 2, 4, 2}, {5, 2, 6, 2}, {7, 2, 8, 2}, {9, 2, 10, 2}, {11, 2, 12, 2},
      },
      .shades = {{{1, 1, 12, 3}, kGrey}, {{1, 4, 2, 4}, kGrey}},
      .locked_color = kGrey,
      .title = "Table 2.3 Number of unique student enrolments by programme and gender",
  };
  return design;
}

const GridDesign& AgreementsDesign() {
  static const GridDesign design = {
      .columns = 11,
      .rows = 7,
      .column_widths = {640, 3300, 800, 800, 800, 800, 800, 800, 800, 800, 900},
      .row_height = 330,
      .row_heights = {500, 500},
      .head_rows = 3,
      .label_columns = 2,
      .texts = {
          {1, 1, "2.4"},
          {2, 1, "Number of student enrolments at your college this year by Programme, Gender and "
                 "Type of Agreement"},

          {3, 2, "Report 191"},                   {3, 3, "Male"},  {4, 3, "Female"},
          {5, 2, "NC(V)"},                        {5, 3, "Male"},  {6, 3, "Female"},
          {7, 2, "Occupational Qualifications"},  {7, 3, "Male"},  {8, 3, "Female"},
          {9, 2, "Other"},                        {9, 3, "Male"},  {10, 3, "Female"},
          {11, 2, "TOTAL"},

          {1, 4, "2.4.1"},  {2, 4, "Students registered in learnerships"},
          {1, 5, "2.4.2"},  {2, 5, "Students registered in apprenticeships"},
          {1, 6, "2.4.3"},  {2, 6, "Students registered in artisan training"},
          {1, 7, "TOTAL"},
      },
      .rules = {
          {{3, 4, 10, 6}, Number(0, 99999)},
          {{11, 4, 11, 7}, Number(0, 9999999), false},
          {{3, 7, 10, 7}, Number(0, 9999999), false},
      },
      .totals = {
          {{3, 7, 10, 7}, {{3, 4, 3, 6}}},
          {{11, 4, 11, 7}, {{3, 4, 10, 4}}},
      },
      .spans = {
          {2, 1, 11, 1}, {11, 2, 11, 3}, {1, 7, 2, 7},
          {3, 2, 4, 2}, {5, 2, 6, 2}, {7, 2, 8, 2}, {9, 2, 10, 2},
      },
      .bold = {{1, 7}},
      .locked_color = kGrey,
      .title = "Table 2.4 Number of student enrolments by programme, gender and type of agreement",
  };
  return design;
}

const CellTable& Enrolment() {
  static const CellTable table = {
      .select = "Select * from tbl_studentEnrolment where collegeemisnumber = ",
      .remove = "Delete * from tbl_StudentEnrolment where collegeemisnumber = ",
      .insert = "Insert into tbl_StudentEnrolment",
      .body = {3, 4, 12, 4},
      .walk = Walk::kRowByRow,
      .rows = {.fields = {}, .offset = 4},
      .columns = {
          .fields = {"programmetypeCD", "genderCd"},
          .positions = {  // NSC, 4, stands before the occupational qualifications, 3
              {3, {1, 1}},   {4, {1, 2}},
              {5, {2, 1}},   {6, {2, 2}},
              {7, {4, 1}},   {8, {4, 2}},
              {9, {3, 1}},   {10, {3, 2}},
              {11, {5, 1}},  {12, {5, 2}},
          },
          .labels = {2, 3},
      },
      .values = {
          {"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
          {"ProgrammeTypeCD", ColumnCode(0)}, {"GenderCD", ColumnCode(1)}, {"SurveyYear", kYear},
          {"Quantity", kQuantity}},
  };
  return table;
}

const CellTable& Agreements() {
  static const CellTable table = {
      .select = "Select * from tbl_studentagreements where collegeemisnumber = ",
      .remove = "Delete * from tbl_StudentAgreements where collegeemisnumber = ",
      .insert = "Insert into tbl_StudentAgreements",
      .body = {3, 4, 10, 6},
      .walk = Walk::kRowByRow,
      .rows = {.fields = {"agreementtypecd"}, .offset = 3, .labels = {2}},
      .columns = {
          .fields = {"programmetypeCD", "genderCd"},
          .positions = {  // no NSC
              {3, {1, 1}},  {4, {1, 2}},
              {5, {2, 1}},  {6, {2, 2}},
              {7, {3, 1}},  {8, {3, 2}},
              {9, {5, 1}},  {10, {5, 2}},
          },
          .labels = {2, 3},
      },
      .values = {
          {"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
          {"ProgrammeTypeCD", ColumnCode(0)}, {"AgreementTypeCD", RowCode()},
          {"GenderCD", ColumnCode(1)}, {"SurveyYear", kYear}, {"Quantity", kQuantity}},
  };
  return table;
}
// clang-format on

}  // namespace

const std::vector<KeptTable>& FrmStudentTotal::Kept() {
  static const std::vector<KeptTable> tables = {
      {"2.3", "gridEnrolment", -1, &EnrolmentDesign(), &Enrolment()},
      {"2.4", "gridAgreements", -1, &AgreementsDesign(), &Agreements()},
  };
  return tables;
}

FrmStudentTotal::FrmStudentTotal(FormHost& host, const PageRow& page)
    : SurveyPage(host, page),
      Label4(*this, "Label4", "STUDENT TOTALS"),
      Label3(*this, "Label3",
             "For audit purposes, a college or campus must be able to provide the list of names "
             "and ID numbers of students to substantiate the number of students entered into "
             "Table 2.3 and Table 2.4"),
      Label2(*this, "Label2",
             "In Table 2.3 + 2.4 each student must be counted ONCE only even if they registered "
             "for more than one examination block or programme. The total of Table 3.1 must equal "
             "the physical number of students on the campus."),
      Label1(*this, "Label1",
             "No supplementary examination students should be counted on this survey."),
      gridEnrolment(*this, "gridEnrolment", EnrolmentDesign()),
      gridAgreements(*this, "gridAgreements", AgreementsDesign()) {
  Label4.Heading = true;
  MarkChangesOf(gridEnrolment);
  MarkChangesOf(gridAgreements);
}

void FrmStudentTotal::Form_Load() { Caption = survey().SurveyCaption(row().caption); }

Layout FrmStudentTotal::Body() {
  return ColumnOf({Place(Label4), Place(Label3), Place(Label2), Place(Label1), Place(gridEnrolment),
                   Place(gridAgreements)});
}

void FrmStudentTotal::PlaceCursor() { gridEnrolment.SetActiveCell(3, 4); }

void FrmStudentTotal::GetPage() {
  LoadCells(survey(), Enrolment(), gridEnrolment);
  LoadCells(survey(), Agreements(), gridAgreements);
}

void FrmStudentTotal::SavePage() {
  SaveCells(survey(), Enrolment(), gridEnrolment);
  SaveCells(survey(), Agreements(), gridAgreements);
}

}  // namespace survey
