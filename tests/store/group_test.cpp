#include "store/store_fixture.h"
#include "support/another_program.h"
#include "support/disk_faults.h"

namespace survey {
namespace {

using testing::AnotherProgram;
using ::testing::ElementsAre;

constexpr const char* kCount = "select count(*) from tbl_StudentEnrolment";

class GroupTest : public StoreTest {
 protected:
  static std::string Enrolment(int quantity) {
    return "Insert into tbl_StudentEnrolment(CollegeEmisNumber,CampusEmisnumber,ProgrammeTypeCD,"
           "GenderCD,SurveyYear,Quantity)VALUES(10,11,1,2,2012," +
           std::to_string(quantity) + ")";
  }
  static void Enrol(Connection& connection, int quantity) {
    connection.Execute(Enrolment(quantity));
  }

  // Another program that has run the statements and then waits, until it is killed.
  AnotherProgram Other(std::vector<std::string> statements) {
    statements.insert(statements.begin(), {"hold", path_});
    AnotherProgram other(statements);
    EXPECT_EQ(other.Read(), '!');
    return other;
  }

  // Opening these bytes beside the journal that lies there says what to do, and changes nothing.
  void ExpectNotPlayedInto(const std::string& bytes) {
    const std::string journal = ReadBytes(path_ + "-journal");
    const std::string now = ReadBytes(path_);
    WriteBytes(path_, bytes);
    EXPECT_THAT(FailsWith(14, [&] { Open(); }), ::testing::HasSubstr("move that journal out"));
    EXPECT_TRUE(ReadBytes(path_) == bytes && ReadBytes(path_ + "-journal") == journal);
    WriteBytes(path_, now);
  }
};

TEST_F(GroupTest, OneCommitEndsAGroupOfStatements) {
  const auto reader = Open();
  EXPECT_EQ(Answer(kCount, *reader), "0");
  auto writer = Open();
  writer->EndGroup();  // nothing was written
  Enrol(*writer, 1);   // would find the file locked, had the query begun a group
  Enrol(*writer, 2);
  EXPECT_EQ(Answer(kCount, *writer), "2");
  EXPECT_EQ(Answer(kCount, *reader), "0");
  writer->EndGroup();
  EXPECT_EQ(Answer(kCount, *reader), "2");
  Enrol(*writer, 3);
  writer.reset();  // commits as well
  EXPECT_EQ(Answer(kCount, *reader), "3");
}

TEST_F(GroupTest, AFailureTakesNothingBackOfWhatWasDoneBefore) {
  const auto connection = Open();
  connection->ExecuteScript(
      "create temp trigger unlucky before insert on tbl_StudentEnrolment when new.Quantity = 13 "
      "begin select raise(abort, 'thirteen'); end;"
      "create temp trigger worse before insert on tbl_StudentEnrolment when new.Quantity = 14 "
      "begin select raise(rollback, 'fourteen'); end;");
  Enrol(*connection, 1);
  EXPECT_EQ(FailsWith(19, [&] { Enrol(*connection, 13); }), "thirteen");
  EXPECT_THROW(connection->Execute("Insert into nowhere values(1)"), RunTimeError);
  Enrol(*connection, 2);
  connection->EndGroup();
  EXPECT_EQ(AnswerOfFile(kCount), "2");

  Enrol(*connection, 3);
  FailsWith(19, [&] { Enrol(*connection, 14); });  // the engine ends this group itself
  Enrol(*connection, 4);
  connection->EndGroup();
  EXPECT_EQ(AnswerOfFile("select group_concat(Quantity) from tbl_StudentEnrolment"), "1,2,4");
}

TEST_F(GroupTest, AnotherProgramsLockIsWaitedForAndThenReported) {
  const auto mine = Open();
  const auto other = Open();
  other->ExecuteScript("BEGIN EXCLUSIVE");
  EXPECT_EQ(FailsWith(5, [&] { Enrol(*mine, 1); }), "database is locked");
  other->ExecuteScript("COMMIT");
  Enrol(*mine, 2);

  other->ExecuteScript("BEGIN; select count(*) from lst_province");  // reads on while we commit
  EXPECT_EQ(FailsWith(5, [&] { mine->EndGroup(); }), "database is locked");
  other->ExecuteScript("COMMIT");
  EXPECT_EQ(Answer(kCount, *mine), "0");  // taken back as a whole
  Enrol(*mine, 3);
  mine->EndGroup();
  EXPECT_EQ(Answer("select Quantity from tbl_StudentEnrolment", *other), "3");
}

TEST_F(GroupTest, AKilledWriterLeavesTheLastCompleteState) {
  const auto size_before = std::filesystem::file_size(path_);
  const std::string before = ReadBytes(path_);
  Other({Enrolment(1), "commit", "Delete * from tbl_StudentEnrolment",
         // more than the engine keeps in memory, so that pages reach the file
         "Insert into tbl_StaffTraining(CourseName) with recursive n(i) as (select 1 union all "
         "select i + 1 from n where i < 5000) select hex(randomblob(500)) from n"})
      .Kill();
  ASSERT_GT(std::filesystem::file_size(path_), size_before * 2);
  ASSERT_THAT(FilesInFolder(), ElementsAre("Site.mdb", "Site.mdb-journal"));
  ExpectNotPlayedInto(before);  // a copy of an hour ago, put back beside the journal

  EXPECT_EQ(AnswerOfFile(kCount), "1");
  EXPECT_EQ(AnswerOfFile("select count(*) from tbl_StaffTraining"), "0");
  EXPECT_THAT(FilesInFolder(), ElementsAre("Site.mdb"));
  EXPECT_LT(std::filesystem::file_size(path_), size_before * 2);

  // One that has nothing to take back is kept as long as the other program lives.
  AnotherProgram writing = Other({Enrolment(2)});
  EXPECT_EQ(AnswerOfFile(kCount), "1");
  writing.Kill();
  ASSERT_THAT(FilesInFolder(), ElementsAre("Site.mdb", "Site.mdb-journal"));
  EXPECT_EQ(AnswerOfFile(kCount), "1");
  EXPECT_THAT(FilesInFolder(), ElementsAre("Site.mdb"));
}

TEST_F(GroupTest, AJournalIsPlayedIntoNoOtherStateOfItsFile) {
  // The end of a save is that the journal is removed: whoever is killed right before it leaves it.
  std::string journal;
  std::string states[4];
  for (int i = 0; i < 4; ++i) {
    if (i == 2) testing::SeeRemovals([&](const std::string& path) { journal = ReadBytes(path); });
    const auto connection = Open();
    Enrol(*connection, i);
    connection->EndGroup();
    states[i] = ReadBytes(path_);
    testing::EndDiskFaults();
  }
  MakeTemplate(SmallLists(), path_);
  const std::string foreign = ReadBytes(path_);
  WriteBytes(path_ + "-journal", journal);
  for (const std::string& other : {states[0], states[3], foreign, states[1].substr(0, 20 * 1024)}) {
    ExpectNotPlayedInto(other);
  }
  for (const std::string& own : {states[1], states[2]}) {  // not begun, and not removed at the end
    WriteBytes(path_, own);
    WriteBytes(path_ + "-journal", journal);
    EXPECT_EQ(AnswerOfFile(kCount), "2");
    EXPECT_THAT(FilesInFolder(), ElementsAre("Site.mdb"));
  }
}

}  // namespace
}  // namespace survey
