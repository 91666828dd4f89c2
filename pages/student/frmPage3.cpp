#include "pages/student/frmPage3.h"

namespace survey {
namespace {

// clang-format off
const GridDesign& EnrolmentDesign() {
  static const GridDesign design = {
      .columns = 11,
      .rows = 30,
      .column_widths = {720, 3000, 800, 700, 914, 914, 914, 914, 914, 700, 800},
      .row_height = 330,
      .row_heights = {420, 480},
      .head_rows = 2,
      .label_columns = 3,
      .texts = {
          {1, 1, "2.5"},
          {2, 1, "Student registration per programme and examination block "},

          {3, 2, "Gender"},       {4, 2, "Year"},
          {5, 2, "Semester 1"},   {6, 2, "Semester 2"},
          {7, 2, "Trimester 1"},  {8, 2, "Trimester 2"},  {9, 2, "Trimester 3"},
          {10, 2, "Other"},       {11, 2, "Total"},

          {1, 3, "2.5.1"},    {2, 3, "REPORT 191 N1 Programmes\nENGINEERING"},
          {1, 5, "2.5.2"},    {2, 5, "REPORT 191 N2 Programmes\nENGINEERING"},
          {1, 7, "2.5.3"},    {2, 7, "REPORT 191 N3 Programmes\nENIGNEERING"},
          {1, 9, "2.5.4"},    {2, 9, "REPORT 191 N4 Programmes\n"},
          {1, 11, "2.5.5"},   {2, 11, "REPORT 191 N5 Programmes\n"},
          {1, 13, "2.5.6"},   {2, 13, "REPORT 191 N6 Programmes\n"},
          {1, 15, "2.5.7"},   {2, 15, "NC(V) Level 2 Programmes\n(state funded)"},
          {1, 17, "2.5.8"},   {2, 17, "NC(V) Level 3 Programmes\n(state funded)"},
          {1, 19, "2.5.9"},   {2, 19, "NC(V) Level 4 Programmes\n(state funded)"},
          {1, 21, "2.5.10"},  {2, 21, "Levels 5 and higher Programmes in partnership with HEI"},
          {1, 23, "2.5.11"},  {2, 23, "NSC (Grade 10 to 12)"},
          {1, 25, "2.5.12"},  {2, 25, "Occupational Qualifications"},
          {1, 27, "2.5.13"},  {2, 27, "Adult Education Training"},
          {1, 29, "2.5.14"},  {2, 29, "Other"},

          {3, 3, "Male"},   {3, 4, "Female"},   {3, 5, "Male"},   {3, 6, "Female"},
          {3, 7, "Male"},   {3, 8, "Female"},   {3, 9, "Male"},   {3, 10, "Female"},
          {3, 11, "Male"},  {3, 12, "Female"},  {3, 13, "Male"},  {3, 14, "Female"},
          {3, 15, "Male"},  {3, 16, "Female"},  {3, 17, "Male"},  {3, 18, "Female"},
          {3, 19, "Male"},  {3, 20, "Female"},  {3, 21, "Male"},  {3, 22, "Female"},
          {3, 23, "Male"},  {3, 24, "Female"},  {3, 25, "Male"},  {3, 26, "Female"},
          {3, 27, "Male"},  {3, 28, "Female"},  {3, 29, "Male"},  {3, 30, "Female"},
      },
      .rules = {
          {{4, 3, 11, 30}, Number(0, 99999), false},
          {{7, 3, 10, 8}, Number(0, 99999)},    // N1 to N3: trimesters and other
          {{5, 9, 10, 14}, Number(0, 99999)},   // N4 to N6: all but the year
          {{4, 15, 4, 24}, Number(0, 99999)},   // NC(V), level 5 and higher, NSC: the year
          {{4, 25, 10, 30}, Number(0, 99999)},  // the rest: any block
      },
      .totals = {
          {{11, 3, 11, 30}, {{4, 3, 10, 3}}},
      },
      .spans = {
          {2, 1, 11, 1},
          {1, 3, 1, 4},    {2, 3, 2, 4},    {1, 5, 1, 6},    {2, 5, 2, 6},
          {1, 7, 1, 8},    {2, 7, 2, 8},    {1, 9, 1, 10},   {2, 9, 2, 10},
          {1, 11, 1, 12},  {2, 11, 2, 12},  {1, 13, 1, 14},  {2, 13, 2, 14},
          {1, 15, 1, 16},  {2, 15, 2, 16},  {1, 17, 1, 18},  {2, 17, 2, 18},
          {1, 19, 1, 20},  {2, 19, 2, 20},  {1, 21, 1, 22},  {2, 21, 2, 22},
          {1, 23, 1, 24},  {2, 23, 2, 24},  {1, 25, 1, 26},  {2, 25, 2, 26},
          {1, 27, 1, 28},  {2, 27, 2, 28},  {1, 29, 1, 30},  {2, 29, 2, 30},
      },
      .title = "Table 2.5 Student registration per programme and examination block",
  };
  return design;
}

const CellTable& Registration() {
  static const CellTable table = {
      .select = "Select * from tbl_studentRegistration where collegeemisnumber = ",
      .remove = "Delete * from tbl_StudentRegistration where collegeemisnumber = ",
      .insert = "Insert into tbl_StudentRegistration",
      .body = {4, 3, 10, 30},
      .walk = Walk::kRowByRow,
      .rows = {
          .fields = {"programmeRegistrationtypeCD", "genderCd"},
          .positions = {  // the codes 7 and 8 are not in use
              {3, {1, 1}},    {4, {1, 2}},    {5, {2, 1}},    {6, {2, 2}},
              {7, {3, 1}},    {8, {3, 2}},    {9, {4, 1}},    {10, {4, 2}},
              {11, {5, 1}},   {12, {5, 2}},   {13, {6, 1}},   {14, {6, 2}},
              {15, {9, 1}},   {16, {9, 2}},   {17, {10, 1}},  {18, {10, 2}},
              {19, {11, 1}},  {20, {11, 2}},  {21, {12, 1}},  {22, {12, 2}},
              {23, {13, 1}},  {24, {13, 2}},  {25, {14, 1}},  {26, {14, 2}},
              {27, {15, 1}},  {28, {15, 2}},  {29, {16, 1}},  {30, {16, 2}},
          },
          .labels = {2, 3},
      },
      .columns = {.fields = {"programmedurationtypeCD"}, .offset = 3, .labels = {2}},
      .values = {
          {"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
          {"ProgrammeRegistrationTypeCD", RowCode(0)}, {"ProgrammeDurationTypeCD", ColumnCode()},
          {"GenderCD", RowCode(1)}, {"SurveyYear", kYear}, {"Quantity", kQuantity}},
  };
  return table;
}
// clang-format on

}  // namespace

const std::vector<KeptTable>& FrmPage3::Kept() {
  static const std::vector<KeptTable> tables = {
      {"2.5", "gridEnrolment", -1, &EnrolmentDesign(), &Registration()},
  };
  return tables;
}

FrmPage3::FrmPage3(FormHost& host, const PageRow& page)
    : SurveyPage(host, page), gridEnrolment(*this, "gridEnrolment", EnrolmentDesign()) {
  MarkChangesOf(gridEnrolment);
}

Layout FrmPage3::Body() { return Place(gridEnrolment); }

void FrmPage3::PlaceCursor() { gridEnrolment.SetActiveCell(7, 3); }

void FrmPage3::GetPage() { LoadCells(survey(), Registration(), gridEnrolment); }

void FrmPage3::SavePage() { SaveCells(survey(), Registration(), gridEnrolment); }

}  // namespace survey
