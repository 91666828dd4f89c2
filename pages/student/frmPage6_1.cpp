#include "pages/student/frmPage6_1.h"

#include <string>

#include "pages/student/population_groups.h"
#include "records/cell_table.h"

namespace survey {
namespace {

// clang-format off
GridDesign HeadcountDesign(const std::string& number, const std::string& title) {
  return {
      .columns = 14,
      .rows = 10,
      .column_widths = {300, 620, 2540, 700, 700, 700, 700, 700, 700, 700, 700, 700, 700, 840},
      .row_height = 270,
      .row_heights = {450},
      .head_rows = 3,
      .label_columns = 3,
      .texts = WithPopulationHeads({
          {2, 1, number},
          {3, 1, title},
          {3, 2, "Vocational fields"},
          {1, 4, "1"},  {2, 4, number + ".1"},  {3, 4, "Agriculture"},
          {1, 5, "2"},  {2, 5, number + ".2"},  {3, 5, "Art and Music"},
          {1, 6, "3"},  {2, 6, number + ".3"},  {3, 6, "Business Studies"},
          {1, 7, "4"},  {2, 7, number + ".4"},  {3, 7, "Educare and Social Services"},
          {1, 8, "5"},  {2, 8, number + ".5"},  {3, 8, "Engineering"},
          {1, 9, "6"},  {2, 9, number + ".6"},  {3, 9, "Utility Studies"},
          {2, 10, "TOTALS"},
      }),
      .rules = {
          {{4, 4, 13, 9}, Number(0, 9999)},
          {{14, 4, 14, 10}, Number(0, 99999), false},
          {{4, 10, 13, 10}, Number(0, 99999), false},
      },
      .totals = {
          {{14, 4, 14, 9}, {{4, 4, 13, 4}}},
          {{4, 10, 14, 10}, {{4, 4, 4, 9}}},
      },
      .spans = WithPopulationSpans({{3, 1, 14, 1}, {3, 2, 3, 3}, {2, 10, 3, 10}}),
      .bold = {{2, 10}},
      .title = "Table " + number + " " + title,
  };
}

const GridDesign& N4Design() {
  static const GridDesign design = HeadcountDesign(
      "3.5", "Headcount Student Enrolment in N4 REPORT 191 programmes by Population Group, Gender "
             "and Vocational Field ");
  return design;
}

const GridDesign& N5Design() {
  static const GridDesign design = HeadcountDesign(
      "3.6", "Student Registration in N5 REPORT 191 programmes by Population Group, Gender and "
             "Vocational Field ");
  return design;
}

const GridDesign& N6Design() {
  static const GridDesign design = HeadcountDesign(
      "3.7", "Headcount Student Enrolment in N6 REPORT 191 programmes by Population Group, Gender "
             "and Vocational Field ");
  return design;
}

// The records of N1 to N3 in the same table belong to another page.
const CellTable& Headcount() {
  static const CellTable table = {
      .select = "Select * from tbl_StudentPopulationGroup191 where collegeemisnumber = ",
      .remove = "Delete * from tbl_StudentPopulationGroup191 where collegeemisnumber = ",
      .insert = "Insert into tbl_StudentPopulationGroup191",
      .body = {4, 4, 13, 9},
      .walk = Walk::kColumnByColumn,
      .rows = {.fields = {"VocationalField191CD"}, .offset = 3, .labels = {3}},
      .columns = PopulationColumns(),
      .values = {
          {"CollegeEmisNumber", kCollege}, {"CampusEmisnumber", kCampus},
          {"ProgrammeRegistrationTypeCD", kCode}, {"VocationalField191CD", RowCode()},
          {"PopulationGroupCD", ColumnCode(0)}, {"GenderCD", ColumnCode(1)},
          {"SurveyYear", kYear}, {"Quantity", kQuantity}},
      .select_tail = " and programmeregistrationtypeCD = ",
      .remove_tail = " and programmeregistrationtypeCd = ",
  };
  return table;
}
// clang-format on

}  // namespace

const std::vector<KeptTable>& FrmPage6_1::Kept() {
  static const std::vector<KeptTable> tables = {
      {"3.5", "gridPage6_2", 1, &N4Design(), &Headcount(), 4},
      {"3.6", "gridPage6_2", 0, &N5Design(), &Headcount(), 5},
      {"3.7", "grid191", 0, &N6Design(), &Headcount(), 6},
  };
  return tables;
}

FrmPage6_1::FrmPage6_1(FormHost& host, const PageRow& page)
    : SurveyPage(host, page),
      gridPage6_2{{{*this, "gridPage6_2", N5Design(), 0}, {*this, "gridPage6_2", N4Design(), 1}}},
      grid191(*this, "grid191", N6Design(), 0),
      tables_{{{4, gridPage6_2[1]}, {5, gridPage6_2[0]}, {6, grid191}}},
      control_totals_(*this, "Label3") {
  for (GridControl& grid : gridPage6_2) MarkChangesOf(grid);
}

Layout FrmPage6_1::Body() {
  return ColumnOf(
      {control_totals_.Arrange(), Place(gridPage6_2[1]), Place(gridPage6_2[0]), Place(grid191)});
}

void FrmPage6_1::PlaceCursor() { gridPage6_2[1].SetActiveCell(4, 4); }

void FrmPage6_1::GetPage() {
  control_totals_.Fill();
  for (const Table& table : tables_) LoadCells(survey(), Headcount(), table.grid, table.code);
  control_totals_.Check();
}

void FrmPage6_1::SavePage() {
  control_totals_.Check();
  for (const Table& table : tables_) SaveCells(survey(), Headcount(), table.grid, table.code);
}

}  // namespace survey
