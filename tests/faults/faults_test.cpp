#include <gtest/gtest.h>

#include "hostile_texts.h"
#include "kill_saves.h"
#include "misfortunes.h"

namespace survey::testing {
namespace {

TEST(FaultsTest, AKilledProgramLeavesEveryPageOldOrNewAndNothingBeside) {
  const KillReport report = KillSaves(16, 20121015);
  EXPECT_EQ(report.fault, "");
  EXPECT_GT(report.in_a_save, 4);
  EXPECT_GT(report.left_journals, 4);
}

// Every part meets a misfortune here and every misfortune some parts; all of both by hand.
TEST(FaultsTest, AMisfortuneOfTheFileIsToldAndLosesNothing) {
  for (std::size_t i = 0; i < Misfortunes().size(); ++i) {
    const bool is_slow = i + 1 == Misfortunes().size();  // each statement waits for the lock
    for (std::size_t part = i; part < SavedParts().size(); part += is_slow ? 99 : 7) {
      EXPECT_EQ(MeetMisfortune(Misfortunes()[i], SavedParts()[part]), "");
    }
  }
}

TEST(FaultsTest, ADiskThatFillsUpLeavesAPageOldOrNew) {
  for (const SavedPart& part : SavedParts()) {
    if (part.page == "frmOtherProgrammes" || part.page == "frmEducatorTeaching") {
      EXPECT_EQ(FillDiskDuringSave(part), "");
    }
  }
}

TEST(FaultsTest, ATextRunsNothingButItsOwnStatement) {
  const HostileReport typed = TypeHostileTexts();
  EXPECT_EQ(typed.fault, "");
  EXPECT_GT(typed.came_back, 30);
  EXPECT_GT(typed.told, 0);
  EXPECT_EQ(EnterHostileTexts().fault, "");
}

}  // namespace
}  // namespace survey::testing
