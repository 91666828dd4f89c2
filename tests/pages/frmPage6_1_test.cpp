#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kInsert =
    "Insert into tbl_StudentPopulationGroup191(CollegeEmisNumber,CampusEmisnumber,"
    "ProgrammeRegistrationTypeCD,VocationalField191CD,PopulationGroupCD,GenderCD,SurveyYear,"
    "Quantity)VALUES(101,202,";
constexpr char kQuantities[] = "select Quantity as r from tbl_StudentPopulationGroup191";

struct Page6 : PageTest {
  Page6() : PageTest("frmPage6_1", "gridPage6_2") {}
  GridControl& N4() { return The<GridControl>("frmPage6_1", "gridPage6_2", 1); }
  GridControl& N5() { return The<GridControl>("frmPage6_1", "gridPage6_2", 0); }
  GridControl& N6() { return The<GridControl>("frmPage6_1", "grid191", 0); }
  std::string Box(const char* name) { return The<TextBox>("frmPage6_1", name).Text; }
  void Register(int type, int quantity) {
    Store("insert into tbl_StudentRegistration values (101,202," + std::to_string(type) +
          ",2,1,2012," + std::to_string(quantity) + ")");
  }
  Color TotalOf(GridControl& table) { return table.BackColor(14, 10); }
};

TEST_F(Page6, EachLevelIsStoredColumnByColumnUnderItsCode) {
  Store(kInsert + "3,1,1,1,2012,9)");
  Fill(N6(), {{13, 9, "0"}});
  Fill(N5(), {{4, 5, "51"}});
  Fill(N4(), {{5, 4, "42"}, {4, 9, "41"}});
  statements.clear();
  Save();
  const std::string remove = "Delete * from tbl_StudentPopulationGroup191" + kOfSite +
                             " and programmeregistrationtypeCd = ";
  EXPECT_THAT(StatementsWithout(kInsert),
              ElementsAre(remove + "4", "4,6,1,1,2012,41)", "4,1,1,2,2012,42)", remove + "5",
                          "5,2,1,1,2012,51)", remove + "6", "6,6,5,2,2012,0)"));
  EXPECT_THAT(Query(kQuantities), ElementsAre("9", "41", "42", "51", "0"));
}

TEST_F(Page6, TotalsAreMeasuredWhenSavedAndWhenOpened) {
  for (GridControl* table : {&N4(), &N5(), &N6()}) EXPECT_EQ(TotalOf(*table), kGreen);
  Register(5, 30);
  Fill(N5(), {{4, 4, "10"}, {13, 9, "20"}});
  EXPECT_EQ(TotalOf(N5()), kGreen);
  Save();
  EXPECT_EQ(TotalOf(N5()), kRed);  // the box still shows the 0 of the opening
  Reopen();
  EXPECT_EQ(TotalOf(N5()), kGreen);
  N6().Type(4, 4, "1");
  Save();
  EXPECT_EQ(TotalOf(N4()), kGreen);
  EXPECT_EQ(TotalOf(N6()), kRed);
  EXPECT_THAT(dialogs.seen, IsEmpty());
}

TEST_F(Page6, LimitsHoldAndTheLastTableSetsNoMark) {
  for (GridControl* table : {&N4(), &N5(), &N6()}) {
    EXPECT_TRUE(table->Type(4, 9, "9999").taken);
    EXPECT_FALSE(table->Type(13, 4, "10000").taken || table->Type(4, 10, "1").taken);
    EXPECT_EQ(Shown(*table, {{14, 9}, {4, 10}}), "9999|9999");
    EXPECT_EQ(Unsaved(), table != &N6());
    Save();
  }
  N6().Type(4, 9, "1");
  Click("cmdNext");
  EXPECT_THAT(dialogs.seen, IsEmpty());
  EXPECT_EQ(Front(), "frmPage8");
}

}  // namespace
}  // namespace survey::testing
