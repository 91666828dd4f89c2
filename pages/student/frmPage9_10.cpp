#include "pages/student/frmPage9_10.h"

namespace survey {
namespace {

// The age of a row is its number and 12; the year beside it is a text, and not the one that the
// table by gender shows for the same age.
// clang-format off
const GridDesign& AgeDesign() {
  static const GridDesign design = {
      .columns = 22,
      .rows = 29,
      .column_widths = {760,
                        710, 710, 710, 710, 710, 710, 710, 710, 710, 710,
                        710, 710, 710, 710, 710, 710, 710, 710, 710, 900,
                        760},
      .row_height = 290,
      .row_heights = {330, 2150},
      .head_rows = 2,
      .label_columns = 1,
      .texts = {
          {1, 1, "3.16"},
          {2, 1, "Student Registration by Year of Birth in NC(V) Level 2 Programmes "
                 "(Only NC(V) Level 2 students to be counted in this table)"},

          {1, 2, "Year of Birth"},
          {2, 2, "Civil Engineering and Building Construction"},
          {3, 2, "Drawing Office Practice"},
          {4, 2, "Education and development"},
          {5, 2, "Electrical Infrastructure and Construction "},
          {6, 2, "Engineering and Related Design"},
          {7, 2, "Finance, Economics and Accounting"},
          {8, 2, "Hospitality"},
          {9, 2, "Information Technology and Computer Science"},
          {10, 2, "Management"},
          {11, 2, "Marketing"},
          {12, 2, "Mechatronics"},
          {13, 2, "Office Administration"},
          {14, 2, "Primary Agriculture"},
          {15, 2, "Process Instrumentation"},
          {16, 2, "Process Plant Operations"},
          {17, 2, "Safety and Society"},
          {18, 2, "Tourism "},
          {19, 2, "Transport and Logistics"},
          {20, 2, "Primary Health"},
          {21, 2, "TOTAL"},
          {22, 2, "Age in years"},

          {1, 3, "1997"},     {22, 3, "15"},          {1, 4, "1996"},     {22, 4, "16"},
          {1, 5, "1995"},     {22, 5, "17"},          {1, 6, "1994"},     {22, 6, "18"},
          {1, 7, "1993"},     {22, 7, "19"},          {1, 8, "1992"},     {22, 8, "20"},
          {1, 9, "1991"},     {22, 9, "21"},          {1, 10, "1990"},    {22, 10, "22"},
          {1, 11, "1989"},    {22, 11, "23"},         {1, 12, "1988"},    {22, 12, "24"},
          {1, 13, "1987"},    {22, 13, "25"},         {1, 14, "1986"},    {22, 14, "26"},
          {1, 15, "1985"},    {22, 15, "27"},         {1, 16, "1984"},    {22, 16, "28"},
          {1, 17, "1983"},    {22, 17, "29"},         {1, 18, "1982"},    {22, 18, "30"},
          {1, 19, "1981"},    {22, 19, "31"},         {1, 20, "1980"},    {22, 20, "32"},
          {1, 21, "1979"},    {22, 21, "33"},         {1, 22, "1978"},    {22, 22, "34"},
          {1, 23, "1977"},    {22, 23, "35"},         {1, 24, "1976"},    {22, 24, "36"},
          {1, 25, "1975"},    {22, 25, "37"},         {1, 26, "1974"},    {22, 26, "38"},
          {1, 27, "1973"},    {22, 27, "39"},         {1, 28, "1972"},    {22, 28, ">/=40"},
          {1, 29, "TOTALS"},  {22, 29, "TOTALS"},
      },
      .rules = {
          {{2, 3, 21, 29}, Number(0, 9999999.99), false},
          {{2, 3, 20, 28}, Number(0, 9999999.99)},
      },
      .totals = {
          {{2, 29, 20, 29}, {{2, 3, 2, 28}}},
          {{21, 3, 21, 29}, {{2, 3, 20, 3}}},
      },
      .spans = {{2, 1, 22, 1}},
      .alignments = {{{2, 2, 20, 2}, Alignment::kLeft}, {{22, 3, 22, 29}, Alignment::kRight}},
      .bold = {{1, 29}, {22, 29}},
      .upright = {{2, 2, 20, 2}},
      .title = "Table 3.16 Student Registration by Year of Birth in NC(V) Level 2 Programmes",
  };
  return design;
}

const CellTable& AgeRecords() {
  static const CellTable table = {
      .select = "Select * from tbl_StudentAgeLevel2 where collegeemisnumber = ",
      .remove = "Delete * from tbl_StudentAgeLevel2 where collegeemisnumber = ",
      .insert = "Insert into tbl_StudentAgeLevel2",
      .body = {2, 3, 20, 28},
      .walk = Walk::kColumnByColumn,
      .rows = {.fields = {"age"}, .offset = -12, .labels = {22}},
      .columns = {.fields = {"programmeNCVCD"}, .offset = 1, .labels = {2}},
      .values = {
          {"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
          {"ProgrammeNCVCD", ColumnCode()}, {"Age", RowCode()}, {"SurveyYear", kYear},
          {"Quantity", kQuantity}},
  };
  return table;
}
// clang-format on

}  // namespace

const std::vector<KeptTable>& FrmPage9_10::Kept() {
  static const std::vector<KeptTable> tables = {
      {"3.16", "gridPage9_1", -1, &AgeDesign(), &AgeRecords()},
  };
  return tables;
}

FrmPage9_10::FrmPage9_10(FormHost& host, const PageRow& page)
    : YearOfBirthPage(host, page, {AgeDesign(), AgeRecords(), {2, 3, 20, 28}}) {}

}  // namespace survey
