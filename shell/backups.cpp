#include "shell/backups.h"

#include <algorithm>
#include <ctime>
#include <fstream>
#include <functional>
#include <system_error>

#include "base/text.h"
#include "store/new_file.h"

namespace survey {
namespace {

namespace fs = std::filesystem;

constexpr char kFolder[] = "Backups";
constexpr char kEnding[] = ".mdb";
constexpr std::size_t kMostCopies = 10;
constexpr std::string_view kDayPattern = "0000-00-00";

std::string Today() {
  const std::time_t now = std::time(nullptr);
  char day[kDayPattern.size() + 1] = "";
  std::strftime(day, sizeof day, "%Y-%m-%d", std::localtime(&now));
  return day;
}

bool IsDay(std::string_view text) {
  return std::ranges::equal(text, kDayPattern, [](char c, char pattern) {
    return pattern == '0' ? c >= '0' && c <= '9' : c == pattern;
  });
}

bool Holds(const fs::path& copy, Connection& database) {
  std::error_code error;
  if (fs::file_size(copy, error) != database.FileSize() || error) return false;
  std::ifstream stream(copy, std::ios::binary);
  std::string same;
  bool differs = false;
  database.ReadFile([&](std::string_view bytes) {
    same.resize(bytes.size());
    differs = !stream.read(same.data(), std::ssize(same)) || same != bytes;
    return !differs;
  });
  return !differs;
}

}  // namespace

Backups::Backups(const fs::path& data_folder)
    : data_folder_(data_folder), folder_(data_folder / kFolder) {}

void Backups::Keep(Connection& database, const fs::path& path) const {
  std::error_code error;
  if (fs::equivalent(path.parent_path(), folder_, error)) return;
  const std::string name = NameOf(path);
  const std::vector<std::string> days = DaysOf(name);
  if (!days.empty() && Holds(CopyOf(name, days.front()), database)) return;

  fs::create_directories(folder_, error);  // a failure shows itself in the next line
  const std::string today = Today();
  NewFile copy(CopyOf(name, today));
  database.ReadFile([&](std::string_view bytes) {
    copy.Write(bytes);
    return true;
  });
  copy.Finish();
  // Whatever the clock says, the new one stays.
  std::size_t kept = 1;
  for (const std::string& day : days) {
    if (day != today && ++kept > kMostCopies) fs::remove(CopyOf(name, day), error);
  }
}

std::string Backups::NameOf(const fs::path& path) const {
  std::error_code error;
  const fs::path folder = path.parent_path();
  if (fs::equivalent(folder, data_folder_, error)) return Utf8(path.stem());
  return Utf8(path.stem()) + " (" + Utf8(folder.filename()) + ")";
}

std::vector<std::string> Backups::DaysOf(const std::string& name) const {
  std::vector<std::string> days;
  std::error_code error;
  for (fs::directory_iterator entry(folder_, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string file = Utf8(entry->path().filename());
    if (!file.starts_with(name + " ") || !file.ends_with(kEnding)) continue;
    const std::size_t start = name.size() + 1;
    const std::size_t rest = start + std::size(kEnding) - 1;
    if (file.size() != rest + kDayPattern.size()) continue;
    const std::string day = file.substr(start, kDayPattern.size());
    if (IsDay(day)) days.push_back(day);
  }
  std::ranges::sort(days, std::greater());
  return days;
}

fs::path Backups::CopyOf(const std::string& name, const std::string& day) const {
  return folder_ / ToPath(name + " " + day + kEnding);
}

}  // namespace survey
