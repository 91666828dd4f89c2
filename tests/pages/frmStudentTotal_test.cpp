#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::ElementsAre;

const std::string kInsert =
    "Insert into tbl_StudentEnrolment(CollegeEmisNumber,CampusEmisnumber,ProgrammeTypeCD,GenderCD,"
    "SurveyYear,Quantity)VALUES(101,202,";
const std::string kInsertAgreement =
    "Insert into tbl_StudentAgreements(CollegeEmisNumber,CampusEmisnumber,ProgrammeTypeCD,"
    "AgreementTypeCD,GenderCD,SurveyYear,Quantity)VALUES(101,202,";

struct StudentTotal : PageTest {
  StudentTotal() : PageTest("frmStudentTotal", "gridEnrolment") {}
  GridControl& Agreements() { return The<GridControl>("frmStudentTotal", "gridAgreements"); }
};

TEST_F(StudentTotal, EachColumnIsStoredUnderItsOwnCodes) {
  ExpectOpen({{3, 4, 12, 4}});
  EXPECT_TRUE(Type(6, 4, "999999") && !Type(6, 4, "1000000"));
  EXPECT_TRUE(Unsaved());
  for (int column = 3; column <= 12; ++column) Type(column, 4, std::to_string(column));
  Type(6, 4, "");
  statements.clear();
  Save();
  EXPECT_FALSE(Unsaved());
  EXPECT_THAT(
      StatementsWithout(kInsert),
      ElementsAre("Delete * from tbl_StudentEnrolment" + kOfSite, "1,1,2012,3)", "1,2,2012,4)",
                  "2,1,2012,5)", "4,1,2012,7)", "4,2,2012,8)", "3,1,2012,9)", "3,2,2012,10)",
                  "5,1,2012,11)", "5,2,2012,12)", "Delete * from tbl_StudentAgreements" + kOfSite));
  Reopen();
  EXPECT_THAT(statements, ElementsAre("Select * from tbl_studentEnrolment" + kOfSite,
                                      "Select * from tbl_studentagreements" + kOfSite));
}

TEST_F(StudentTotal, AgreementsGoRowByRowAndHaveNoNsc) {
  Fill(Agreements(), {{10, 6, "106"}, {3, 5, "35"}, {7, 4, "74"}, {8, 4, "84"}, {9, 6, "96"}});
  EXPECT_TRUE(Agreements().Type(6, 5, "99999").taken && Unsaved());
  EXPECT_FALSE(Agreements().Type(6, 5, "100000").taken || Agreements().Type(11, 5, "1").taken);
  EXPECT_EQ(Shown(Agreements(), {{11, 5}, {10, 7}, {11, 7}, {4, 7}}), "100034|106|100394|");
  Save();
  const auto sent = StatementsWithout(kInsertAgreement);
  EXPECT_THAT(std::vector(sent.end() - 6, sent.end()),
              ElementsAre("3,1,1,2012,74)", "3,1,2,2012,84)", "1,2,1,2012,35)", "2,2,2,2012,99999)",
                          "5,3,1,2012,96)", "5,3,2,2012,106)"));
}

}  // namespace
}  // namespace survey::testing
