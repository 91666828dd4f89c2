#include "store/new_file.h"

#include <cerrno>
#include <chrono>
#include <random>
#include <string>
#include <system_error>

#include "base/run_time_error.h"
#include "base/text.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace survey {
namespace {

namespace fs = std::filesystem;

constexpr char kBeginning[] = "unfinished-";
constexpr std::chrono::hours kSurelyLeft{1};  // nobody writes one file for so long

bool IsOnDisk(std::FILE* file) {
#ifdef _WIN32
  return _commit(_fileno(file)) == 0;
#else
  return fsync(fileno(file)) == 0;
#endif
}

// Those that killed programs have left; another program may be writing one right now.
void RemoveLeftFiles(const fs::path& folder) {
  std::error_code error;
  const auto now = fs::file_time_type::clock::now();
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    std::error_code ignored;
    if (!Utf8(entry->path().filename()).starts_with(kBeginning)) continue;
    const auto written = fs::last_write_time(entry->path(), ignored);
    if (!ignored && now - written > kSurelyLeft) fs::remove(entry->path(), ignored);
  }
}

}  // namespace

NewFile::NewFile(fs::path path) : path_(std::move(path)) {
  RemoveLeftFiles(path_.parent_path());
  unfinished_ = path_.parent_path() / (kBeginning + std::to_string(std::random_device()()));
#ifdef _WIN32
  file_ = _wfopen(unfinished_.c_str(), L"wb");
#else
  file_ = std::fopen(unfinished_.c_str(), "wb");
#endif
  Require(file_ != nullptr);
  // A disk without owners, as most sticks are, has nothing to set.
  std::error_code ignored;
  fs::permissions(unfinished_, fs::perms::owner_read | fs::perms::owner_write, ignored);
}

NewFile::~NewFile() {
  if (file_ != nullptr) std::fclose(file_);
  std::error_code ignored;
  if (!unfinished_.empty()) fs::remove(unfinished_, ignored);
}

void NewFile::Write(std::string_view bytes) {
  Require(std::fwrite(bytes.data(), 1, bytes.size(), file_) == bytes.size());
}

void NewFile::Finish() {
  Require(std::fflush(file_) == 0 && IsOnDisk(file_));
  std::FILE* file = file_;
  file_ = nullptr;
  Require(std::fclose(file) == 0);  // a network drive may refuse as late as here
  std::error_code error;
  fs::rename(unfinished_, path_, error);
  if (error) errno = error.value();
  Require(!error);
  unfinished_.clear();
}

void NewFile::Require(bool done) const {
  if (done) return;
  constexpr double kCannotOpen = 14;  // as the engine tells of a file it cannot make
  throw RunTimeError(kCannotOpen, '"' + Utf8(path_) + "\" cannot be written: " +
                                      std::generic_category().message(errno));
}

}  // namespace survey
