// A program that is killed while it saves: every page is found as it was, or as it was to be.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "support/another_program.h"
#include "support/disk_faults.h"
#include "support/filled_site.h"

namespace survey::testing {
namespace {

namespace fs = std::filesystem;

class KillTest : public ::testing::Test {
 protected:
  KillTest() {
    for (const int version : {1, 0}) {
      site_.SaveAll(version);
      for (const std::string& page : PageNames()) shown_[version][page] = Shown(page);
    }
    site_.survey.CloseDatabaseConnection();
  }

  std::string Shown(const std::string& page) {
    Form& form = site_.Open(page);
    std::string texts = TextsOf(form);
    site_.host.Unload(form);
    return texts;
  }

  // Saves the other version of a few pages in a process of its own, which is killed at a random
  // disk call or statement. Answers how many saves have begun and how many have ended.
  std::array<int, 2> SaveAndKill(const std::vector<std::string>& pages) {
    const bool at_disk_call = Roll(0, 2) > 0;
    std::vector<std::string> arguments = {"save", site_.survey.DatabasePath,
                                          std::to_string(at_disk_call ? Roll(1, 150) : 0),
                                          std::to_string(at_disk_call ? 0 : Roll(1, 250))};
    for (const std::string& page : pages) {
      arguments.insert(arguments.end(), {page, std::to_string(1 - saved_[page])});
    }
    AnotherProgram program(arguments);
    std::array<int, 2> count{};
    while (const char mark = program.Read()) ++count[mark == 'e'];
    EXPECT_TRUE(program.Status() == kKilled || program.Status() == 0)
        << "it has crashed, or refused a save";
    return count;
  }

  int Roll(int low, int high) { return std::uniform_int_distribution(low, high)(dice_); }

  FilledSite site_;
  std::mt19937 dice_{20121015};
  std::map<std::string, int> saved_;  // the version that a page is in, 0 at first
  std::array<std::map<std::string, std::string>, 2> shown_;
};

TEST_F(KillTest, EveryPageIsOldOrNewAndNothingStaysBeside) {
  for (const std::string& page : PageNames()) {
    ASSERT_NE(shown_[0][page], shown_[1][page]) << page << " is not told old from new";
  }
  int within_saves = 0, journals = 0;
  for (int round = 0; round < 16; ++round) {
    std::vector<std::string> pages = PageNames();
    std::ranges::shuffle(pages, dice_);
    pages.resize(3);  // most kills then fall into a save
    const auto [begun, ended] = SaveAndKill(pages);
    within_saves += begun - ended;
    journals += fs::exists(site_.survey.DatabasePath + "-journal");
    site_.survey.OpenDatabaseConnection();
    Recordset check;
    check.Open("PRAGMA integrity_check", site_.survey.DatabaseConnection.get());
    ASSERT_EQ(check.Field("integrity_check").Text(), "ok");
    for (int i = 0; i < begun; ++i) {
      const std::string shown = Shown(pages[i]);
      int& version = saved_[pages[i]];
      if (i < ended || shown != shown_[version][pages[i]]) version = 1 - version;
      EXPECT_EQ(shown, shown_[version][pages[i]]) << pages[i] << " in round " << round;
    }
    site_.survey.CloseDatabaseConnection();
    for (const auto& entry : fs::directory_iterator(site_.folder.path())) {
      EXPECT_EQ(entry.path().extension(), ".mdb");
    }
  }
  for (const std::string& page : PageNames()) EXPECT_EQ(Shown(page), shown_[saved_[page]][page]);
  EXPECT_GT(within_saves, 4);
  EXPECT_GT(journals, 4);
}

// At each write of a save in turn.
TEST_F(KillTest, ADiskThatFillsUpLeavesAPageOldOrNewToo) {
  for (const std::string page : {"frmOtherProgrammes", "frmEducatorTeaching"}) {
    int writes = 0;
    for (bool saved = false; !saved; ++writes) {
      site_.Fill(site_.Open(page), 1);
      FillDiskAt(writes + 1);
      site_.Click(page, "cmdSave");
      EndDiskFaults();
      saved = site_.LastBox().empty();
      EXPECT_EQ(Shown(page), shown_[saved][page]);
    }
    EXPECT_GT(writes, 5);
  }
}

}  // namespace
}  // namespace survey::testing
