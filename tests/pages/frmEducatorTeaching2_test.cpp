#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;

constexpr char kPage[] = "frmEducatorTeaching2";
const std::string kOfMember =
    " from tbl_LecturerTeachingFields where IDnumber = '8001' and surveyyear = 2012";
const std::string kInsert =
    "Insert into tbl_LecturerTeachingFields(CollegeEMISNumber,CampusEmisNumber,surveyyear,IDNumber,"
    "OrganisingFieldCD,Teachinghours,Teachingexperience,TrainingYears)VALUES(";

class EducatorTeaching2 : public PageTest {
 protected:
  EducatorTeaching2() : PageTest(kPage, "gridFields") { Open("8001"); }
  void Open(const std::string& id) {
    host.Get(kPage).Property("EducatorId") = id;
    dialogs.seen.clear();
    Reopen();
  }
  // The mark and the figures of a row.
  std::string Line(int row) { return Shown({{4, row}, {6, row}, {8, row}, {10, row}}); }
};

TEST_F(EducatorTeaching2, OpensItsCells) {
  EXPECT_EQ(host.Front()->Caption, " Corvale ANNUAL Survey -  Emis Number : 202-  ID number: 8001");
  EXPECT_EQ(Table().ActiveColumn() * 100 + Table().ActiveRow(), 403);
  ExpectOpen(
      {{4, 3, 4, 14}, {6, 3, 6, 14}, {8, 3, 8, 14}, {10, 3, 10, 14}, {6, 17}, {8, 17}, {10, 17}});
  for (const auto& [column, row, most] : {std::tuple{6, 3, 9999}, {8, 17, 9999999}}) {
    EXPECT_TRUE(Type(column, row, std::to_string(most)));
    EXPECT_FALSE(Type(column, row, std::to_string(most + 1)));
  }
}

TEST_F(EducatorTeaching2, StoresTheMarkedFieldsAndOtherCoursesWithHours) {
  for (const int row : {3, 4, 14}) Table().Tick(4, row);
  EXPECT_FALSE(Unsaved());  // ticks are not known as changes
  Fill(Table(), {{8, 3, "1"}, {8, 4, "2"}, {6, 17, "40"}, {10, 17, "3"}});
  EXPECT_TRUE(Unsaved());
  Table().Tick(4, 4);
  statements.clear();
  Save();
  EXPECT_FALSE(Unsaved());
  EXPECT_THAT(statements,
              ElementsAre("Delete *" + kOfMember, kInsert + "101,202,2012,'8001',1,0,1,0)",
                          kInsert + "101,202,2012,'8001',12,0,0,0)",
                          kInsert + "101,202,2012,'8001',13,40,0,3)"));
  Reopen();
  EXPECT_THAT(statements, ElementsAre("Select *" + kOfMember));
  EXPECT_EQ(Line(3) + " / " + Line(4), "1|0|1|0 / |||");
  EXPECT_EQ(Line(14) + " / " + Line(17), "1|0|0|0 / |40|0|3");
  Fill(Table(), {{6, 17, "0"}, {8, 17, "9"}});
  Save();
  EXPECT_EQ(Query("select count(*) as r from tbl_LecturerTeachingFields")[0], "2");
}

TEST_F(EducatorTeaching2, FollowsThePersonToAnySite) {
  StoreAll(kInsert, {"7,8,2012,'8001',2,5,null,6", "101,202,2010,'8001',3,1,1,1",
                     "101,202,2012,'8002',4,1,1,1", "7,8,2012,'8001',14,1,1,1",
                     "7,8,2012,'8001',null,1,1,1", "9,9,2012,'8001',13,1,2,3"});
  Reopen();
  EXPECT_EQ(Line(4) + " / " + Line(17), "1|5||6 / |1|2|3");
  for (const int row : {5, 6, 16}) EXPECT_EQ(Line(row), "|||");
  Save();
  EXPECT_THAT(Query("select CollegeEmisNumber || ' ' || SurveyYear || ' ' || OrganisingFieldCD as r"
                    " from tbl_LecturerTeachingFields order by rowid"),
              ElementsAre("101 2010 3", "101 2012 4", "101 2012 2", "101 2012 13"));
}

}  // namespace
}  // namespace survey::testing
