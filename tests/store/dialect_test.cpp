#include "store/dialect.h"

#include "store/store_fixture.h"

namespace survey {
namespace {

TEST(Dialect, TranslatesOnlyOutsideQuotes) {
  EXPECT_EQ(ToEngineSql(" DELETE * from t where a = 2*3"), " DELETE  from t where a = 2*3");
  EXPECT_EQ(ToEngineSql("(#2012/1/4#,#2012/02/29#)"), "('2012/01/04','2012/02/29')");
  EXPECT_EQ(ToEngineSql("x = 'a' order BY t.a,b ,c"),
            "x = 'a' order BY t.a COLLATE any_case,b COLLATE any_case ,c COLLATE any_case");
  EXPECT_EQ(ToEngineSql("a ='O''\u00e9' and b = 'order by c'"),
            "a ='O''\u00e9' COLLATE any_case and b = 'order by c'");
  for (const char* same : {"Select * from t", "x = 'Delete * #1# & -- /* '", "x = \"#&--\"",
                           "[a & b#--]", "'\u00e9' order", "x = 'it''s & #'", "`&#`"}) {
    EXPECT_EQ(ToEngineSql(same), same);
  }
}

TEST(Dialect, RefusesWhatTheSurveyNeverSays) {
  for (const char* date : {"", "2011/02/29", "2012/13/01", "2012/1/0", "12/01/2012", "2012/1",
                           "2012/1/4/", "2012-01-04", "2012/1/4 10:00", "2012/-1/4"}) {
    EXPECT_THROW(ToEngineSql("x = #" + std::string(date) + "#"), RunTimeError) << date;
  }
  for (const char* statement :
       {"a -- b", "a /* b */", "'a", "'a''", "\"a", "[a", "`a", "#2012/1/4", "'O'Neil'"}) {
    EXPECT_THROW(ToEngineSql(statement), RunTimeError) << statement;
  }
}

class DialectTest : public StoreTest {};

TEST_F(DialectTest, JoinedOperandsAlwaysHoldAndBindLikeAComparison) {
  const auto connection = Open();
  for (const std::string joined : {"10 & 123", "0 & 0", "null & 0", "'' & -1", "'x' & 1.5"}) {
    EXPECT_EQ(Answer(joined + " and 5 = 5", *connection), "1") << joined;
    EXPECT_EQ(Answer(joined + " and 5 = 6", *connection), "0") << joined;
  }
}

TEST_F(DialectTest, AStrayQuoteBreaksAStatementAndNeverRunsASecond) {
  const auto connection = Open();
  for (const std::string hostile :
       {"x'; Delete * from lst_province where '1' = '1", "x'; Delete from lst_province; --",
        "x'; Delete from lst_province; select '", "'; COMMIT; '", "x') /*", "x'\""}) {
    EXPECT_THROW(connection->Execute("Update lst_province set Province = '" + hostile + "'"),
                 RunTimeError);
  }
  using namespace std::string_literals;
  for (const std::string& statement :
       {";"s, " \n"s, "Delete from lst_province;;"s, "Delete from lst_province\0;"s}) {
    EXPECT_THROW(connection->Execute(statement), RunTimeError) << statement;
  }
  const std::string untouched = "select count(*) from lst_province where Province like '%e%'";
  EXPECT_EQ(Answer(untouched, *connection), "2");
  connection->Execute("Delete from lst_province ; \r\n");
  EXPECT_EQ(Answer(untouched, *connection), "0");
}

}  // namespace
}  // namespace survey
