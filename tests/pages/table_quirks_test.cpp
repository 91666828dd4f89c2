// What is odd about some of the tables of cell_tables_test.cpp: records of codes that stand
// nowhere, totals that are open, marks that are not set, and what the tables are measured against.

#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// ---- frmPage3 ----------------------------------------------------------------------------------

const std::string kRegister = "insert into tbl_StudentRegistration values(101,202,";
constexpr char kRegistered[] =
    "select ProgrammeRegistrationTypeCD || ',' || ProgrammeDurationTypeCD || ',' || GenderCD || "
    "',' || SurveyYear || ',' || Quantity as r from tbl_StudentRegistration";

struct Page3 : PageTest {
  Page3() : PageTest("frmPage3", "gridEnrolment") {}
};

TEST_F(Page3, RecordsOfNoRowGoWhereTheOneBeforeWent) {
  EXPECT_EQ(host.Front()->Caption, " Corvale ANNUAL Survey -  Emis Number : 202");
  EXPECT_EQ(Cell(Table().ActiveColumn(), Table().ActiveRow()), Cell(7, 3));
  EXPECT_EQ(At(2, 7), "REPORT 191 N3 Programmes\nENIGNEERING");
  EXPECT_EQ(At(2, 9), "REPORT 191 N4 Programmes\n");
  EXPECT_EQ(Table().BackColor(4, 3), Rgb(223, 223, 223));
  // The first is in no row at all, the last in a locked cell of row 5.
  StoreAll(kRegister, {"7,4,1,2012,111", "2,4,1,2012,222", "8,1,1,2012,333", "2,5,1,2012,null"});
  Reopen();
  EXPECT_EQ(Shown({{7, 5}, {4, 5}, {8, 5}, {11, 5}}), "222|333||555");
  Save();  // what reached a locked cell is saved back, under the row's own code
  EXPECT_THAT(Query(kRegistered), ElementsAre("2,1,1,2012,333", "2,4,1,2012,222"));
}

// ---- frmPage4, frmPage5, frmPage6_1 ------------------------------------------------------------

struct Page4 : PageTest {
  Page4() : PageTest("frmPage4", "gridPage4_2") {}
};

TEST_F(Page4, FiguresAreLostOnTheWayToTheStaffWithoutAQuestion) {
  Type(9, 7, "1");
  Click("cmdStaff");
  EXPECT_EQ(Front(), "frmSelectEducator");
  EXPECT_THAT(dialogs.seen, IsEmpty());
}

struct Page5 : PageTest {
  Page5() : PageTest("frmPage5", "gridFTE") {}
  GridControl& Table31() { return The<GridControl>("frmPage5", "gridFTE", 1); }
  GridControl& Table32() { return The<GridControl>("frmPage5", "gridFTE", 2); }
  GridControl& Table33() { return The<GridControl>("frmPage5", "gridFTE", 0); }
};

TEST_F(Page5, RecordsGoByTypeAndGroupAlone) {
  // Any field of N1 to N3; types that the page has not.
  StoreAll("insert into tbl_StudentFTE values(101,202,",
           {"2,9,2012,1", "7,3,2012,2", "null,3,2012,3", "12,3,2012,4"});
  // Any field; a type passed over, but for its column; a group that there is not; not N1 to N3.
  StoreAll("insert into tbl_StudentPopulationGroup191 values(101,202,",
           {"2,6,3,1,2012,5", "0,0,5,2,2012,6", "1,1,6,1,2012,7", "4,1,1,1,2012,8"});
  Reopen();
  EXPECT_EQ(Shown(Table32(), {{5, 3}, {7, 3}}), "1|1");
  EXPECT_EQ(Table33().GetText(7, 9), "");
  EXPECT_EQ(Table31().GetText(7, 6), "");
  EXPECT_EQ(
      Shown(The<GridControl>("frmPage5", "gridReport191", 2), {{8, 5}, {13, 4}, {14, 7}, {13, 3}}),
      "5|7|12|Female");
  Save();  // clears all records of the first kind, and only the low levels of the others
  EXPECT_THAT(Query("select Quantity as r from tbl_StudentFTE"), ElementsAre("1"));
  EXPECT_THAT(Query("select Quantity as r from tbl_StudentPopulationGroup191"),
              ElementsAre("8", "5", "7"));
}

struct Page6 : PageTest {
  Page6() : PageTest("frmPage6_1", "gridPage6_2", 0) {}
  Color Total() { return Table().BackColor(14, 10); }
};

TEST_F(Page6, TotalsAreMeasuredWhenSavedAndWhenOpened) {
  EXPECT_EQ(Total(), kGreen);
  Store(kRegister + "5,2,1,2012,30)");
  Fill(Table(), {{4, 4, "10"}, {13, 9, "20"}});
  EXPECT_EQ(Total(), kGreen);
  Save();
  EXPECT_EQ(Total(), kRed);  // the box still shows the 0 of the opening
  Reopen();
  EXPECT_EQ(Total(), kGreen);
}

// ---- frmPage8, frmPage9, frmPage9_1 ------------------------------------------------------------

struct Level {
  std::string page, grid, table, title, print_title;
};
const Level kLevels[] = {
    {"frmPage8", "gridNCV", "3.8", "2 programmes", " Student Information"},
    {"frmPage9", "gridNCV", "3.9", "3 programmes", "  Student Information"},
    {"frmPage9_1", "gridPage8_2", "3.10", "4 Programmes", "  Student Information"}};

struct NcvPage : PageTest, ::testing::WithParamInterface<Level> {
  NcvPage() : PageTest(GetParam().page, GetParam().grid, 1) {}
};

TEST_P(NcvPage, BearsItsTextsOnScreenAndOnPaper) {
  const auto& [page, grid, table, title, print_title] = GetParam();
  EXPECT_EQ(At(3, 1), "Student Registration in NC(V) Level " + title +
                          " by Population Group, Gender and NC(V) programmes.");
  EXPECT_EQ(Shown({{2, 1}, {1, 16}, {1, 17}, {1, 22}}), table + "|13||14");
  EXPECT_EQ(Shown({{2, 22}, {3, 22}}), table + ".19|Primary Health");
  Click("cmdPrintPage");
  EXPECT_EQ(printer.job, "site table " + table);
  EXPECT_THAT(printer.operations,
              ElementsAre("ShowPrinter", "Font Times New Roman 12 bold", "X 500", "Y 130",
                          "Print \" Campus EMIS NUMBER: 202\"", "Print \"\"", "X 500",
                          "Print \"" + print_title + "\"", "Print \"\"", "bold off",
                          "Draw " + grid + "(1) 300 1200 11906 16838 page 1", "EndDoc"));
}

INSTANTIATE_TEST_SUITE_P(, NcvPage, ::testing::ValuesIn(kLevels),
                         [](const auto& level) { return level.param.page; });

// ---- frmPage12_2, frmPage14 --------------------------------------------------------------------

struct Page12_2 : PageTest {
  Page12_2() : PageTest("frmPage12_2", "gridPage12_1", 0) {}
};

TEST_F(Page12_2, OpensItsOwnConnectionAndIsMeasuredBeforeTheSave) {
  Store(kRegister + "14,1,1,2012,12)");
  survey.CloseDatabaseConnection();
  Reopen();
  EXPECT_EQ(Cell(Table().ActiveColumn(), Table().ActiveRow()), Cell(4, 4));
  Fill(Table(), {{4, 15, "5"}, {9, 13, "7"}});
  EXPECT_EQ(Table().BackColor(14, 16), kRed);
  Save();
  EXPECT_EQ(Table().BackColor(14, 16), kGreen);
  The<Button>("frmPage12_2", "cmdSave").KeyDown();  // a key on the button sets the mark
  EXPECT_TRUE(Unsaved());
}

struct Page14 : PageTest {
  Page14() : PageTest("frmPage14", "gridPage9_1") {}
};

TEST_F(Page14, HeadsCoverWhatAnotherTableLeft) {
  EXPECT_EQ(At(3, 1), "Headcount Student Enrolment in NC (V) Level 2 Programmes by ");
  EXPECT_EQ(Table().SpanOf(3, 1), CellRange(2, 1, 13, 1));
  for (int column = 2; column <= 12; column += 2) {
    EXPECT_EQ(Table().SpanOf(column + 1, 2), CellRange(column, 2, column + 1, 2));
  }
}

TEST_F(Page14, ZerosAndTheTwoTotalsThatAreOpenAreNotStored) {
  Fill(Table(), {{2, 14, "3"}, {12, 14, "70"}, {3, 14, "0"}});
  EXPECT_EQ(At(12, 20), "70");
  Save();
  survey.DatabasePath = (folder.path() / "missing.mdb").string();
  Reopen();  // on the connection that stands open
  EXPECT_THAT(dialogs.seen, IsEmpty());
  EXPECT_EQ(Shown({{12, 14}, {3, 14}}), "3|");
  survey.DatabasePath = (folder.path() / "site.mdb").string();
  EXPECT_EQ(Query("select Quantity as r from tbl_SNEStudentEnrolment").size(), 1u);
}

// ---- frmPage9_10, frmPage9_10_1: students by year of birth -------------------------------------

class YearOfBirth : public PageTest {
 protected:
  explicit YearOfBirth(std::string page) : PageTest(std::move(page), "gridPage9_1") {}
  // The columns of a row, y for one that is yellow and _ for one that is not.
  std::string YellowOf(int row) {
    std::string yellow;
    for (int i = 1; i <= 21; ++i) yellow += Table().BackColor(i, row) == kYellow ? 'y' : '_';
    return yellow;
  }
};
struct AgesByProgramme : YearOfBirth {
  AgesByProgramme() : YearOfBirth("frmPage9_10") {}
};
struct AgesByGender : YearOfBirth {
  AgesByGender() : YearOfBirth("frmPage9_10_1") {}
};

TEST_F(AgesByProgramme, LabelsDoNotFollowTheYearAndAgesOutsideLandOnHeadsAndTotals) {
  StoreAll("insert into tbl_StudentAgeLevel2 values(101,202,",
           {"1,40,2010,40", "2,41,2010,41", "3,14,2010,14", "4,50,2010,50"});
  survey.SurveyYear = 2010;
  Reopen();
  EXPECT_EQ(Shown({{1, 3}, {22, 3}, {1, 27}, {22, 27}, {1, 28}, {22, 28}}),
            "1997|15|1973|39|1972|>/=40");
  EXPECT_EQ(Shown({{2, 28}, {3, 29}, {4, 2}, {21, 29}}), "40|41|14|81");
  Click("cmdPrintPage");
  EXPECT_EQ(printer.operations[1], "landscape");
}

TEST_F(AgesByProgramme, TheRowInUseIsYellowAndHeadsAndTheFirstRowStaySo) {
  const std::string none(21, '_');
  const std::string used = "_" + std::string(19, 'y') + "_";
  Table().MoveTo(9, 12);
  EXPECT_EQ(YellowOf(12), used);
  for (const int row : {28, 29, 2, 3}) Table().MoveTo(2, row);
  for (const int row : {12, 28}) EXPECT_EQ(YellowOf(row), none) << row;
  for (const int row : {29, 2, 3}) EXPECT_EQ(YellowOf(row), used) << row;
  EXPECT_FALSE(Unsaved());
}

TEST_F(AgesByGender, TheHighlightLeavesTheOtherProgrammesOut) {
  EXPECT_EQ(Shown({{1, 4}, {16, 4}, {1, 29}, {16, 29}}), "1996|15|1971|>/=40");
  Table().Click(2, 4);  // where the page has put the cursor
  EXPECT_EQ(YellowOf(4), "_yyyyyyyyyy__________");
  for (const int row : {29, 9}) Table().MoveTo(12, row);
  EXPECT_EQ(YellowOf(9), "_yyyyyyyyyy__________");
  EXPECT_EQ(YellowOf(29), std::string(21, '_'));
}

}  // namespace
}  // namespace survey::testing
