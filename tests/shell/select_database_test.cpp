#include <gmock/gmock.h>
#include <gtest/gtest.h>
#ifndef _WIN32
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include <csignal>
#include <ctime>
#include <fstream>
#include <set>

#include "platform/program_folder.h"
#include "shell/data_folder.h"
#include "shell/database_name.h"
#include "shell/register_shell.h"
#include "support/headless_program.h"
#include "support/protected.h"

namespace survey::testing {
namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;
using ::testing::AllOf;
using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr char kForm[] = "frmSelectDatabase";
constexpr char kSetting[] = "OSTRELCORVALEANNUALSURVEY/Startup/Database";

class SelectDatabase : public HeadlessProgram, public ::testing::Test {
 protected:
  SelectDatabase() { RegisterShell(host); }

  fs::path Data() const { return folder.path() / "Data2012"; }
  void PutDatabase(const std::string& name) {
    fs::create_directory(Data());
    fs::copy_file(TemplateFile(), Data() / name);
  }
  fs::path Copy(const std::string& name) const { return Data() / "Backups" / (name + ".mdb"); }
  // Names in the folder of copies, without those of today.
  std::set<std::string> OlderCopies() const {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(Data() / "Backups")) {
      names.insert(entry.path().stem().string());
    }
    names.erase("North " + Today());
    return names;
  }
  static std::string Today() {
    const std::time_t now = std::time(nullptr);
    char day[11];
    std::strftime(day, sizeof day, "%Y-%m-%d", std::localtime(&now));
    return day;
  }
  static std::string Bytes(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  static void ExpectOfOwnerAlone([[maybe_unused]] const fs::path& path) {
#ifndef _WIN32  // where the rights of the folder decide
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
#endif
  }
  // Chooses the only database of the list, in a program that has just started.
  void ChooseNorth() {
    host.Unload(host.Get(kForm));
    Start("chkExisting");
    List().Choose(0);
    Continue();
  }
  // Opens the form and ticks one of its boxes, if any.
  void Start(std::string_view box = "") {
    host.Start(kForm);
    if (!box.empty()) Tick(box);
  }
  void Tick(std::string_view box) { The<CheckBox>(kForm, box).Click(); }
  bool Ticked(std::string_view box) { return The<CheckBox>(kForm, box).Value(); }
  ListBox& List() { return The<ListBox>(kForm, "lstFiles"); }
  std::string& Path() { return The<TextBox>(kForm, "txtpath").Text; }
  bool ContinueIsYellow() { return The<Button>(kForm, "cmdContinue").BackColor == kYellow; }
  void Continue() { Click(kForm, "cmdContinue"); }
  void NameNewDatabase(const std::string& name) {
    modal_scripts.push_back([name](Form& form) {
      ASSERT_EQ(form.name(), "frmDatabase");
      form.Find<TextBox>("txtDatabaseName").Enter(name);
      form.Find<Button>("cmdOk").Click();
    });
  }
  void ExpectNotMade(const std::string& cause) {
    Start("chkNew");
    NameNewDatabase("Zinnia");
    Continue();
    EXPECT_EQ(Front(), "frmSelectCollege");
    ASSERT_EQ(dialogs.seen.size(), 1u);
    EXPECT_EQ(dialogs.seen[0].picture, Picture::kError);
    EXPECT_THAT(LastBox(),
                AllOf(HasSubstr("does not exist. It could not be made: "), HasSubstr(cause)));
    EXPECT_FALSE(fs::exists(Data() / "Zinnia.mdb"));
    host.Unload(host.Get("frmSelectCollege"));
  }
};

TEST_F(SelectDatabase, ContinueSaysWhatIsMissing) {
  Start("chkExisting");
  EXPECT_TRUE(fs::is_directory(Data()));
  EXPECT_EQ(LastBox(), "You have no existing databases on this computer.");
  EXPECT_FALSE(Ticked("chkExisting"));
  Continue();
  EXPECT_EQ(LastBox(), "Please select a database to continue.");
  PutDatabase("North.mdb");
  host.Unload(host.Get(kForm));
  Start("chkExisting");
  Continue();
  EXPECT_EQ(LastBox(), "Please select a database.");
  EXPECT_EQ(Front(), kForm);
}

TEST_F(SelectDatabase, ListsNamesUpToTheFirstPointOfFilesThatEndInSmallMdb) {
  for (const char* name : {"North College.mdb", "a.b.mdb", "LOUD.MDB"}) PutDatabase(name);
  std::ofstream(Data() / "notes.txt") << "no database";
  fs::create_directory(Data() / "folder.mdb");
  Start("chkExisting");
  std::vector<std::string> names;
  for (const ListItem& item : List().items()) names.push_back(item.text);
  EXPECT_THAT(names, ::testing::UnorderedElementsAre("North College", "a"));
  List().Choose(names[0] == "a" ? 0 : 1);
  Continue();
  ASSERT_EQ(dialogs.seen.size(), 3u);
  EXPECT_EQ(dialogs.seen[0].prompt, dialogs.seen[1].prompt);
  EXPECT_EQ(LastBox(),
            "The database you have selected is not an Corvale database or it no longer exists.");
  EXPECT_EQ(Front(), kForm);
  EXPECT_EQ(survey.DatabasePath, "");
}

TEST_F(SelectDatabase, OptionsExcludeEachOtherAndPaintContinueToTheLetter) {
  PutDatabase("North.mdb");
  Start();
  EXPECT_FALSE(List().Enabled);
  Tick("chkExisting");
  EXPECT_TRUE(List().Enabled && !ContinueIsYellow());
  List().Choose(0);
  EXPECT_TRUE(ContinueIsYellow());
  EXPECT_EQ(survey.ChosenDatabaseName, "North");
  EXPECT_EQ(host.Front()->TakeFocusRequest(), &The<Button>(kForm, "cmdContinue"));
  Tick("chkNew");
  EXPECT_FALSE(Ticked("chkExisting") || List().Enabled);
  EXPECT_EQ(List().ListIndex(), -1);
  EXPECT_TRUE(ContinueIsYellow());
  Tick("chNetwork");  // unticking chkNew puts the hint back
  EXPECT_FALSE(Ticked("chkNew") || ContinueIsYellow());
}

TEST_F(SelectDatabase, AListedDatabaseEmptiesTheRememberedPathWhichElseIsUsed) {
  PutDatabase("North.mdb");
  const std::string path = settings.values[kSetting] = (Data() / "North.mdb").string();
  Start("chkExisting");
  Continue();
  EXPECT_EQ(Front(), "frmSelectCollege");
  EXPECT_EQ(settings.values[kSetting], path);
  settings.written.clear();
  Start("chkExisting");
  EXPECT_EQ(Path(), path);
  The<TextBox>(kForm, "txtpath").Enter("/nowhere/x.mdb");
  Continue();
  EXPECT_NE(LastBox(), "");  // refused, and not remembered either
  List().Choose(0);
  Continue();
  EXPECT_EQ(Front(), "frmSelectCollege");
  EXPECT_THAT(dialogs.seen, IsEmpty());
  EXPECT_EQ(survey.DatabaseName, "North");
  EXPECT_THAT(settings.written,
              ElementsAre((folder.path() / "CorvaleAnnualOstrel.mdb").string(), ""));
}

TEST_F(SelectDatabase, ATypedNetworkPathGoesThroughUnchecked) {
  Start("chNetwork");
  The<TextBox>(kForm, "txtpath").Enter("/nowhere/x.mdb");
  Continue();
  EXPECT_EQ(Front(), "frmSelectCollege");
  ASSERT_EQ(dialogs.seen.size(), 1u);
  EXPECT_EQ(dialogs.seen[0].picture, Picture::kError);
  EXPECT_THAT(dialogs.seen[0].prompt, HasSubstr("\r\nLocation: modDatabaseConnection\r\n"
                                                "Procedure: Database Access Error"));
  EXPECT_EQ(settings.values[kSetting], "/nowhere/x.mdb");
}

TEST_F(SelectDatabase, BrowseTakesAGoodDatabaseAndRefusesAWrongFile) {
  PutDatabase("North.mdb");
  std::ofstream(Data() / "letter.mdb") << "Dear principal";
  Start();
  dialogs.file = (Data() / "letter.mdb").string();
  Click(kForm, "cmdBrowse");
  EXPECT_EQ(dialogs.filter_seen, "Database Files (*.mdb)|*.mdb");
  ASSERT_EQ(dialogs.seen.size(), 2u);
  EXPECT_EQ(LastBox(), "The database you have selected is not the correct database.");
  EXPECT_EQ(Path(), "");
  EXPECT_EQ(fs::file_size(Data() / "letter.mdb"), 14u);
  EXPECT_EQ(dialogs.folder_seen, Data());
  dialogs.file = (folder.path() / kTemplateFile).string();
  Click(kForm, "cmdBrowse");
  EXPECT_EQ(dialogs.seen.size(), 1u);
  EXPECT_EQ(LastBox() + Path(), "The database you have selected is not the correct database.");
  dialogs.file = (Data() / "North.mdb").string();
  Click(kForm, "cmdBrowse");
  EXPECT_EQ(LastBox(), "");
  Continue();  // a browsed path does without an option, and is then not remembered
  EXPECT_EQ(Front(), "frmSelectCollege");
  EXPECT_EQ(settings.written.back(), "");
}

TEST_F(SelectDatabase, ANewDatabaseIsACopyOfTheTemplate) {
  Start("chkNew");
  NameNewDatabase("  Zinnia Valley ");
  Continue();
  EXPECT_EQ(Front(), "frmSelectCollege");
  EXPECT_THAT(dialogs.seen, IsEmpty());
  EXPECT_EQ(survey.DatabaseName, "Zinnia Valley");
  EXPECT_EQ(survey.ChosenDatabaseName, "  Zinnia Valley ");
  EXPECT_EQ(survey.DatabasePath, (Data() / "Zinnia Valley.mdb").string());
  EXPECT_EQ(Bytes(survey.DatabasePath), Bytes(TemplateFile()));
  ExpectOfOwnerAlone(survey.DatabasePath);
}

TEST_F(SelectDatabase, ANewDatabaseTakesNothingOverFromOneThatWasThrownAway) {
  PutDatabase("North.mdb");
  const fs::path database = Data() / "North.mdb";
  const fs::path journal = Data() / "North.mdb-journal";
  {
    CipherKeys keys;
    const auto killed = Connection::Open(database.string(), DatabasePassword(), keys);
    killed->Execute(
        "Insert into tbl_StaffTraining(CourseName) with recursive n(i) as (select 1 union all "
        "select i + 1 from n where i < 5000) select hex(randomblob(500)) from n");
    fs::copy_file(journal, folder.path() / "left");
  }
  fs::remove(database);
  fs::rename(folder.path() / "left", journal);
  std::ofstream(Data() / "North.mdb-wal") << "of a program that keeps another kind of journal";
  Start("chkNew");
  NameNewDatabase("North");
  Continue();
  EXPECT_EQ(Front(), "frmSelectCollege");
  EXPECT_THAT(dialogs.seen, IsEmpty());
  EXPECT_EQ(Bytes(database), Bytes(TemplateFile()));
  EXPECT_EQ(std::distance(fs::directory_iterator(Data()), {}), 1);
}

#ifndef _WIN32
// The child is killed by the first byte beyond what a file may hold.
TEST_F(SelectDatabase, AKillInTheCopyLeavesNoDatabaseAndItsNameFree) {
  DataFolder data(folder.path());
  data.MakeSure();
  const pid_t program = fork();
  if (program == 0) {
    const rlimit few{20'000, 20'000};
    setrlimit(RLIMIT_FSIZE, &few);
    data.CopyTemplate("North");
    _exit(0);
  }
  int status = 0;
  waitpid(program, &status, 0);
  ASSERT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ);
  EXPECT_THAT(data.Names(), IsEmpty());
  ASSERT_EQ(data.Look("North"), Found::kNo);
  const auto left = *fs::directory_iterator(Data());
  fs::last_write_time(left.path(), fs::file_time_type::clock::now() - std::chrono::hours(2));
  data.CopyTemplate("North");
  EXPECT_EQ(Bytes(Data() / "North.mdb"), Bytes(TemplateFile()));
  EXPECT_FALSE(fs::exists(left.path()));
}
#endif

TEST_F(SelectDatabase, AChosenDatabaseIsCopiedOnceADayAndTenTimesAtMost) {
  PutDatabase("North.mdb");
  const fs::path database = Data() / "North.mdb";
  const std::string today = "North " + Today();
  ChooseNorth();
  EXPECT_EQ(Bytes(Copy(today)), Bytes(database));
  ExpectOfOwnerAlone(Copy(today));
  fs::rename(Copy(today), Copy("North 2012-10-31"));
  ChooseNorth();  // unchanged since
  EXPECT_FALSE(fs::exists(Copy(today)));

  std::set<std::string> kept = {"North 2012-10-31"};
  for (int day = 10; day < 20; ++day) {
    const std::string older = "North 2012-10-" + std::to_string(day);
    std::ofstream(Copy(older)) << "older";
    if (day > 11) kept.insert(older);
  }
  for (const char* other : {"North 2012-10-1", "North East 2012-10-10", "North 2012-10-10x"}) {
    std::ofstream(Copy(other)) << "no copy of this database";
    kept.insert(other);
  }
  RunScript("update lst_province set Province = 'Changed'");
  ChooseNorth();
  RunScript("update lst_province set Province = 'Again'");
  ChooseNorth();
  EXPECT_EQ(Bytes(Copy(today)), Bytes(database));
  EXPECT_EQ(OlderCopies(), kept);
  EXPECT_THAT(DataFolder(folder.path()).Names(), ElementsAre("North"));

  fs::create_directory(folder.path() / "Drive");
  fs::copy_file(database, folder.path() / "Drive" / "North.mdb");
  kept.insert("North (Drive) " + Today());
  for (const fs::path& path : {folder.path() / "Drive" / "North.mdb", Copy(today)}) {
    Start();
    dialogs.file = path.string();
    Click(kForm, "cmdBrowse");
    Continue();
    EXPECT_EQ(OlderCopies(), kept) << "of a copy there is none";
  }
  EXPECT_EQ(Bytes(Copy("North (Drive) " + Today())), Bytes(database));
  EXPECT_THAT(dialogs.seen, IsEmpty());
}

TEST_F(SelectDatabase, ACopyThatFailsIsToldOnceAndStopsNothing) {
  PutDatabase("North.mdb");
  std::ofstream(Data() / "Backups") << "in the way";
  ChooseNorth();
  ASSERT_EQ(dialogs.seen.size(), 1u);
  EXPECT_THAT(LastBox(), AllOf(HasSubstr("No backup copy of the database could be made"),
                               AnyOf(HasSubstr("Not a directory"), HasSubstr("No such file"))));
  EXPECT_EQ(Front(), "frmSelectCollege");
}

TEST_F(SelectDatabase, DamageAnywhereIsToldWhenTheDatabaseIsChosen) {
  PutDatabase("North.mdb");
  const fs::path database = Data() / "North.mdb";
  {
    std::fstream file(database, std::ios::binary | std::ios::in | std::ios::out);
    file.seekp(static_cast<std::streamoff>(fs::file_size(database)) - 600);
    file.put('x');
  }
  ChooseNorth();
  ASSERT_EQ(dialogs.seen.size(), 1u);
  EXPECT_THAT(LastBox(), ::testing::AllOf(HasSubstr("The database is damaged"),
                                          HasSubstr((Data() / "Backups").string())));
  EXPECT_EQ(Front(), kForm);
  dialogs.answers = {kAnswerYes};
  Continue();
  EXPECT_EQ(Front(), "frmSelectCollege");
  EXPECT_FALSE(fs::exists(Data() / "Backups"));
}

TEST_F(SelectDatabase, NamesOfNewDatabasesAreRefusedAndExitEndsTheProgramAtOnce) {
  PutDatabase("North.mdb");
  Start("chkNew");
  modal_scripts.push_back([this](Form& form) {
    auto& name = form.Find<TextBox>("txtDatabaseName");
    const auto try_name = [&](const char* text) {
      name.Enter(text);
      form.Find<Button>("cmdOk").Click();
      return LastBox() + "|" + name.Text;
    };
    EXPECT_EQ(try_name("   "), "Please enter a Database name.|   ");
    const std::string long_for_its_journal(244, 'n');
    for (const char* taken : {"North", "../outside", "sub/name", long_for_its_journal.c_str()}) {
      EXPECT_EQ(try_name(taken), "This database name already exists. Please supply another name.|");
    }
    for (const auto& [forbidden, told] : {std::pair{"a?b<c", "the sign '?'"},
                                          {"Duinekop: Campus", "the sign ':'"},
                                          {"North ..", "end with a full stop"},
                                          {"a\tb", "a tab"},
                                          {"nul", "\"nul\""},
                                          {"Com¹ .x", "\"Com¹\""}}) {
      EXPECT_THAT(try_name(forbidden), AllOf(HasSubstr(told), EndsWith("|"s + forbidden)));
    }
    for (const char* free : {"Conrad", "COM10", "LPT", "St. John's & Co", "São"}) {
      EXPECT_EQ(WhyNoName(free), "");
    }
    form.Find<Button>("cmdCancel").Click();
  });
  Continue();
  EXPECT_TRUE(host.Ended());
  EXPECT_THAT(dialogs.seen, IsEmpty());
  EXPECT_THAT(settings.written, IsEmpty());
  EXPECT_FALSE(fs::exists(folder.path() / "outside.mdb"));
}

TEST_F(SelectDatabase, AboutDoesWithoutSystemInformation) {
  Start();
  modal_scripts.push_back([this](Form& form) {
    form.Find<Button>("cmdSysInfo").Click();
    EXPECT_EQ(LastBox(), "System Information Is Unavailable At This Time");
    program_folder.has_system_information = true;
    form.Find<Button>("cmdSysInfo").Click();
    EXPECT_EQ(LastBox(), "");
    form.Find<Button>("cmdOK").Click();
    EXPECT_FALSE(form.loaded());
  });
  Click(kForm, "cmdAbout");
  EXPECT_EQ(Front(), kForm);
}

TEST_F(SelectDatabase, AMissingTemplateShowsOnTheSiteList) {
  fs::remove(folder.path() / kTemplateFile);
  ExpectNotMade("CorvaleAnnualOstrel2012.mdb\" is missing");
}

TEST_F(SelectDatabase, AProtectedFolderShowsOnTheSiteList) {
  {
    const Protected program(folder.path());
    ExpectNotMade("Data2012\" cannot be made: Permission denied");
  }
  fs::create_directory(Data());
  const Protected databases(Data());
  ExpectNotMade("Zinnia.mdb\" cannot be written: Permission denied");
}

}  // namespace
}  // namespace survey::testing
