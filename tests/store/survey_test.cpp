#include "store/survey.h"

#include "store/store_fixture.h"

namespace survey {
namespace {

class SurveyTest : public StoreTest {
 protected:
  SurveyTest() { survey_.DatabasePath = path_; }

  Survey survey_;
};

TEST_F(SurveyTest, AReplacedConnectionCommitsFirst) {
  std::string seen;
  survey_.set_statement_observer([&](std::string_view text) { seen += text; });
  survey_.OpenDatabaseConnection();
  survey_.Execute("Delete * from lst_province where ProvinceCD = 1");
  survey_.OpenDatabaseConnection();
  EXPECT_EQ(AnswerOfFile("select count(*) from lst_province"), "1");
  survey_.Execute("Delete * from lst_province");
  survey_.CloseDatabaseConnection();
  EXPECT_FALSE(survey_.DatabaseConnection);
  EXPECT_EQ(AnswerOfFile("select count(*) from lst_province"), "0");
  EXPECT_EQ(seen, "Delete * from lst_province where ProvinceCD = 1Delete * from lst_province");

  const auto reader = Open();
  survey_.OpenDatabaseConnection();
  survey_.Execute("Delete * from lst_college");
  reader->ExecuteScript("BEGIN; select count(*) from lst_college");
  FailsWith(5, [&] { survey_.OpenDatabaseConnection(); });
  reader->ExecuteScript("COMMIT");
  EXPECT_EQ(Answer("select count(*) from lst_college", *reader), "2");
}

TEST_F(SurveyTest, ControlTotalSumsACampusAndACodeWhateverTheCollege) {
  survey_.OpenDatabaseConnection();
  survey_.CampusEmisNumber = 11;
  for (const char* row :
       {"99,11,4,2012,7", "99,11,4,2012,5", "99,11,5,2012,100", "10,12,4,2012,1000",
        "null,11,6,2012,3", "10,11,9,2012,0", "10,11,10,2012,2.5", "10,11,13,2012,2147483647",
        "10,11,14,2012,2147483648", "10,11,15,2012,null", "10,11,1,2011,5", "10,11,1,2012,7",
        "10,11,2,2012,20", "12,11,2,2012,40"}) {
    survey_.Execute(
        "Insert into tbl_StudentRegistration(CollegeEmisNumber,CampusEmisnumber,"
        "ProgrammeRegistrationTypeCD,SurveyYear,Quantity)VALUES(" +
        std::string(row) + ")");
  }
  for (const double college : {0.0, 10.0, 99.0}) {
    survey_.CollegeEmisNumber = college;
    for (const auto& [code, total] :
         {std::pair{4, 12}, {6, 3}, {9, 0}, {10, 2}, {13, 2147483647}, {16, 0}}) {
      EXPECT_EQ(survey_.ControlTotal(static_cast<std::int16_t>(code)), total);
    }
    EXPECT_THAT(survey_.ControlTotal(1), testing::AnyOf(5, 7));  // one year, not the sum
    EXPECT_THAT(survey_.ControlTotal(2), testing::AnyOf(20, 40));
  }
  EXPECT_EQ(FailsWith(6, [&] { survey_.ControlTotal(14); }), "Overflow");
  FailsWith(94, [&] { survey_.ControlTotal(15); });
}

}  // namespace
}  // namespace survey
