#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;

constexpr char kFirst[] = "frmLecQualifications1";
constexpr char kSecond[] = "frmLecQualifications2";
const std::string kInsert =
    "insert into tbl_StaffQualificationType(CollegeEMISNumber,CampusEmisNumber,surveyyear,IDNumber,"
    "qualificationTypeCD,tradedescription,qualificationother,workplaceexperience)VALUES(";
constexpr char kCodes[] = "select QualificationTypeCD as r from tbl_StaffQualificationType";

class LecQualifications : public PageTest {
 protected:
  LecQualifications() : PageTest(kFirst, "gridQual") {}
  GridControl& Open(const std::string& page, const std::string& id = "8001") {
    page_ = page;
    host.Get(page).Property("EducatorId") = id;
    Reopen();
    statements.clear();
    return Table();
  }
};

TEST_F(LecQualifications, EveryTypeIsStoredUnderTheCodeBeforeItAndFoundAgain) {
  std::vector<std::string> all, ticked;
  for (int code = 1; code <= 42; ++code) all.push_back(std::to_string(code));
  for (const char* page : {kFirst, kSecond}) {
    GridControl& table = Open(page);
    EXPECT_EQ(host.Front()->Caption, "Lecturer Qualifications  ID Number:  8001");
    for (int row = 1; row <= table.MaxRows(); ++row) {
      if (table.Tick(3, row).taken) ticked.push_back(table.GetText(1, row));
    }
    Save();
    Open(page);
    for (int row = 1; row <= table.MaxRows(); ++row) {
      const bool found = table.GetText(3, row) == "1";
      EXPECT_EQ(found, table.Kind(3, row).type == CellKind::Type::kCheckBox) << row;
      EXPECT_EQ(found, table.BackColor(2, row) == kYellow) << row;
    }
  }
  EXPECT_EQ(ticked, all);
  EXPECT_EQ(Query(kCodes), all);
}

TEST_F(LecQualifications, AHalfReplacesItsOwnCodesOfAnySite) {
  StoreAll(kInsert, {"101,202,2012,'8001',29,'','0',0", "102,203,2012,'8001',30,'','0',0",
                     "102,203,2012,'8001',5,'','0',0", "101,202,2010,'8001',6,'','0',0",
                     "101,202,2012,'8002',7,'','0',0"});
  GridControl& first = Open(kFirst);
  for (const int row : {8, 3}) first.Tick(3, row);  // not 5 any more, but 1
  Save();
  EXPECT_THAT(StatementsWithout(kInsert),
              ElementsAre("Delete from  tbl_staffqualificationtype where IDnumber = '8001' and "
                          "qualificationtypeCD < 30 and surveyyear = 2012",
                          "101,202,2012,'8001',1,'','0',0)", "101,202,2012,'8001',29,'','0',0)"));
  EXPECT_THAT(Query(kCodes), ElementsAre("30", "6", "7", "1", "29"));
}

TEST_F(LecQualifications, TheTradeGoesWithEachTickAndIsLostWithoutOne) {
  GridControl& table = Open(kSecond);
  Fill(table, {{2, 19, "Fitter's"}, {3, 20, "2"}});
  for (const int row : {16, 3}) table.Tick(3, row);
  Save();
  EXPECT_THAT(statements,
              ElementsAre("Delete from  tbl_StaffQualificationType where IDnumber = '8001' and "
                          "qualificationtypeCD > 29 and surveyyear = 2012",
                          kInsert + "101,202,2012,'8001',30,'Fitter''s','',2)",
                          kInsert + "101,202,2012,'8001',42,'Fitter''s','',2)"));
  Open(kSecond);
  for (const int row : {16, 3}) table.Tick(3, row);
  Save();
  Open(kSecond);
  EXPECT_EQ(Shown(table, {{2, 19}, {3, 20}}), "|");
}

TEST_F(LecQualifications, WhatCouldNotBeReadIsNotReplaced) {
  StoreAll(kInsert, {"101,202,2012,'8001',29,'','0',0", "101,202,2012,'8001',30,'','0',0"});
  RunScript("alter table tbl_StaffQualificationType rename to gone");
  Open(kFirst).Tick(3, 3);
  EXPECT_TRUE(dialogs.seen.empty());
  Save();
  EXPECT_EQ(LastBox(), "no such table: tbl_staffqualificationtype");
  RunScript("alter table gone rename to tbl_StaffQualificationType");
  Save();
  EXPECT_THAT(LastBox(), ::testing::HasSubstr("open the page anew"));
  Store("Delete * from tbl_StaffQualificationType where QualificationTypeCD = 29");
  Save();  // the other half's code is none of this page's
  EXPECT_THAT(Query(kCodes), ElementsAre("30", "1"));
}

TEST_F(LecQualifications, TheHalvesLeadToEachOther) {
  Open(kSecond).Type(2, 19, "typed");  // not known as a change
  Click("cmdNext");
  EXPECT_EQ(Front(), kFirst);
  Open(kFirst).Tick(3, 3);
  dialogs.answers = {kAnswerYes};
  Click("cmdNext");
  EXPECT_EQ(Front(), kSecond);
  EXPECT_EQ(dialogs.seen.size(), 1u);
}

}  // namespace
}  // namespace survey::testing
