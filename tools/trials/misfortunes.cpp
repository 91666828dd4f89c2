#include "misfortunes.h"

#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <stdexcept>

#include "disk_faults.h"
#include "findings.h"

namespace survey::testing {
namespace {

namespace fs = std::filesystem;

pid_t other_program = 0;

void Must(bool done, const char* what) {
  if (!done) throw std::runtime_error(what);
}

void LimitFileSize(rlim_t bytes) {
  signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  Must(getrlimit(RLIMIT_FSIZE, &limit) == 0, "no limits");
  limit.rlim_cur = bytes;
  Must(setrlimit(RLIMIT_FSIZE, &limit) == 0, "no limit");
}

fs::path Aside(const fs::path& file) { return file.string() + ".aside"; }

void PutBack(const fs::path& file) { fs::rename(Aside(file), file); }

// In place: the file that is open must be the same.
void WriteBack(const fs::path& file) {
  {
    std::ifstream whole(Aside(file), std::ios::binary);
    std::ofstream(file, std::ios::binary) << whole.rdbuf();
  }
  fs::remove(Aside(file));
}

void CutTo(const fs::path& file, std::uintmax_t bytes) {
  fs::copy_file(file, Aside(file));
  fs::resize_file(file, bytes);
}

// An administrator may write everywhere: be somebody else meanwhile.
void MakeReadOnly(const fs::path& file) {
  Must(chmod(file.c_str(), 0666) == 0 && chmod(file.parent_path().c_str(), 0555) == 0, "no chmod");
  Must(getuid() != 0 || seteuid(65534) == 0, "still administrator");
}

void MakeWritable(const fs::path& file) {
  Must(getuid() != 0 || seteuid(0) == 0, "no administrator again");
  Must(chmod(file.parent_path().c_str(), 0700) == 0, "no chmod");
}

void LockByOtherProgram(const fs::path& file) {
  int ends[2];
  Must(pipe(ends) == 0, "no pipe");
  other_program = fork();
  if (other_program == 0) {
    CipherKeys keys;
    const auto connection = Connection::Open(file, DatabasePassword(), keys);
    connection->ExecuteScript("BEGIN EXCLUSIVE");
    while (write(ends[1], "!", 1) == 1) pause();
    _exit(1);
  }
  char mark;
  Must(read(ends[0], &mark, 1) == 1, "no lock");
  close(ends[0]);
  close(ends[1]);
}

void KillOtherProgram(const fs::path&) {
  kill(other_program, SIGKILL);
  waitpid(other_program, nullptr, 0);
}

std::string Answers(const Form& page) {
  std::string all;
  for (const Control* control : page.controls()) {
    const auto* grid = dynamic_cast<const Grid*>(control);
    for (int row = 1; grid != nullptr && row <= grid->MaxRows(); ++row) {
      for (int c = 1; c <= grid->MaxColumns(); ++c) all += grid->GetText(c, row) + "|";
    }
  }
  return all;
}

std::uintmax_t SizeOf(const fs::path& file) { return fs::exists(file) ? fs::file_size(file) : 0; }

std::string EndOfBox(const ErrorName& name) {
  return std::string("\r\nLocation: ") + name.location + "\r\nProcedure: " + name.procedure;
}

constexpr ErrorName kOpening{"modDatabaseConnection", "Database Access Error"};

// The instrument says nothing of their failed statements.
bool IsSilent(const std::string& page) {
  return page == "frmPage12_1" || page.starts_with("frmLecQualifications");
}

void CheckSaveBoxes(FilledSite& site, const Misfortune& misfortune, const SavedPart& part,
                    Findings& findings) {
  const auto& seen = site.dialogs.seen;
  if (IsSilent(part.page)) {
    for (const MessageBox& box : seen) {
      findings.Require(box.prompt.ends_with(EndOfBox(kOpening)), "not silent: " + box.prompt);
    }
    return;
  }
  findings.Require(!seen.empty(), "a save that fails is not told");
  if (seen.empty()) return;
  findings.Require(seen.front().prompt.find(misfortune.told_when_saving) != std::string::npos,
                   "told when saving: " + seen.front().prompt);
  const ErrorName& name = site.host.PageOf(part.page).errors.save;
  if (*name.location) {
    findings.Require(seen.back().prompt.ends_with(EndOfBox(name)), "told: " + seen.back().prompt);
  }
}

void CheckOpeningBoxes(const FilledSite& site, const Misfortune& misfortune,
                       const std::string& page, Findings& findings) {
  const std::vector<MessageBox>& seen = site.dialogs.seen;
  findings.Require(!seen.empty(), "an opening that fails is not told");
  if (seen.empty()) return;
  const std::string& first = seen.front().prompt;
  findings.Require(first.find(misfortune.told_when_opening) != std::string::npos &&
                       first.ends_with(EndOfBox(kOpening)),
                   "told when opening: " + first);
  const ErrorName& name = site.host.PageOf(page).errors.activate;
  if (*name.location && !IsSilent(page)) {
    findings.Require(seen.back().prompt.ends_with(EndOfBox(name)), "told: " + seen.back().prompt);
  }
}

}  // namespace

const std::vector<Misfortune>& Misfortunes() {
  static const std::vector<Misfortune> misfortunes = {
      {"full disk", [](const fs::path&) { FailWritesFrom(1, ENOSPC); },
       [](const fs::path&) { EndDiskFaults(); }, "database or disk is full", nullptr},
      {"disk that takes no more", [](const fs::path&) { LimitFileSize(600); },
       [](const fs::path&) { LimitFileSize(RLIM_INFINITY); }, "disk I/O error", nullptr},
      {"folder made read-only", MakeReadOnly, MakeWritable,
       "nothing can be written into the folder", nullptr},
      {"removed", [](const fs::path& file) { fs::rename(file, Aside(file)); }, PutBack,
       "moved, replaced or removed", "does not exist"},
      {"replaced",
       [](const fs::path& file) {
         fs::rename(file, Aside(file));
         fs::copy_file(TemplateFile(), file);
       },
       PutBack, "moved, replaced or removed", nullptr},
      {"cut", [](const fs::path& file) { CutTo(file, fs::file_size(file) / 2048 * 1024); },
       WriteBack, "the database file is damaged", "is damaged: a part of it is missing"},
      {"emptied", [](const fs::path& file) { CutTo(file, 0); }, WriteBack,
       "the database file is damaged", "is empty or too short"},
      {"locked", LockByOtherProgram, KillOtherProgram, "database is locked", "database is locked"},
  };
  return misfortunes;
}

std::string MeetMisfortune(const Misfortune& misfortune, const SavedPart& part) {
  Findings findings(part.page + " " + part.button + ", " + misfortune.name);
  FilledSite site;
  const fs::path file = site.survey.DatabasePath;
  Form& page = site.Open(part.page);
  const auto before = AllRows(file);
  site.Fill(page, 7);
  const std::string typed = Answers(page);
  misfortune.begin(file);
  const auto size = SizeOf(file);
  site.Click(part.page, part.button);
  CheckSaveBoxes(site, misfortune, part, findings);
  const bool ended = site.host.Ended();
  findings.Require(ended == (part.page == "frmHostels"), "the program has ended, or has not");
  if (!ended) {
    findings.Require(Answers(page) == typed, "the figures did not stay");
    site.dialogs.seen.clear();
    site.Click(part.page, "cmdPrintPage");
    findings.Require(site.dialogs.seen.empty() && site.printer.operations.back() == "EndDoc",
                     "the page is not printed");
  }
  findings.Require(SizeOf(file) == size, "the file was written to");
  misfortune.end(file);
  findings.Require(AllRows(file) == before, "something that was saved is lost");
  if (ended) return findings.first();

  if (misfortune.told_when_opening != nullptr) site.survey.OpenDatabaseConnection();
  site.dialogs.seen.clear();
  site.Click(part.page, part.button);
  findings.Require(site.LastBox().empty(), "the page is not saved when it is over");
  const auto after = AllRows(file);
  findings.Require(after != before, "nothing is saved when it is over");

  if (misfortune.told_when_opening == nullptr) return findings.first();
  misfortune.begin(file);
  site.Open(part.page);
  CheckOpeningBoxes(site, misfortune, part.page, findings);
  findings.Require(site.host.Ended() == (part.page == "frmPage12_2"), "ended when opening, or not");
  misfortune.end(file);
  findings.Require(AllRows(file) == after, "something that was saved is lost by opening");
  return findings.first();
}

std::string FillDiskDuringSave(const SavedPart& part) {
  Findings findings(part.page + " on a disk that fills up");
  FilledSite site;
  site.SaveAll(0);
  const auto rows = [&] { return RowsOf(*site.survey.DatabaseConnection, part); };
  std::vector<std::string> states = {rows()};
  int writes = 0;
  for (bool saved = false; !saved; ++writes) {
    Form& form = site.Open(part.page);
    site.Fill(form, 1);
    FailWritesFrom(writes + 1, ENOSPC);
    site.Click(part.page, part.button);
    EndDiskFaults();
    saved = site.LastBox().empty();
    if (rows() != states.back()) states.push_back(rows());
  }
  findings.Require(states.size() == 2, "was neither old nor new in between");
  findings.Require(writes > 5, "the save did not meet the full disk");
  return findings.first();
}

}  // namespace survey::testing
