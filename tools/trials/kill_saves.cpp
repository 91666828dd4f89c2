#include "kill_saves.h"

#include <signal.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <new>
#include <random>
#include <stdexcept>
#include <vector>

#include "disk_faults.h"
#include "filled_site.h"

namespace survey::testing {
namespace {

constexpr int kMostParts = 40;

// Written by the program that saves, read when it is dead.
struct Progress {
  std::array<int, kMostParts> begun;  // the last version whose save has begun, for each part
  std::array<int, kMostParts> done;   // the last version whose save has returned
};

Progress* SharedProgress() {
  void* memory =
      mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) throw std::bad_alloc();
  return new (memory) Progress{};
}

class KillTrial {
 public:
  explicit KillTrial(std::uint32_t seed) : dice_(seed) {
    for (int version = 0; version < 2; ++version) {
      site_.SaveAll(version);
      for (const SavedPart& part : SavedParts()) {
        expected_[version].push_back(RowsOf(*site_.survey.DatabaseConnection, part));
      }
    }
    for (std::size_t i = 0; i < SavedParts().size(); ++i) {
      progress_->begun[i] = progress_->done[i] = 1;
      if (expected_[0][i] == expected_[1][i] || expected_[0][i].empty()) {
        throw std::logic_error(SavedParts()[i].page + " is not told old from new");
      }
    }
    site_.survey.CloseDatabaseConnection();
  }
  ~KillTrial() { munmap(progress_, sizeof(Progress)); }
  KillTrial(const KillTrial&) = delete;
  KillTrial& operator=(const KillTrial&) = delete;

  void Round() {
    ++report.rounds;
    // A few pages only, in any order: most kills then fall into a save.
    std::vector<std::string> pages = SavedPages();
    std::ranges::shuffle(pages, dice_);
    pages.resize(3);
    const int kind = Roll(0, 3);
    const int moment = Roll(1, kind == 0 ? 60 : 250);
    const int delay = Roll(0, 120'000);
    const pid_t program = fork();
    if (program < 0) throw std::runtime_error("no second process");
    if (program == 0) Work(pages, kind, moment);
    if (kind == 2) {
      usleep(static_cast<useconds_t>(delay));
      kill(program, SIGKILL);
    }
    int status = 0;
    waitpid(program, &status, 0);
    if (!WIFSIGNALED(status) || WTERMSIG(status) != SIGKILL) {
      if (!WIFEXITED(status) || WEXITSTATUS(status) != 0)
        report.fault = "the program has crashed, or refused a save";
    }
    Inspect();
  }

  KillReport report;

 private:
  int Roll(int low, int high) { return std::uniform_int_distribution(low, high)(dice_); }

  // In the forked process.
  [[noreturn]] void Work(const std::vector<std::string>& pages, int kind, int moment) {
    if (kind == 0) KillSelfAtDiskCall(moment);
    int statements = 0;
    site_.survey.set_statement_observer([&](std::string_view) {
      if (kind == 1 && ++statements == moment) kill(getpid(), SIGKILL);
    });
    if (kind == 3) KillSelfAtDiskCall(moment * 2);
    for (const std::string& page : pages) SavePage(page);
    _exit(0);
  }

  void SavePage(const std::string& page) {
    const auto& parts = SavedParts();
    Form& form = site_.Open(page);
    const auto first = std::ranges::find(parts, page, &SavedPart::page) - parts.begin();
    const int version = progress_->done[first] + 1;
    site_.Fill(form, version % 2);
    std::string clicked;
    for (std::size_t i = first; i < parts.size() && parts[i].page == page; ++i) {
      for (std::size_t j = i; j < parts.size() && parts[j].page == page; ++j) {
        if (parts[j].button == parts[i].button) progress_->begun[j] = version;
      }
      if (clicked != parts[i].button) site_.Click(page, parts[i].button);
      clicked = parts[i].button;
      if (!site_.dialogs.seen.empty()) _exit(1);  // a save that was refused
      progress_->done[i] = version;
    }
    site_.host.Unload(form);
  }

  void Inspect() {
    namespace fs = std::filesystem;
    if (fs::exists(site_.survey.DatabasePath + "-journal")) ++report.left_journals;
    site_.survey.OpenDatabaseConnection();
    if (site_.dialogs.seen.empty()) {
      InspectParts();
      site_.survey.CloseDatabaseConnection();
    } else {
      report.fault = site_.LastBox();
    }
    for (const auto& entry : fs::directory_iterator(site_.folder.path())) {
      if (entry.path().extension() == ".mdb") continue;
      report.fault = entry.path().filename().string() + " stays beside the database, " +
                     std::to_string(entry.file_size()) + " bytes";
    }
  }

  void InspectParts() {
    Recordset sound;
    sound.Open("PRAGMA integrity_check", site_.survey.DatabaseConnection.get());
    if (sound.Field("integrity_check").Text() != "ok") report.fault = "the file is not sound";
    bool under_way = false;
    for (std::size_t i = 0; i < SavedParts().size(); ++i) {
      int& done = progress_->done[i];
      int& begun = progress_->begun[i];
      const std::string rows = RowsOf(*site_.survey.DatabaseConnection, SavedParts()[i]);
      const bool is_old = rows == expected_[done % 2][i];
      const bool is_new = begun != done && rows == expected_[begun % 2][i];
      if (!is_old && !is_new) report.fault = SavedParts()[i].page + " is neither old nor new";
      under_way = under_way || begun != done;
      if (begun != done) ++(is_new ? report.new_parts : report.old_parts);
      begun = done = is_new ? begun : done;
    }
    if (under_way) ++report.in_a_save;
  }

  FilledSite site_;
  std::mt19937 dice_;
  Progress* progress_ = SharedProgress();
  std::array<std::vector<std::string>, 2> expected_;  // rows of each part, by version
};

}  // namespace

KillReport KillSaves(int rounds, std::uint32_t seed) {
  KillTrial trial(seed);
  while (trial.report.rounds < rounds && trial.report.fault.empty()) trial.Round();
  return trial.report;
}

}  // namespace survey::testing
