#include "pages/student/frmPage14.h"

namespace survey {
namespace {

// clang-format off
const GridDesign& SpecialNeedsDesign() {
  static const GridDesign design = {
      .columns = 13,
      .rows = 20,
      .column_widths = {2500, 700, 700, 700, 700, 700, 700, 700, 700, 700, 700, 900, 900},
      .row_height = 330,
      .row_heights = {330, 450, 300, 330, 330, 330, 330, 330, 330, 330, 330, 330, 450, 450},
      .head_rows = 3,
      .label_columns = 1,
      .texts = {
          {1, 1, "3.18"},
          {2, 1, "Number of Special Needs Education (SNE) students according to PRIMARY disability"},
          {3, 1, "Headcount Student Enrolment in NC (V) Level 2 Programmes by "},

          // The texts under the second column of each programme are of another table; the heads
          // cover them.
          {1, 2, "Disability"},
          {2, 2, "Report 191"},
          {3, 2, "DRAWING OFFICE PRACTICE"},
          {4, 2, "NC(V)"},
          {5, 2, "Electrical Infrastructure and Construction "},
          {6, 2, "NSC (Grade 10 to 12)"},
          {7, 2, "Finance, Economics and Accounting"},
          {8, 2, "Occupational Qualifications"},
          {9, 2, "Information Technology and Computer Science"},
          {10, 2, "Other"},
          {11, 2, "Marketing"},
          {12, 2, "TOTAL"},
          {13, 2, "Office Administration"},

          {2, 3, "Male "},    {3, 3, "Female"},     {4, 3, "Male "},    {5, 3, "Female"},
          {6, 3, "Male "},    {7, 3, "Female"},     {8, 3, "Male "},    {9, 3, "Female"},
          {10, 3, "Male "},   {11, 3, "Female"},    {12, 3, "Male "},   {13, 3, "Female"},

          {1, 4, "Attention deficit disorder"},
          {1, 5, "Autistic spectrum disorders"},
          {1, 6, "Behavioural/conduct disorder"},
          {1, 7, "Blindness"},
          {1, 8, "Cerebral palsy"},
          {1, 9, "Deafness"},
          {1, 10, "Deaf-blindness"},
          {1, 11, "Epilepsy"},
          {1, 12, "Hard of hearing"},
          {1, 13, "Mild to moderate intellectual disability"},
          {1, 14, "Moderate to severe intellectual disability"},
          {1, 15, "Partial sightedness / Low vision"},
          {1, 16, "Physical disability"},
          {1, 17, "Severely intellectually disabled"},
          {1, 18, "Specific learning disability"},
          {1, 19, "Psychiatric disorder"},
          {1, 20, "TOTALS"},
      },
      .rules = {
          {{2, 4, 13, 20}, Number(0, 9999999.99, 2), false},
          {{2, 4, 11, 19}, Number(0, 9999999.99, 2)},
          {{12, 14, 13, 14}, Number(0, 9999999.99, 2)},  // totals, yet open
      },
      .totals = {
          {{12, 4, 12, 19}, {{2, 4}, {4, 4}, {6, 4}, {8, 4}, {10, 4}}},
          {{13, 4, 13, 19}, {{3, 4}, {5, 4}, {7, 4}, {9, 4}, {11, 4}}},
          {{2, 20, 13, 20}, {{2, 4, 2, 19}}},
      },
      .spans = {
          {2, 1, 13, 1},  {1, 2, 1, 3},
          {2, 2, 3, 2},   {4, 2, 5, 2},    {6, 2, 7, 2},
          {8, 2, 9, 2},   {10, 2, 11, 2},  {12, 2, 13, 2},
      },
      .bold = {{1, 20}},
      .title = "Table 3.18 Number of Special Needs Education (SNE) students according to PRIMARY "
               "disability",
  };
  return design;
}

const CellTable& SpecialNeeds() {
  static const CellTable table = {
      .select = "Select * from tbl_SNEStudentEnrolment where collegeemisnumber = ",
      .remove = "Delete * from tbl_SNEStudentEnrolment where collegeemisnumber = ",
      .insert = "Insert into tbl_SNEStudentEnrolment",
      .body = {2, 4, 11, 19},
      .walk = Walk::kColumnByColumn,
      .rows = {.fields = {"disabilityCD"}, .offset = 3, .labels = {1}},
      .columns = {
          .fields = {"programmetypecd", "gendercd"},
          .positions = {
              {2, {1, 1}},   {3, {1, 2}},   // Report 191
              {4, {2, 1}},   {5, {2, 2}},   // NC(V)
              {6, {4, 1}},   {7, {4, 2}},   // NSC
              {8, {3, 1}},   {9, {3, 2}},   // occupational
              {10, {5, 1}},  {11, {5, 2}},  // other
          },
          .labels = {2, 3},
      },
      .values = {
          {"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
          {"ProgrammeTypeCD", ColumnCode(0)}, {"DisabilityCD", RowCode()},
          {"GenderCD", ColumnCode(1)}, {"SurveyYear", kYear}, {"Quantity", kQuantity}},
      .filled = Filled::kNotZero,
  };
  return table;
}
// clang-format on

}  // namespace

const std::vector<KeptTable>& FrmPage14::Kept() {
  static const std::vector<KeptTable> tables = {
      {"3.18", "gridPage9_1", -1, &SpecialNeedsDesign(), &SpecialNeeds()},
  };
  return tables;
}

FrmPage14::FrmPage14(FormHost& host, const PageRow& page)
    : SurveyPage(host, page), gridPage9_1(*this, "gridPage9_1", SpecialNeedsDesign()) {
  MarkChangesOf(gridPage9_1);
}

void FrmPage14::Form_Load() { Caption = survey().SurveyCaption(row().caption); }

Layout FrmPage14::Body() { return Place(gridPage9_1); }

void FrmPage14::PlaceCursor() { gridPage9_1.SetActiveCell(2, 4); }

void FrmPage14::GetPage() { LoadCells(survey(), SpecialNeeds(), gridPage9_1); }

void FrmPage14::SavePage() { SaveCells(survey(), SpecialNeeds(), gridPage9_1); }

}  // namespace survey
