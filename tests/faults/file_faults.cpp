#include "faults/file_faults.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <fstream>
#include <stdexcept>

#include "faults/disk_faults.h"
#include "support/headless_program.h"

namespace survey::testing {
namespace {

namespace fs = std::filesystem;

void Must(bool done, const char* what) {
  if (!done) throw std::runtime_error(what);
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

}  // namespace

const std::vector<FileFault>& FileFaults() {
  static const std::vector<FileFault> faults = {
      {"full disk", [](const fs::path&) { FailWritesFrom(1, ENOSPC); },
       [](const fs::path&) { EndDiskFaults(); }, "database or disk is full"},
      {"folder made read-only", MakeReadOnly, MakeWritable,
       "nothing can be written into the folder"},
      {"removed", [](const fs::path& file) { fs::rename(file, Aside(file)); }, PutBack,
       "moved, replaced or removed", "does not exist"},
      {"replaced",
       [](const fs::path& file) {
         fs::rename(file, Aside(file));
         fs::copy_file(TemplateFile(), file);
       },
       PutBack, "moved, replaced or removed"},
      {"cut", [](const fs::path& file) { CutTo(file, fs::file_size(file) / 2048 * 1024); },
       WriteBack, "the database file is damaged", "is damaged: a part of it is missing"},
      {"emptied", [](const fs::path& file) { CutTo(file, 0); }, WriteBack,
       "the database file is damaged", "is empty or too short"},
  };
  return faults;
}

}  // namespace survey::testing
