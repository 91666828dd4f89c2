#include "store/letters.h"

#define SQLITE_HAS_CODEC 1
#include <sqlite3.h>

#include <vector>

#include "store/store_fixture.h"

namespace survey {
namespace {

using testing::ElementsAre;

class LettersTest : public StoreTest {
 protected:
  LettersTest() : connection_(Open()) {
    for (const char* surname : {"ZULU", "ÉLAN", "élan", "Fourie", "Elands", "Wêreldgeskiedenis"}) {
      connection_->Execute(std::string("Insert into tbl_StaffDetail(Surname,IDNumber) values ('") +
                           surname + "','" + surname + "')");
    }
    connection_->EndGroup();
  }
  std::vector<std::string> Surnames(const std::string& which) {
    Recordset staff;
    staff.Open("Select Surname from tbl_StaffDetail " + which, connection_.get());
    std::vector<std::string> surnames;
    for (; !staff.Eof(); staff.MoveNext()) surnames.push_back(staff.Field("Surname").Text());
    return surnames;
  }

  std::unique_ptr<Connection> connection_;
};

TEST_F(LettersTest, StatementsFindAndSortWithoutRegardToTheCaseOfAnyLetter) {
  EXPECT_THAT(Surnames("order by surname"),
              ElementsAre("ÉLAN", "élan", "Elands", "Fourie", "Wêreldgeskiedenis", "ZULU"));
  EXPECT_THAT(Surnames("where surname like  '%WÊRELD%'"), ElementsAre("Wêreldgeskiedenis"));
  EXPECT_THAT(Surnames("where IDNumber = 'éLAN'"), ElementsAre("ÉLAN", "élan"));
  connection_->Execute("Update tbl_StaffDetail set Surname = 'Éen' where IDNumber = 'Élan'");
  EXPECT_THAT(Surnames("where surname = 'éEN'"), ElementsAre("Éen", "Éen"));
  EXPECT_THAT(Surnames("where IDNumber = 'zulu'"), ElementsAre("ZULU"));
}

TEST_F(LettersTest, LikeKnowsItsTwoSigns) {
  for (const auto& [text, pattern] : {std::pair{"ABCabd", "%ab_"},
                                      {"aÉc", "A_C"},
                                      {"", "%%"},
                                      {"xaxbxb", "%a%b"},
                                      {"12", "12"}}) {
    EXPECT_EQ(Answer(std::string("'") + text + "' like '" + pattern + "'", *connection_), "1");
  }
  for (const auto& [text, pattern] :
       {std::pair{"aÉc", "a__c"}, {"ab", "a"}, {"a", "ab"}, {"", "_"}, {"xbxa", "%a%b"}}) {
    EXPECT_EQ(Answer(std::string("'") + text + "' like '" + pattern + "'", *connection_), "0");
  }
  EXPECT_EQ(Answer("null like '%'", *connection_), "");
}

TEST_F(LettersTest, TheFileStaysRightForAnEngineThatKnowsNothingOfIt) {
  connection_.reset();
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(path_.c_str(), &other), SQLITE_OK);
  sqlite3_key(other, DatabasePassword().data(), static_cast<int>(DatabasePassword().size()));
  const auto see = [](void* seen, int, char** fields, char**) {
    *static_cast<std::string*>(seen) += std::string(fields[0]) + " ";
    return 0;
  };
  std::string seen;
  for (const char* query :
       {"PRAGMA cipher_compatibility = 3", "PRAGMA integrity_check",
        "select count(*) from sqlite_master where sql like '%any_case%'",
        "select IDNumber from tbl_StaffDetail indexed by person_StaffDetail order by IDNumber"}) {
    EXPECT_EQ(sqlite3_exec(other, query, see, &seen, nullptr), SQLITE_OK) << sqlite3_errmsg(other);
  }
  sqlite3_close(other);
  EXPECT_EQ(seen, "ok 0 Elands Fourie Wêreldgeskiedenis ZULU ÉLAN élan ");
}

}  // namespace
}  // namespace survey
