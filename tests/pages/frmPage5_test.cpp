#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const std::string kInsertFte =
    "Insert into tbl_StudentFTE(CollegeEmisNumber,CampusEmisnumber,ProgrammeRegistrationTypeCD,"
    "VocationalFieldFTECD,SurveyYear,Quantity)VALUES(101,202,";
const std::string kInsert191 =
    "Insert into tbl_StudentPopulationGroup191(CollegeEmisNumber,CampusEmisnumber,"
    "programmeregistrationtypeCD,VocationalField191CD,PopulationGroupCD,GenderCD,SurveyYear,"
    "Quantity)VALUES(101,202,";

struct Page5 : PageTest {
  Page5() : PageTest("frmPage5", "gridFTE") {}
  GridControl& Table31() { return The<GridControl>("frmPage5", "gridFTE", 1); }
  GridControl& Table32() { return The<GridControl>("frmPage5", "gridFTE", 2); }
  GridControl& Table33() { return The<GridControl>("frmPage5", "gridFTE", 0); }
  GridControl& Table34() { return The<GridControl>("frmPage5", "gridReport191", 2); }
};

TEST_F(Page5, TheThreeGridsAreStoredInTheirOrderAfterOneDelete) {
  Fill(Table31(), {{4, 3, "1.235"}, {6, 5, "-0.5"}});
  Fill(Table32(), {{5, 3, "12"}});
  Fill(Table33(), {{5, 3, "0"}, {4, 8, "3.1"}});
  Fill(Table34(), {{5, 4, "7"}, {4, 6, "8"}, {13, 5, "0"}});
  statements.clear();
  Save();
  StatementsWithout(kInsertFte);
  EXPECT_THAT(StatementsWithout(kInsert191),
              ElementsAre("Delete * from tbl_StudentFTE" + kOfSite, "4,6,2012,3.1)", "5,1,2012,0)",
                          "2,5,2012,12)", "9,7,2012,1.235)", "11,9,2012,-0.5)",
                          "Delete * from tbl_StudentPopulationGroup191" + kOfSite +
                              " and programmeregistrationtypeCD < 4",
                          "3,3,1,1,2012,8)", "1,1,1,2,2012,7)", "2,2,5,2,2012,0)"));
  Reopen();
  EXPECT_THAT(statements, ElementsAre("Select * from tbl_studentFTE" + kOfSite,
                                      "Select * from tbl_StudentPopulationGroup191" + kOfSite +
                                          " and programmeregistrationtypeCD < 4 "));
}

TEST_F(Page5, FteCellsTakeThreeDecimalsAndASign) {
  for (GridControl* table : {&Table31(), &Table32(), &Table33()}) {
    EXPECT_FALSE(table->Type(4, 3, "9999999.995").taken || table->Type(5, 3, "1.2345").taken);
    Fill(*table, {{4, 3, "-9999999.99"}, {4, 3, "0.1"}, {5, 3, "0.2"}, {6, 3, "-1.005"}});
    EXPECT_EQ(table->GetText(7, 3), "-0.705");
    EXPECT_FALSE(table->Type(7, 3, "1").taken);
    EXPECT_TRUE(Unsaved());
    Save();
  }
}

TEST_F(Page5, Table34TakesWholeNumbersAndSetsNoMark) {
  EXPECT_FALSE(Table34().Type(4, 4, "1.5").taken || Table34().Type(4, 4, "10000").taken);
  Fill(Table34(), {{4, 4, "9999"}, {13, 6, "1"}});
  EXPECT_EQ(Shown(Table34(), {{14, 7}, {13, 7}}), "10000|1");
  EXPECT_FALSE(Unsaved());
  Click("cmdNext");
  EXPECT_THAT(dialogs.seen, IsEmpty());
  EXPECT_EQ(Front(), "frmPage6_1");
  Click("frmPage6_1", "cmdPrevious");
  EXPECT_EQ(Table34().GetText(4, 4), "");
}

TEST_F(Page5, RecordsGoByTypeAndGroupAlone) {
  // Any field of N1 to N3; types that the page has not.
  StoreAll(kInsertFte, {"2,9,2012,1", "7,3,2012,2", "null,3,2012,3", "12,3,2012,4"});
  // Any field; a type passed over, but for its column; a group that there is not; not N1 to N3.
  StoreAll(kInsert191, {"2,6,3,1,2012,5", "0,0,5,2,2012,6", "1,1,6,1,2012,7", "4,1,1,1,2012,8"});
  Reopen();
  EXPECT_EQ(Shown(Table32(), {{5, 3}, {7, 3}}), "1|1");
  EXPECT_EQ(Table33().GetText(7, 9) + Table31().GetText(7, 6), "");
  EXPECT_EQ(Shown(Table34(), {{8, 5}, {13, 4}, {14, 7}, {13, 3}}), "5|7|12|Female");
  Save();  // clears all records of the first kind, and only the low levels of the others
  EXPECT_THAT(Query("select Quantity as r from tbl_StudentFTE"), ElementsAre("1"));
  EXPECT_THAT(Query("select Quantity as r from tbl_StudentPopulationGroup191"),
              ElementsAre("8", "5", "7"));
}

}  // namespace
}  // namespace survey::testing
