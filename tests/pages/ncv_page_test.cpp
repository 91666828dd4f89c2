#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Level {
  const char* page;
  const char* grid;
  std::string table;
  std::string title;  // what differs in it
  std::string code;
  int row_20;  // the most that a cell of it takes
  std::string print_title;
};

void PrintTo(const Level& level, std::ostream* out) { *out << level.page; }

const Level kLevels[] = {
    {"frmPage8", "gridNCV", "3.8", "2 programmes", "9", 99999, " Student Information"},
    {"frmPage9", "gridNCV", "3.9", "3 programmes", "10", 99999, "  Student Information"},
    {"frmPage9_1", "gridPage8_2", "3.10", "4 Programmes", "11", 9999, "  Student Information"}};

constexpr char kInsert[] =
    "Insert into tbl_StudentPopulationGroupNCV(CollegeEmisNumber,CampusEmisnumber,"
    "ProgrammeRegistrationTypeCD,programmeNCVCD,PopulationGroupCD,GenderCD,SurveyYear,Quantity)"
    "VALUES(";

struct NcvPage : PageTest, ::testing::WithParamInterface<Level> {
  NcvPage() : PageTest(GetParam().page, GetParam().grid, 1) {}
  const std::string page = GetParam().page;
  const std::string code = GetParam().code;
};

TEST_P(NcvPage, ShowsItsTableAndTakesWhatEachProgrammeMayHold) {
  EXPECT_EQ(At(3, 1), "Student Registration in NC(V) Level " + GetParam().title +
                          " by Population Group, Gender and NC(V) programmes.");
  EXPECT_EQ(Shown({{2, 1}, {1, 16}, {1, 17}, {1, 22}}), GetParam().table + "|13||14");
  EXPECT_EQ(Shown({{2, 22}, {3, 22}}), GetParam().table + ".19|Primary Health");
  ExpectOpen({{4, 4, 13, 22}});
  for (int row = 4; row <= 22; ++row) {
    const int most = row == 20 ? GetParam().row_20 : 9999;
    for (int column = 4; column <= 13; ++column) {
      ASSERT_TRUE(Type(column, row, std::to_string(most))) << column << "," << row;
      ASSERT_FALSE(Type(column, row, std::to_string(most + 1)) || Type(column, row, "1.5"));
    }
  }
  EXPECT_TRUE(Unsaved());
  EXPECT_EQ(At(14, 4), "99990");
  EXPECT_EQ(At(14, 23), std::to_string(10 * (18 * 9999 + GetParam().row_20)));
}

TEST_P(NcvPage, EveryGroupAndGenderIsStoredColumnByColumnUnderTheLevel) {
  for (int column = 13; column >= 4; --column) Type(column, column + 9, "1");
  Type(4, 4, "7");
  Type(4, 22, "0");
  statements.clear();
  Save();
  EXPECT_FALSE(Unsaved());
  EXPECT_THAT(
      StatementsWithout(kInsert + ("101,202," + code)),
      ElementsAre("Delete * from tbl_StudentPopulationGroupNCV" + kOfSite +
                      " and programmeregistrationtypeCd = " + code,
                  ",1,1,1,2012,7)", ",10,1,1,2012,1)", ",19,1,1,2012,0)", ",11,1,2,2012,1)",
                  ",12,2,1,2012,1)", ",13,2,2,2012,1)", ",14,3,1,2012,1)", ",15,3,2,2012,1)",
                  ",16,4,1,2012,1)", ",17,4,2,2012,1)", ",18,5,1,2012,1)", ",19,5,2,2012,1)"));
  Reopen();
  EXPECT_EQ(statements.back(), "Select * from tbl_StudentPopulationGroupNCV" + kOfSite +
                                   " and programmeregistrationtypeCD = " + code);
}

TEST_P(NcvPage, OtherLevelsStayAndStrayRecordsKeepToTheColumnBefore) {
  for (const std::string level : {"9", "10", "11"}) {
    const std::string end = ",2012," + level + "0";
    StoreAll(kInsert + ("101,202," + level), {",2,9,1" + end, ",3,2,2" + end, ",4,6,1" + end,
                                              ",5,2,null" + end, ",20,2,1" + end, ",21,2,1" + end});
  }
  Reopen();
  EXPECT_EQ(At(14, 5), "");  // the first has no column
  for (const int row : {6, 7, 8}) EXPECT_EQ(At(7, row), code + "0");
  EXPECT_EQ(At(6, 23), code + "0");  // a total, until its column changes
  EXPECT_EQ(At(14, 23), std::to_string(std::stoi(code) * 30));
  Save();
  EXPECT_THAT(Query("select group_concat(c, ' ') as r from (select count(*) as c from "
                    "tbl_StudentPopulationGroupNCV group by ProgrammeRegistrationTypeCD = " +
                    code + ")"),
              ElementsAre("12 3"));
}

TEST_P(NcvPage, PrintsUnderItsHeading) {
  Click(page, "cmdPrintPage");
  EXPECT_THAT(
      printer.operations,
      ElementsAre("ShowPrinter", "Font Times New Roman 12 bold", "X 500", "Y 130",
                  "Print \" Campus EMIS NUMBER: 202\"", "Print \"\"", "X 500",
                  "Print \"" + GetParam().print_title + "\"", "Print \"\"", "bold off",
                  "Draw " + std::string(GetParam().grid) + "(1) 300 1200 11906 16838 page 1",
                  "EndDoc"));
  EXPECT_THAT(dialogs.seen, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Levels, NcvPage, ::testing::ValuesIn(kLevels),
                         [](const auto& level) { return std::string(level.param.page); });

}  // namespace
}  // namespace survey::testing
