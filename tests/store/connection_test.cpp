#include "store/connection.h"

#define SQLITE_HAS_CODEC 1
#include <sqlite3.h>

#include <vector>

#include "store/store_fixture.h"
#include "support/protected.h"

namespace survey {
namespace {

using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr std::size_t kPageBytes = 1024;

class ConnectionTest : public StoreTest {
 protected:
  // Opening must fail, name the file, and leave the folder as it was.
  void ExpectRefused(const std::string& path, double number, const std::string& reason) {
    const bool is_folder = std::filesystem::is_directory(path);
    const std::string before = is_folder ? "" : ReadBytes(path);
    const auto files_before = FilesInFolder();
    const std::string told =
        FailsWith(number, [&] { Connection::Open(path, DatabasePassword(), keys_); });
    EXPECT_THAT(told, ::testing::AllOf(HasSubstr(path), HasSubstr(reason)));
    EXPECT_TRUE(is_folder || ReadBytes(path) == before);
    EXPECT_EQ(FilesInFolder(), files_before);
  }
  void ExpectBytesRefused(const std::string& bytes, double number, const std::string& reason) {
    WriteBytes(path_, bytes);
    ExpectRefused(path_, number, reason);
  }
};

TEST_F(ConnectionTest, RefusesWhatIsNoFileOfOurs) {
  for (const std::string missing : {"/nowhere/none.mdb", "", ":memory:"}) {
    ExpectRefused(missing, SQLITE_CANTOPEN, "does not exist");
  }
  ExpectRefused(folder_.string(), SQLITE_CANTOPEN, "is not a file");
  ExpectBytesRefused("", SQLITE_NOTADB, "empty");
  ExpectBytesRefused(std::string(1023, 'x'), SQLITE_NOTADB, "too short");
  ExpectBytesRefused(std::string(4096, '\0'), SQLITE_NOTADB, "not a survey database");

  std::filesystem::remove(path_);
  sqlite3* plain = nullptr;
  ASSERT_EQ(sqlite3_open(path_.c_str(), &plain), SQLITE_OK);
  sqlite3_exec(plain, "create table tbl_SETAAccreditation(x)", nullptr, nullptr, nullptr);
  sqlite3_close(plain);
  ExpectRefused(path_, SQLITE_NOTADB, "without a password");

  std::filesystem::remove(path_);
  Connection::Create(path_, "TarquinVOx")->ExecuteScript("create table tbl_SETAAccreditation(x)");
  ExpectRefused(path_, SQLITE_NOTADB, "another password");
  FailsWith(SQLITE_CANTOPEN, [&] { Connection::Create(path_, "TarquinVOX"); });
}

// Each line is what a file from elsewhere may hold; some bring the engine down that reads them.
TEST_F(ConnectionTest, RefusesWhatRunsByItselfAndStopsWhatFindsNoEnd) {
  const std::string disguised =
      "pragma writable_schema = 1; insert into sqlite_master values('table','v','v',2,'";
  for (const std::string& script : std::vector<std::string>{
           "create view v as select 1",
           "create virtual table v using fts3(a)",
           "create trigger v after insert on tbl_StaffDetail begin select 1; end",
           "analyze; insert into sqlite_stat1 values('tbl_StaffDetail',null,'1 sz=0')",
           disguised + "CREATE VIEW tbl_x AS SELECT 1')",
           disguised + "CREATE TABLE v AS SELECT 1')",
           disguised + "CREATE TABLE [v (] AS SELECT (1)')",
           disguised + "create table SQLITE_Stat1(tbl,idx,stat)')",
           disguised +
               "CREATE TRIGGER hostel_new AFTER INSERT ON tbl_Hostels BEGIN SELECT 1; END')",
       }) {
    MakeTemplate(SmallLists(), path_);
    Open()->ExecuteScript(script.c_str());
    ExpectRefused(path_, SQLITE_NOTADB, "is not a survey database: it holds");
  }
  MakeTemplate(SmallLists(), path_);
  Open()->ExecuteScript("create table [of (others](a unique); create index i on [of (others](a)");
  const auto connection = Open();
  EXPECT_THAT(FailsWith(SQLITE_INTERRUPT,
                        [&] {
                          Answer(
                              "with recursive n(i) as (select 1 union all select i + 1 from n) "
                              "select count(*) from n",
                              *connection);
                        }),
              HasSubstr("found no end"));
  FailsWith(SQLITE_TOOBIG, [&] { Answer("hex(zeroblob(1000000))", *connection); });
  EXPECT_EQ(Answer("select count(*) from lst_province", *connection), "2");
}

TEST_F(ConnectionTest, RefusesEveryFileThatWasCut) {
  const std::string whole = ReadBytes(path_);
  for (std::size_t length = whole.size() - 1; length > 0; --length) {
    const std::size_t beside = (length + 1) % kPageBytes;  // at most 2 around the end of a page
    if (length > 3 * kPageBytes && beside > 2 && length % 499 != 0) continue;
    std::filesystem::resize_file(path_, length);
    const std::string told =
        FailsWith(length < kPageBytes ? SQLITE_NOTADB : SQLITE_CORRUPT, [&] { Open(); });
    ASSERT_THAT(told, HasSubstr(length < kPageBytes ? "too short" : "missing")) << length;
    if (beside == 1) {
      ASSERT_TRUE(ReadBytes(path_) == whole.substr(0, length)) << length;
    }
  }
  EXPECT_THAT(FilesInFolder(), ElementsAre("Site.mdb"));
}

// Whatever byte is changed: opening and reading give what was there, or fail, and change nothing.
TEST_F(ConnectionTest, NeverReadsAChangedByteAsAnAnswer) {
  {
    const auto connection = Open();  // rows of several pages, and pages that are not in use
    for (const char letter : {'a', 'b', 'c'}) {
      connection->Execute("Insert into tbl_StaffTraining(CourseName) values ('" +
                          std::string(3000, letter) + "')");
    }
    connection->EndGroup();
    connection->Execute("Delete * from tbl_StaffTraining where CourseName > 'c'");
  }
  const std::string whole = ReadBytes(path_);
  const auto contents = [this] {
    const auto connection = Open();
    std::string all;
    for (const char* table : {"lst_college", "tbl_StaffTraining"}) {
      Recordset rows;
      rows.Open(std::string("Select * from ") + table, connection.get());
      const char* field = table[0] == 't' ? "CourseName" : "CampusName";
      for (; !rows.Eof(); rows.MoveNext()) all += rows.Field(field).Text();
    }
    return all;
  };
  const std::string truth = contents();
  int refused = 0, read = 0, unsound = 0;
  for (std::size_t at = 0; at < whole.size(); at += 61) {
    std::string changed = whole;
    changed[at] = static_cast<char>(changed[at] ^ (1 << at % 8));
    WriteBytes(path_, changed);
    bool is_sound = false;
    try {
      Open()->RequireSoundFile();
      is_sound = true;
    } catch (const RunTimeError&) {
      ++unsound;
    }
    try {
      ASSERT_EQ(contents(), truth) << at;
      ++read;
    } catch (const RunTimeError& error) {
      ASSERT_EQ(error.number(), at < kPageBytes ? SQLITE_NOTADB : SQLITE_CORRUPT) << at;
      ASSERT_THAT(error.what(), AnyOf(HasSubstr("not a survey database"), HasSubstr("damaged")));
      ASSERT_FALSE(is_sound) << at;
      ++refused;
    }
    ASSERT_TRUE(ReadBytes(path_) == changed) << at;
  }
  EXPECT_GT(refused, 100);
  EXPECT_GT(read, 100);
  EXPECT_GT(unsound, refused + 100);  // all but the few pages that are not in use
  EXPECT_GT(unsound, (refused + read) * 9 / 10);
}

TEST_F(ConnectionTest, RefusesAFileWithoutPermission) {
  {
    const testing::Protected file(path_);
    ExpectRefused(path_, SQLITE_READONLY, "cannot be written");
  }
  const testing::Protected file(path_, std::filesystem::perms::none);
  ExpectRefused(path_, SQLITE_CANTOPEN, "cannot be read");
}

TEST_F(ConnectionTest, TheFileIsEncryptedAndAloneInItsFolder) {
  Open()->ExecuteScript("PRAGMA journal_mode = WAL");  // by another program
  {
    const auto connection = Open();
    connection->Execute("Update lst_province set Province = 'Readable'");
    EXPECT_THAT(FilesInFolder(), ElementsAre("Site.mdb", "Site.mdb-journal"));
    connection->EndGroup();
    EXPECT_THAT(FilesInFolder(), ElementsAre("Site.mdb"));
    Recordset mode;
    mode.Open("PRAGMA synchronous", connection.get());
    EXPECT_TRUE(mode.Field("synchronous").Is(3));
  }
  EXPECT_THAT(FilesInFolder(), ElementsAre("Site.mdb"));
  for (const char* plain : {"SQLite format 3", "Readable", "tbl_StaffDetail"}) {
    EXPECT_EQ(ReadBytes(path_).find(plain), std::string::npos) << plain;
  }
  EXPECT_EQ(AnswerOfFile("select min(Province) from lst_province"), "Readable");
}

TEST_F(ConnectionTest, TheKeyIsOfTheFileAndAnotherOneForAReplacedFile) {
  Salt salt;
  for (unsigned char i = 0; i < kSaltBytes; ++i) salt[i] = i;
  const std::string key = keys_.RawKey("TarquinVOX", salt);
  EXPECT_EQ(key, "x'6ecf186184e25ac739c6a82a4c46ca31f976a933ee6610f85c66e2275a83f1d6'");
  EXPECT_NE(keys_.RawKey("TarquinVOx", salt), key);

  EXPECT_EQ(AnswerOfFile("select count(*) from lst_province"), "2");
  SurveyLists other = SmallLists();
  other.provinces.resize(1);
  MakeTemplate(other, path_);
  EXPECT_EQ(AnswerOfFile("select count(*) from lst_province"), "1");
}

TEST_F(ConnectionTest, RecordsetsReadForwardByNameInAnyCase) {
  const auto connection = Open();
  std::vector<std::string> seen;
  connection->set_observer([&](std::string_view text) { seen.emplace_back(text); });
  const std::string query = "Select provinceCD,province from lst_province order by province";
  Recordset rows;
  EXPECT_TRUE(rows.Eof());
  rows.Open(query, connection.get());
  EXPECT_EQ(rows.RecordCount(), 2);
  EXPECT_EQ(rows.Field("PROVINCE").Text(), "Gauteng");
  connection->Execute("Delete * from lst_province");  // a recordset left open harms nobody
  rows.MoveNext();
  EXPECT_TRUE(rows.Field("ProvinceCD").Is(1));
  FailsWith(3265, [&] { rows.Field("provinc"); });
  rows.MoveNext();
  EXPECT_TRUE(rows.Eof());
  FailsWith(3021, [&] { rows.Field("province"); });
  FailsWith(1, [&] { rows.Open("Select x from lst_province", connection.get()); });
  EXPECT_EQ(rows.RecordCount(), 0);
  FailsWith(91, [&] { rows.Open(query, nullptr); });
  EXPECT_THAT(seen, ElementsAre(query, "Delete * from lst_province", "Select x from lst_province"));
}

}  // namespace
}  // namespace survey
