#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr char kInsert[] =
    "Insert into tbl_SNEStudentEnrolment(CollegeEmisNumber,CampusEmisnumber,ProgrammeTypeCD,"
    "DisabilityCD,GenderCD,SurveyYear,Quantity)VALUES(101,202,";

struct SpecialNeeds : PageTest {
  SpecialNeeds() : PageTest("frmPage14", "gridPage9_1") {}
};

TEST_F(SpecialNeeds, HeadsCoverWhatAnotherTableLeft) {
  EXPECT_EQ(At(3, 1), "Headcount Student Enrolment in NC (V) Level 2 Programmes by ");
  EXPECT_EQ(Table().SpanOf(3, 1), CellRange(2, 1, 13, 1));
  for (int column = 2; column <= 12; column += 2) {
    EXPECT_EQ(Table().SpanOf(column + 1, 2), CellRange(column, 2, column + 1, 2));
  }
}

TEST_F(SpecialNeeds, SavesColumnByColumnFractionsButNoZeros) {
  for (int column = 2; column <= 11; ++column) {
    EXPECT_TRUE(Type(column, 2 + column, std::to_string(column)));
  }
  Fill(Table(), {{2, 19, "2.5"}, {10, 19, "0.25"}, {3, 19, "0"}});
  EXPECT_FALSE(Type(4, 19, "10000000") || Type(4, 19, "1.255"));
  EXPECT_EQ(Shown({{12, 19}, {2, 20}, {12, 20}, {13, 19}, {13, 20}}), "2.75|4.5|32.75|0|35");
  statements.clear();
  Save();
  EXPECT_THAT(StatementsWithout(kInsert),
              ElementsAre("Delete * from tbl_SNEStudentEnrolment" + kOfSite, "1,1,1,2012,2)",
                          "1,16,1,2012,2.5)", "1,2,2,2012,3)", "2,3,1,2012,4)", "2,4,2,2012,5)",
                          "4,5,1,2012,6)", "4,6,2,2012,7)", "3,7,1,2012,8)", "3,8,2,2012,9)",
                          "5,9,1,2012,10)", "5,16,1,2012,0.25)", "5,10,2,2012,11)"));
}

TEST_F(SpecialNeeds, TwoTotalsAreOpenButNotStored) {
  ExpectOpen({{2, 4, 11, 19}, {12, 14, 13, 14}});
  Type(2, 14, "3");
  EXPECT_TRUE(Type(12, 14, "70"));
  EXPECT_EQ(At(12, 20), "70");
  Save();
  Reopen();
  EXPECT_EQ(At(12, 14), "3");
  EXPECT_EQ(Query("select Quantity as r from tbl_SNEStudentEnrolment").size(), 1u);
}

TEST_F(SpecialNeeds, UnknownProgrammesGoWhereTheRecordBeforeWent) {
  StoreAll(kInsert, {"3,1,1,2012,1", "6,2,1,2012,2", "5,3,0,2012,3", "4,4,1,2012,4"});
  Reopen();
  EXPECT_EQ(Shown({{8, 4}, {8, 5}, {8, 6}, {6, 7}}), "1|2|3|4");
}

TEST_F(SpecialNeeds, WorksOnTheConnectionThatStandsOpen) {
  survey.DatabasePath = (folder.path() / "missing.mdb").string();
  Reopen();
  EXPECT_THAT(dialogs.seen, IsEmpty());
}

}  // namespace
}  // namespace survey::testing
