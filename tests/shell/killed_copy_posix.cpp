#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "platform/program_folder.h"
#include "shell/data_folder.h"
#include "support/headless_program.h"

namespace survey::testing {
namespace {

namespace fs = std::filesystem;

// The child is killed by the first byte beyond what a file may hold.
TEST(KilledCopy, LeavesNoDatabaseAndItsNameFree) {
  const TemporaryFolder folder;
  fs::copy_file(TemplateFile(), folder.path() / kTemplateFile);
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
  EXPECT_THAT(data.Names(), ::testing::IsEmpty());
  ASSERT_EQ(data.Look("North"), Found::kNo);
  const auto left = *fs::directory_iterator(data.path());
  fs::last_write_time(left.path(), fs::file_time_type::clock::now() - std::chrono::hours(2));
  EXPECT_EQ(data.CopyTemplate("North"), "");
  EXPECT_EQ(fs::file_size(data.path() / "North.mdb"), fs::file_size(TemplateFile()));
  EXPECT_FALSE(fs::exists(left.path()));
}

}  // namespace
}  // namespace survey::testing
