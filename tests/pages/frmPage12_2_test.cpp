#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;

constexpr char kPage[] = "frmPage12_2";
const std::string kInsert =
    "Insert into tbl_StudentPopulationGroupOcc(CollegeEmisNumber,CampusEmisnumber,"
    "OrganisingFieldCD,PopulationGroupCD,GenderCD,SurveyYear,Quantity)VALUES(101,202,";

class Page12_2 : public PageTest {
 protected:
  Page12_2() : PageTest(kPage, "gridPage12_1", 0) {}
};

TEST_F(Page12_2, StoresColumnByColumnUnderTheTablesCodesAndChecksBeforeTheSave) {
  Store(
      "Insert into tbl_StudentRegistration(CampusEmisnumber,ProgrammeRegistrationTypeCD,Quantity)"
      "VALUES(202,14,12)");
  survey.CloseDatabaseConnection();  // the page opens its own when it is activated
  Reopen();
  EXPECT_EQ(Cell(Table().ActiveColumn(), Table().ActiveRow()), Cell(4, 4));
  EXPECT_TRUE(Type(4, 15, "5") && Type(4, 4, "0") && Type(9, 13, "7"));
  EXPECT_FALSE(Type(9, 12, "10000") || Type(14, 4, "1") || Type(4, 16, "1"));
  EXPECT_EQ(At(14, 16), "12");
  EXPECT_EQ(Table().BackColor(14, 16), kRed);
  EXPECT_TRUE(Unsaved());
  statements.clear();
  Save();
  EXPECT_EQ(Table().BackColor(14, 16), kGreen);
  EXPECT_FALSE(Unsaved());
  EXPECT_THAT(statements, ElementsAre("Delete * from tbl_StudentPopulationGroupOcc" + kOfSite,
                                      kInsert + "1,1,1,2012,0)", kInsert + "12,1,1,2012,5)",
                                      kInsert + "10,3,2,2012,7)"));
  Store(kInsert + "10,9,9,2012,8)");  // no such group: where 7 went
  Reopen();
  EXPECT_EQ(Shown({{4, 4}, {4, 15}, {9, 13}}), "0|5|8");
}

TEST_F(Page12_2, AKeyOnTheSaveButtonSetsTheMark) {
  The<Button>(kPage, "cmdSave").KeyDown();
  EXPECT_TRUE(Unsaved());
}

}  // namespace
}  // namespace survey::testing
