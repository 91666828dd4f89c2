#include "faults/file_faults.h"

#include <fstream>
#include <memory>

#include "support/disk_faults.h"
#include "support/headless_program.h"
#include "support/protected.h"

namespace survey::testing {
namespace {

namespace fs = std::filesystem;

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

#ifndef _WIN32
std::unique_ptr<Protected> folder;

void MakeReadOnly(const fs::path& file) {
  fs::permissions(file, fs::perms::all);
  folder = std::make_unique<Protected>(file.parent_path());
}

void MakeWritable(const fs::path&) { folder.reset(); }
#endif

}  // namespace

const std::vector<FileFault>& FileFaults() {
  static const std::vector<FileFault> faults = {
      {"full disk", [](const fs::path&) { FillDiskAt(1); },
       [](const fs::path&) { EndDiskFaults(); }, "database or disk is full"},
#ifndef _WIN32  // tests/left_out_on_windows.txt says why
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
#endif
      {"cut", [](const fs::path& file) { CutTo(file, fs::file_size(file) / 2048 * 1024); },
       WriteBack, "the database file is damaged", "is damaged: a part of it is missing"},
      {"emptied", [](const fs::path& file) { CutTo(file, 0); }, WriteBack,
       "the database file is damaged", "is empty or too short"},
  };
  return faults;
}

}  // namespace survey::testing
