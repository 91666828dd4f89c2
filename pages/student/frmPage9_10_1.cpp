#include "pages/student/frmPage9_10_1.h"

namespace survey {
namespace {

// The age of a row is its number and 11; the year beside it is a text, and not the one that the
// table by programme shows for the same age.
// clang-format off
const GridDesign& AgeDesign() {
  static const GridDesign design = {
      .columns = 16,
      .rows = 30,
      .column_widths = {720, 670, 670, 670, 670, 670, 670, 670, 670, 670, 670, 670, 670,
                        910, 910, 720},
      .row_height = 300,
      .row_heights = {330, 630, 300},
      .head_rows = 3,
      .label_columns = 1,
      .texts = {
          {1, 1, "3.17"},
          {2, 1, "Student Registration by Programme, Gender and Year of Birth  "},

          {1, 2, "Year of Birth"},
          {2, 2, "Report 191\n(N1 - N3)"},          {4, 2, "Report 191\n(N4 - N6)"},
          {6, 2, "NC(V)"},                          {8, 2, "NSC (Grade 10 to 12)"},
          {10, 2, "Occupational Qualification"},    {12, 2, "Other\n(all other programmes)"},
          {14, 2, "TOTAL"},
          {16, 2, "Age in years"},

          {2, 3, "Male "},    {3, 3, "Female"},     {4, 3, "Male "},    {5, 3, "Female"},
          {6, 3, "Male "},    {7, 3, "Female"},     {8, 3, "Male "},    {9, 3, "Female"},
          {10, 3, "Male "},   {11, 3, "Female"},    {12, 3, "Male "},   {13, 3, "Female"},
          {14, 3, "Male "},   {15, 3, "Female"},

          {1, 4, "1996"},     {16, 4, "15"},          {1, 5, "1995"},     {16, 5, "16"},
          {1, 6, "1994"},     {16, 6, "17"},          {1, 7, "1993"},     {16, 7, "18"},
          {1, 8, "1992"},     {16, 8, "19"},          {1, 9, "1991"},     {16, 9, "20"},
          {1, 10, "1990"},    {16, 10, "21"},         {1, 11, "1989"},    {16, 11, "22"},
          {1, 12, "1988"},    {16, 12, "23"},         {1, 13, "1987"},    {16, 13, "24"},
          {1, 14, "1986"},    {16, 14, "25"},         {1, 15, "1985"},    {16, 15, "26"},
          {1, 16, "1984"},    {16, 16, "27"},         {1, 17, "1983"},    {16, 17, "28"},
          {1, 18, "1982"},    {16, 18, "29"},         {1, 19, "1981"},    {16, 19, "30"},
          {1, 20, "1980"},    {16, 20, "31"},         {1, 21, "1979"},    {16, 21, "32"},
          {1, 22, "1978"},    {16, 22, "33"},         {1, 23, "1977"},    {16, 23, "34"},
          {1, 24, "1976"},    {16, 24, "35"},         {1, 25, "1975"},    {16, 25, "36"},
          {1, 26, "1974"},    {16, 26, "37"},         {1, 27, "1973"},    {16, 27, "38"},
          {1, 28, "1972"},    {16, 28, "39"},         {1, 29, "1971"},    {16, 29, ">/=40"},
          {1, 30, "TOTALS"},  {16, 30, "TOTALS"},
      },
      .rules = {
          {{2, 4, 15, 30}, Number(0, 9999999.99), false},
          {{2, 4, 13, 29}, Number(0, 9999999.99)},
      },
      .totals = {
          {{2, 30, 13, 30}, {{2, 4, 2, 29}}},
          {{14, 4, 14, 30}, {{2, 4}, {4, 4}, {6, 4}, {8, 4}, {10, 4}, {12, 4}}},
          {{15, 4, 15, 30}, {{3, 4}, {5, 4}, {7, 4}, {9, 4}, {11, 4}, {13, 4}}},
      },
      .spans = {
          {2, 1, 16, 1},  {1, 2, 1, 3},  {16, 2, 16, 3},
          {2, 2, 3, 2},   {4, 2, 5, 2},  {6, 2, 7, 2},  {8, 2, 9, 2},  {10, 2, 11, 2},
          {12, 2, 13, 2}, {14, 2, 15, 2},
      },
      .alignments = {{{16, 4, 16, 30}, Alignment::kRight}},
      .bold = {{1, 30}, {16, 30}},
      .title = "Table 3.17 Student Registration by Programme, Gender and Year of Birth",
  };
  return design;
}

const CellTable& AgeRecords() {
  static const CellTable table = {
      .select = "Select * from tbl_StudentAgeEnrolment where collegeemisnumber = ",
      .remove = "Delete * from tbl_StudentAgeEnrolment where collegeemisnumber = ",
      .insert = "Insert into tbl_StudentAgeEnrolment",
      .body = {2, 4, 13, 29},
      .walk = Walk::kColumnByColumn,
      .rows = {.fields = {"age"}, .offset = -11, .labels = {16}},
      .columns = {
          .fields = {"programmetypecd", "gendercd"},
          .positions = {  // the code 1, all of Report 191, is split in two here
              {2, {6, 1}},   {3, {6, 2}},     // Report 191, N1 to N3
              {4, {7, 1}},   {5, {7, 2}},     // Report 191, N4 to N6
              {6, {2, 1}},   {7, {2, 2}},     // NC(V)
              {8, {4, 1}},   {9, {4, 2}},     // NSC
              {10, {3, 1}},  {11, {3, 2}},    // occupational
              {12, {5, 1}},  {13, {5, 2}},    // other
          },
          .labels = {2, 3},
      },
      .values = {
          {"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
          {"ProgrammeTypeCD", ColumnCode(0)}, {"Age", RowCode()}, {"GenderCD", ColumnCode(1)},
          {"SurveyYear", kYear}, {"Quantity", kQuantity}},
  };
  return table;
}
// clang-format on

}  // namespace

const std::vector<KeptTable>& FrmPage9_10_1::Kept() {
  static const std::vector<KeptTable> tables = {
      {"3.17", "gridPage9_1", -1, &AgeDesign(), &AgeRecords()},
  };
  return tables;
}

// The highlight leaves out the last programme, "Other", as it always has.
FrmPage9_10_1::FrmPage9_10_1(FormHost& host, const PageRow& page)
    : YearOfBirthPage(host, page, {AgeDesign(), AgeRecords(), {2, 4, 11, 29}}) {}

}  // namespace survey
