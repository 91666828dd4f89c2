#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kInsert =
    "Insert into tbl_StudentRegistration(CollegeEmisNumber,CampusEmisnumber,"
    "ProgrammeRegistrationTypeCD,ProgrammeDurationTypeCD,GenderCD,SurveyYear,Quantity)VALUES(";
// All that is stored, in the order of storing.
constexpr char kRows[] =
    "select ProgrammeRegistrationTypeCD || ',' || ProgrammeDurationTypeCD || ',' || GenderCD || "
    "',' || SurveyYear || ',' || Quantity as r from tbl_StudentRegistration";

struct Page3 : PageTest {
  Page3() : PageTest("frmPage3", "gridEnrolment") {}
};

TEST_F(Page3, OpensTheCellsOfEachProgramme) {
  EXPECT_EQ(host.Front()->Caption, " Corvale ANNUAL Survey -  Emis Number : 202");
  EXPECT_EQ(Cell(Table().ActiveColumn(), Table().ActiveRow()), Cell(7, 3));
  EXPECT_EQ(At(2, 7) + At(2, 9), "REPORT 191 N3 Programmes\nENIGNEERINGREPORT 191 N4 Programmes\n");
  // Of the columns year, two semesters, three trimesters, other.
  const char* const open[] = {"___oooo", "___oooo", "___oooo", "_oooooo", "_oooooo",
                              "_oooooo", "o______", "o______", "o______", "o______",
                              "o______", "ooooooo", "ooooooo", "ooooooo"};
  for (int row = 3; row <= 30; ++row) {
    EXPECT_EQ(OpenIn(row, 4, 11), open[(row - 3) / 2] + std::string("_")) << "row " << row;
  }
  EXPECT_EQ(Table().BackColor(4, 3), Rgb(223, 223, 223));
  EXPECT_EQ(Table().BackColor(7, 3), kWhite);
}

TEST_F(Page3, TotalsFollowAndLimitsHold) {
  EXPECT_FALSE(Unsaved());
  Fill(Table(), {{7, 3, "99999"}, {8, 3, "99999"}});
  EXPECT_TRUE(Unsaved());
  for (const char* refused : {"100000", "-1", "1.5"}) EXPECT_FALSE(Type(9, 3, refused));
  EXPECT_EQ(Shown({{11, 3}, {11, 4}}), "199998|");
}

TEST_F(Page3, SavesRowByRowEachProgrammeBlockAndGenderUnderItsCodes) {
  for (const auto& [column, row] : {Cell{9, 30},
                                    {8, 3},
                                    {7, 3},
                                    {8, 6},
                                    {10, 8},
                                    {5, 9},
                                    {6, 14},
                                    {4, 15},
                                    {4, 20},
                                    {4, 22},
                                    {4, 23}}) {
    EXPECT_TRUE(Type(column, row, std::to_string(column * 100 + row)));
  }
  Type(4, 29, "0");
  statements.clear();
  Save();
  EXPECT_FALSE(Unsaved());
  EXPECT_THAT(
      StatementsWithout(kInsert + "101,202,"),
      ElementsAre("Delete * from tbl_StudentRegistration" + kOfSite, "1,4,1,2012,703)",
                  "1,5,1,2012,803)", "2,5,2,2012,806)", "3,7,2,2012,1008)", "4,2,1,2012,509)",
                  "6,3,2,2012,614)", "9,1,1,2012,415)", "11,1,2,2012,420)", "12,1,2,2012,422)",
                  "13,1,1,2012,423)", "16,1,1,2012,0)", "16,6,2,2012,930)"));
}

TEST_F(Page3, RecordsOfNoRowGoWhereTheOneBeforeWent) {
  // The first is in no row at all, the last in a locked cell of row 5.
  StoreAll(kInsert + "101,202,",
           {"7,4,1,2012,111", "2,4,1,2012,222", "8,1,1,2012,333", "2,5,1,2012,null"});
  Reopen();
  EXPECT_EQ(Shown({{7, 5}, {4, 5}, {8, 5}, {11, 5}}), "222|333||555");
  EXPECT_FALSE(Unsaved());
  Save();  // what reached a locked cell is saved back, under the row's own code
  EXPECT_THAT(Query(kRows), ElementsAre("2,1,1,2012,333", "2,4,1,2012,222"));
}

TEST_F(Page3, AFailureInTheMiddleIsReportedAndWhatWasDoneStays) {
  Fill(Table(), {{7, 3, "1"}, {7, 4, "2"}, {7, 5, "3"}});
  Save();
  survey.DatabaseConnection->ExecuteScript(
      "create temp trigger refuse before insert on tbl_StudentRegistration "
      "when new.Quantity = 20 begin select raise(abort, 'refused'); end");
  Type(7, 4, "20");
  Save();
  ASSERT_EQ(dialogs.seen.size(), 1u);
  EXPECT_EQ(LastBox(),
            "Error Description: refused\r\nLocation: frmPage3\r\nProcedure: SavePage Routine");
  EXPECT_FALSE(Unsaved());  // the mark was cleared before the save
  EXPECT_THAT(Query(kRows), ElementsAre("1,4,1,2012,1"));
  EXPECT_EQ(At(7, 5), "3");
  Click("cmdMenu");  // so nothing asks
  EXPECT_EQ(Front(), "frmMainMenu");
}

TEST_F(Page3, LeavingAYellowPageAsksAndNoKeepsItsCells) {
  Type(7, 3, "5");
  Click("cmdMenu");
  EXPECT_EQ(LastBox(),
            "You have NOT saved your data. Are you sure you want to exit without saving?");
  EXPECT_EQ(Front(), "frmPage3");
  EXPECT_EQ(At(7, 3), "5");
  EXPECT_TRUE(Unsaved());
  dialogs.answers = {kAnswerYes};
  Click("cmdMenu");
  EXPECT_EQ(Front(), "frmMainMenu");
  EXPECT_FALSE(host.Get("frmPage3").loaded());
  EXPECT_THAT(Query(kRows), IsEmpty());
  Click("frmMainMenu", "cmdLearner", 7);
  EXPECT_EQ(Front(), "frmPage3");
  EXPECT_EQ(At(7, 3), "");
  EXPECT_FALSE(Unsaved());
  dialogs.seen.clear();
  Type(7, 3, "5");
  host.CloseBox(host.Get("frmPage3"));  // asks nothing
  EXPECT_THAT(dialogs.seen, IsEmpty());
}

}  // namespace
}  // namespace survey::testing
