#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <fstream>

#include "disk_faults.h"
#include "filled_site.h"
#include "forms/page_rules.h"
#include "kill_saves.h"
#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::AnyOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;
namespace fs = std::filesystem;

TEST(KilledProgramTest, LeavesEveryPageOldOrNewAndNothingBeside) {
  const KillReport report = KillSaves(16, 20121015);
  EXPECT_EQ(report.fault, "");
  EXPECT_GT(report.in_a_save, 4);
  EXPECT_GT(report.left_journals, 4);
}

void LimitFileSize(rlim_t bytes) {
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  getrlimit(RLIMIT_FSIZE, &limit);
  limit.rlim_cur = bytes;
  setrlimit(RLIMIT_FSIZE, &limit);
}

// What may happen to the file under a page that is open.
struct Misfortune {
  const char* name;
  void (*begin)(const fs::path& file);
  void (*end)(const fs::path& file);
  const char* told_when_saving;
  const char* told_when_opening;  // null: it can be opened
  bool is_slow = false;           // one page is enough
};

pid_t other_program = 0;

fs::path Aside(const fs::path& file) { return file.string() + ".aside"; }
void PutBack(const fs::path& file) { fs::rename(Aside(file), file); }
void Restore(const fs::path& file) {  // in place: the file that is open must be the same
  std::ifstream whole(Aside(file), std::ios::binary);
  std::ofstream(file, std::ios::binary) << whole.rdbuf();
  fs::remove(Aside(file));
}

const Misfortune kMisfortunes[] = {
    {"full disk", [](const fs::path&) { FailWritesFrom(1, ENOSPC); },
     [](const fs::path&) { EndDiskFaults(); }, "database or disk is full", nullptr},
    {"disk that takes no more", [](const fs::path&) { LimitFileSize(600); },
     [](const fs::path&) { LimitFileSize(RLIM_INFINITY); }, "disk I/O error", nullptr},
    {"folder made read-only",
     [](const fs::path& file) {  // an administrator may write everywhere: be somebody else
       chmod(file.c_str(), 0666);
       chmod(file.parent_path().c_str(), 0555);
       if (geteuid() == 0 && seteuid(65534) != 0) throw std::runtime_error("still administrator");
     },
     [](const fs::path& file) {
       if (getuid() == 0 && seteuid(0) != 0) throw std::runtime_error("no administrator again");
       chmod(file.parent_path().c_str(), 0700);
     },
     "nothing can be written into the folder", nullptr},
    {"removed", [](const fs::path& file) { fs::rename(file, Aside(file)); }, PutBack,
     "moved, replaced or removed", "does not exist"},
    {"replaced",
     [](const fs::path& file) {
       fs::rename(file, Aside(file));
       fs::copy_file(TemplateFile(), file);
     },
     PutBack, "moved, replaced or removed", nullptr},
    {"cut",
     [](const fs::path& file) {
       fs::copy_file(file, Aside(file));
       fs::resize_file(file, fs::file_size(file) / 2048 * 1024);
     },
     Restore, "the database file is damaged", "is damaged: a part of it is missing"},
    {"emptied",
     [](const fs::path& file) {
       fs::copy_file(file, Aside(file));
       fs::resize_file(file, 0);
     },
     Restore, "the database file is damaged", "is empty or too short"},
    {"locked",
     [](const fs::path& file) {
       int ends[2];
       ASSERT_EQ(pipe(ends), 0);
       other_program = fork();
       if (other_program == 0) {
         CipherKeys keys;
         const auto connection = Connection::Open(file, DatabasePassword(), keys);
         connection->ExecuteScript("BEGIN EXCLUSIVE");
         if (write(ends[1], "!", 1) == 1) pause();
       }
       char mark;
       ASSERT_EQ(read(ends[0], &mark, 1), 1);
     },
     [](const fs::path&) {
       kill(other_program, SIGKILL);
       waitpid(other_program, nullptr, 0);
     },
     "database is locked", "database is locked", true},
};

class MisfortuneTest : public ::testing::TestWithParam<int> {};

std::string Answers(Form& page) {
  std::string all;
  for (Control* control : page.controls()) {
    const auto* grid = dynamic_cast<Grid*>(control);
    for (int row = 1; grid != nullptr && row <= grid->MaxRows(); ++row) {
      for (int c = 1; c <= grid->MaxColumns(); ++c) all += grid->GetText(c, row) + "|";
    }
  }
  return all;
}

// The instrument says nothing of failed saves on these.
bool IsSilent(const std::string& page) {
  return page == "frmPage12_1" || page.starts_with("frmLecQualifications");
}

TEST_P(MisfortuneTest, IsToldAtEachPageAndLosesNothing) {
  const Misfortune& misfortune = kMisfortunes[GetParam()];
  constexpr std::size_t kEveryPart = 5;  // meets a misfortune, and every misfortune many parts
  const std::size_t step = misfortune.is_slow ? SavedParts().size() : kEveryPart;
  for (std::size_t i = (GetParam() + 3) % kEveryPart; i < SavedParts().size(); i += step) {
    const SavedPart& part = SavedParts()[i];
    SCOPED_TRACE(part.page + " " + part.button);
    FilledSite site;
    const fs::path file = site.survey.DatabasePath;
    Form& page = site.Open(part.page);
    const auto before = AllRows(file);
    site.Fill(page, 7);
    const std::string typed = Answers(page);
    misfortune.begin(file);
    const auto size = fs::exists(file) ? fs::file_size(file) : 0;
    site.Click(part.page, part.button);

    const ErrorName& save = RulesOf(part.page).save;
    if (IsSilent(part.page)) {
      for (const MessageBox& box : site.dialogs.seen) {
        EXPECT_THAT(box.prompt, ToldBy("modDatabaseConnection", "Database Access Error"));
      }
    } else {
      ASSERT_FALSE(site.dialogs.seen.empty());
      EXPECT_THAT(site.dialogs.seen.front().prompt, HasSubstr(misfortune.told_when_saving));
      if (*save.location) {
        EXPECT_THAT(site.dialogs.seen.back().prompt, ToldBy(save.location, save.procedure));
      }
    }
    EXPECT_EQ(site.forms.Ended(), part.page == "frmHostels");
    if (!site.forms.Ended()) {
      EXPECT_EQ(Answers(page), typed);
      site.dialogs.seen.clear();
      site.Click(part.page, "cmdPrintPage");
      EXPECT_EQ(site.LastBox(), "");
      EXPECT_EQ(site.printer.operations.back(), "EndDoc");
    }
    EXPECT_EQ(fs::exists(file) ? fs::file_size(file) : 0, size);
    misfortune.end(file);
    EXPECT_EQ(AllRows(file), before);
    if (site.forms.Ended()) continue;
    if (misfortune.told_when_opening != nullptr) site.survey.OpenDatabaseConnection();
    site.Click(part.page, part.button);
    EXPECT_EQ(site.LastBox(), "");
    const auto after = AllRows(file);
    EXPECT_NE(after, before);

    if (misfortune.told_when_opening == nullptr) continue;
    misfortune.begin(file);
    site.Open(part.page);
    ASSERT_FALSE(site.dialogs.seen.empty());
    EXPECT_THAT(site.dialogs.seen.front().prompt,
                AllOf(HasSubstr(misfortune.told_when_opening),
                      ToldBy("modDatabaseConnection", "Database Access Error")));
    const ErrorName& activate = RulesOf(part.page).activate;
    if (*activate.location && !IsSilent(part.page)) {
      EXPECT_THAT(site.dialogs.seen.back().prompt, ToldBy(activate.location, activate.procedure));
    }
    EXPECT_EQ(site.forms.Ended(), part.page == "frmPage12_2");
    misfortune.end(file);
    EXPECT_EQ(AllRows(file), after);
  }
}

INSTANTIATE_TEST_SUITE_P(Disk, MisfortuneTest,
                         ::testing::Range(0, static_cast<int>(std::size(kMisfortunes))),
                         [](const auto& test) {
                           std::string name = kMisfortunes[test.param].name;
                           std::ranges::replace(name, ' ', '_');
                           std::ranges::replace(name, '-', '_');
                           return name;
                         });

// Wherever in a save the disk fills up: the page is as it was, or it was saved.
TEST(FullDiskTest, LeavesAPageOldOrNewAtWhateverWriteItComes) {
  FilledSite site;
  site.SaveAll(0);
  for (const std::string page : {"frmOtherProgrammes", "frmEducatorTeaching"}) {
    const auto part = std::ranges::find(SavedParts(), page, &SavedPart::page);
    const auto rows = [&] { return RowsOf(*site.survey.DatabaseConnection, *part); };
    const std::string old = rows();
    int writes = 0;
    for (bool saved = false; !saved; ++writes) {
      Form& form = site.Open(page);
      site.Fill(form, 1);
      FailWritesFrom(writes + 1, ENOSPC);
      site.Click(page, part->button);
      EndDiskFaults();
      saved = site.LastBox().empty();
      ASSERT_EQ(rows() == old, !saved) << page << writes;
    }
    EXPECT_GT(writes, 5);
  }
}

}  // namespace
}  // namespace survey::testing
