#include "shell/data_folder.h"

#include <fstream>
#include <system_error>

#include "base/run_time_error.h"
#include "base/text.h"
#include "platform/program_folder.h"
#include "store/new_file.h"

namespace survey {
namespace {

namespace fs = std::filesystem;

constexpr char kDataFolder[] = "Data2012";

// What the engine lays beside a database, named after it.
constexpr const char* kCompanions[] = {"-journal", "-wal"};

constexpr std::size_t kLongestName = 255;  // of a file, in bytes; some systems take fewer letters

std::string Quoted(const fs::path& path) { return '"' + Utf8(path) + '"'; }

void CopyFile(const fs::path& original, const fs::path& path) {
  constexpr std::size_t kBytesAtOnce = 1 << 16;
  std::ifstream source(original, std::ios::binary);
  NewFile copy(path);
  std::string bytes(kBytesAtOnce, '\0');
  do {
    source.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    copy.Write({bytes.data(), static_cast<std::size_t>(source.gcount())});
  } while (source);
  if (source.eof()) copy.Finish();
}

}  // namespace

DataFolder::DataFolder(fs::path program_folder)
    : program_folder_(std::move(program_folder)), folder_(program_folder_ / kDataFolder) {}

Found DataFolder::MakeSure() const {
  std::error_code error;
  if (fs::is_directory(folder_, error)) return Found::kYes;
  if (fs::exists(folder_, error)) return Found::kFailed;
  return fs::create_directory(folder_, error) ? Found::kNo : Found::kFailed;
}

std::vector<std::string> DataFolder::Names() const {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator entry(folder_, error), end; !error && entry != end;
       entry.increment(error)) {
    const std::string name = Utf8(entry->path().filename());
    std::error_code no_file;
    if (name.ends_with("mdb") && entry->is_regular_file(no_file)) {
      names.push_back(name.substr(0, name.find('.')));
    }
  }
  return names;
}

std::string DataFolder::PathOf(const std::string& name) const {
  return Utf8(folder_ / ToPath(name + ".mdb"));
}

Found DataFolder::Look(const std::string& name) const {
  if (name.find_first_of("/\\") != std::string::npos) return Found::kFailed;
  if ((name + ".mdb" + kCompanions[0]).size() > kLongestName) return Found::kFailed;
  std::error_code error;
  const fs::file_status status = fs::symlink_status(ToPath(PathOf(name)), error);
  if (status.type() == fs::file_type::none) return Found::kFailed;
  if (status.type() != fs::file_type::not_found) return Found::kYes;
  // One left without its database is removed; a folder is in the way.
  const fs::path journal = ToPath(PathOf(name) + kCompanions[0]);
  const fs::file_type left = fs::symlink_status(journal, error).type();
  if (left == fs::file_type::none) return Found::kFailed;
  return left == fs::file_type::directory ? Found::kYes : Found::kNo;
}

std::string DataFolder::CopyTemplate(const std::string& name) const {
  const fs::path original = program_folder_ / kTemplateFile;
  std::error_code error;
  if (!fs::is_regular_file(original, error)) return Quoted(original) + " is missing";
  fs::create_directory(folder_, error);
  if (error) return "the folder " + Quoted(folder_) + " cannot be made: " + error.message();
  for (const char* companion : kCompanions) {
    const fs::path left = ToPath(PathOf(name) + companion);
    fs::remove(left, error);
    if (error) return Quoted(left) + " cannot be removed: " + error.message();
  }
  try {
    CopyFile(original, ToPath(PathOf(name)));
  } catch (const RunTimeError& failure) {
    return failure.what();
  }
  return {};
}

}  // namespace survey
