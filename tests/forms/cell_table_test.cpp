#include "forms/cell_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "world.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;

const GridDesign kDesign = {.columns = 6,
                            .rows = 8,
                            .column_widths = {500, 500, 500, 500, 500, 500},
                            .rules = {{{1, 1, 6, 8}, Number(0, 99999)}}};

// Rows by offset, columns by a pair of codes, a code passed by the page, walked by columns.
CellTable PopulationTable() {
  return {
      .select = "Select * from tbl_StudentPopulationGroupNCV where collegeemisnumber = ",
      .remove = "Delete * from tbl_StudentPopulationGroupNCV where collegeemisnumber = ",
      .insert =
          "Insert into tbl_StudentPopulationGroupNCV(CollegeEmisNumber,CampusEmisnumber,"
          "ProgrammeRegistrationTypeCD,programmeNCVCD,PopulationGroupCD,GenderCD,SurveyYear,"
          "Quantity)VALUES",
      .body = {4, 4, 5, 6},
      .walk = Walk::kColumnByColumn,
      .rows = {.fields = {"programmeNCVCD"}, .offset = 3},
      .columns = {.fields = {"populationgroupcd", "gendercd"},
                  .positions = {{4, {1, 1}}, {5, {1, 2}}}},
      .values = {kCollege, kCampus, kCode, RowCode(), ColumnCode(0), ColumnCode(1), kYear,
                 kQuantity},
      .select_tail = " and programmeregistrationtypeCD = ",
      .remove_tail = " and programmeregistrationtypeCd = ",
  };
}

class Cells : public World, public ::testing::Test {
 protected:
  Cells() { OpenSite(101, 202); }
  Grid grid{kDesign};
};

TEST_F(Cells, AreStoredColumnByColumnUnderThePagesCode) {
  grid.SetText(4, 4, 7);
  grid.SetText(5, 4, "0");
  grid.SetText(4, 6, "12.50");
  grid.SetText(6, 4, 99);  // outside the body
  SaveCells(survey, PopulationTable(), grid, 9);
  EXPECT_THAT(
      statements,
      ElementsAre(
          "Delete * from tbl_StudentPopulationGroupNCV where collegeemisnumber = 101 and "
          "campusemisnumber = 202 and surveyyear = 2012 and programmeregistrationtypeCd = 9",
          PopulationTable().insert + "(101,202,9,1,1,1,2012,7)",
          PopulationTable().insert + "(101,202,9,3,1,1,2012,12.5)",
          PopulationTable().insert + "(101,202,9,1,1,2,2012,0)"));
}

TEST_F(Cells, ZeroIsNoEntryWhereTheTableSaysSo) {
  CellTable table = PopulationTable();
  table.filled = Filled::kNotZero;
  table.values[3] = Constant(5);
  grid.SetText(4, 4, "0");
  grid.SetText(5, 4, "3");
  InsertRecords(survey, table, grid, 9);
  EXPECT_THAT(statements, ElementsAre(table.insert + "(101,202,9,5,1,2,2012,3)"));
}

TEST_F(Cells, ARecordOfUnknownCodesGoesWhereTheOneBeforeWent) {
  for (const char* row :
       {"1,1,1,2012,10", "2,9,9,2012,20", "2,1,2,2012,null", "17,1,1,2012,5", "1,1,2,2011,8"}) {
    survey.Execute(PopulationTable().insert + "(101,202,9," + row + ")");
  }
  grid.SetText(5, 5, "old");
  LoadCells(survey, PopulationTable(), grid, 9);
  EXPECT_EQ(grid.GetText(4, 4), "10");
  EXPECT_EQ(grid.GetText(4, 5), "20");  // the column of the record before, its own row
  EXPECT_EQ(grid.GetText(5, 5), "");    // a null is an empty cell
  EXPECT_EQ(grid.GetText(5, 4), "");    // another year's
  LoadCells(survey, PopulationTable(), grid, 10);
  EXPECT_EQ(grid.GetText(4, 4), "10");  // nothing of that code, nothing cleared
}

TEST_F(Cells, ANullCodeIsNotZero) {
  survey.Execute(PopulationTable().insert + "(101,202,9,null,1,1,2012,10)");
  EXPECT_THROW(LoadCells(survey, PopulationTable(), grid, 9), RunTimeError);
}

}  // namespace
}  // namespace survey::testing
