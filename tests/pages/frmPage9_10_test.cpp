// Both tables of students by year of birth.

#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;

const std::string kByProgramme =
    "Insert into tbl_StudentAgeLevel2(CollegeEmisNumber,CampusEmisnumber,ProgrammeNCVCD,Age,"
    "SurveyYear,Quantity)VALUES(101,202,";
const std::string kByGender =
    "Insert into tbl_StudentAgeEnrolment(CollegeEmisNumber,CampusEmisnumber,ProgrammeTypeCD,Age,"
    "GenderCD,SurveyYear,Quantity)VALUES(101,202,";

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

TEST_F(AgesByProgramme, SavesColumnByColumnUnderProgrammeAndAgeAndPrintsAcross) {
  survey.SurveyYear = 2010;
  Reopen();  // the labels do not follow the year
  EXPECT_EQ(Shown({{1, 3}, {22, 3}, {1, 27}, {22, 27}, {1, 28}, {22, 28}}),
            "1997|15|1973|39|1972|>/=40");
  survey.SurveyYear = 2012;
  ExpectOpen({{2, 3, 20, 28}});
  Fill(Table(), {{3, 28, "9999999"}, {20, 3, "0"}, {2, 4, "9999999"}, {3, 3, "9999999"}});
  EXPECT_FALSE(Type(4, 4, "10000000") || Type(4, 4, "1.5"));
  EXPECT_EQ(Shown({{21, 29}, {3, 29}}), "29999997|19999998");
  EXPECT_TRUE(Unsaved());
  statements.clear();
  Save();
  EXPECT_THAT(StatementsWithout(kByProgramme),
              ElementsAre("Delete * from tbl_StudentAgeLevel2" + kOfSite, "1,16,2012,9999999)",
                          "2,15,2012,9999999)", "2,40,2012,9999999)", "19,15,2012,0)"));
  Click("cmdPrintPage");
  EXPECT_EQ(printer.operations[1], "landscape");
}

TEST_F(AgesByProgramme, AgesOutsideTheTableLandOnHeadsAndTotals) {
  StoreAll(kByProgramme, {"1,40,2012,40", "2,41,2012,41", "3,14,2012,14", "4,50,2012,50"});
  Reopen();
  EXPECT_EQ(Shown({{2, 28}, {3, 29}, {4, 2}, {21, 29}}), "40|41|14|81");
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

TEST_F(AgesByGender, SavesEachProgrammeUnderItsCodeAndAddsItsGender) {
  EXPECT_EQ(Shown({{1, 4}, {16, 4}, {1, 29}, {16, 29}}), "1996|15|1971|>/=40");
  ExpectOpen({{2, 4, 13, 29}});
  for (int column = 2; column <= 13; ++column) Type(column, 5, std::to_string(1 << column));
  Type(13, 29, "1");
  EXPECT_EQ(Shown({{14, 5}, {15, 5}}), "5460|10920");  // 4 + 16 + ... + 4096; twice that
  EXPECT_EQ(Shown({{13, 30}, {14, 30}, {15, 30}}), "8193|5460|10921");
  statements.clear();
  Save();
  EXPECT_THAT(
      StatementsWithout(kByGender),
      ElementsAre("Delete * from tbl_StudentAgeEnrolment" + kOfSite, "6,16,1,2012,4)",
                  "6,16,2,2012,8)", "7,16,1,2012,16)", "7,16,2,2012,32)", "2,16,1,2012,64)",
                  "2,16,2,2012,128)", "4,16,1,2012,256)", "4,16,2,2012,512)", "3,16,1,2012,1024)",
                  "3,16,2,2012,2048)", "5,16,1,2012,4096)", "5,16,2,2012,8192)", "5,40,2,2012,1)"));
}

TEST_F(AgesByGender, UnknownCodesGoToTheColumnOfTheRecordBefore) {
  StoreAll(kByGender,
           {"1,15,1,2012,1", "4,15,2,2012,2", "1,16,1,2012,3", "4,17,3,2012,4", "4,null,1,2012,5"});
  Reopen();
  EXPECT_EQ(Shown({{9, 4}, {9, 5}, {9, 6}, {15, 30}}), "2|3|4|9");
  EXPECT_THAT(LastBox(), ToldBy("frmPage9_10_1", "GetPage Routine"));
}

TEST_F(AgesByGender, TheHighlightLeavesTheOtherProgrammesOut) {
  Table().Click(2, 4);  // where the page has put the cursor
  EXPECT_EQ(YellowOf(4), "_yyyyyyyyyy__________");
  for (const int row : {29, 9}) Table().MoveTo(12, row);
  EXPECT_EQ(YellowOf(9), "_yyyyyyyyyy__________");
  EXPECT_EQ(YellowOf(29), std::string(21, '_'));
}

}  // namespace
}  // namespace survey::testing
