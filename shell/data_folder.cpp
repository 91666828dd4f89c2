#include "shell/data_folder.h"

#include <system_error>

#include "base/text.h"
#include "platform/program_folder.h"

namespace survey {
namespace {

namespace fs = std::filesystem;

constexpr char kDataFolder[] = "Data2012";

// Paths are UTF-8 throughout the program.
std::string Utf8(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
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
  std::error_code error;
  const fs::file_status status = fs::symlink_status(ToPath(PathOf(name)), error);
  if (status.type() == fs::file_type::not_found) return Found::kNo;
  return status.type() == fs::file_type::none ? Found::kFailed : Found::kYes;
}

void DataFolder::CopyTemplate(const std::string& name) const {
  const fs::path copy = ToPath(PathOf(name));
  std::error_code error;
  fs::copy_file(program_folder_ / kTemplateFile, copy, fs::copy_options::overwrite_existing, error);
  if (!error) {
    fs::permissions(copy, fs::perms::owner_write, fs::perm_options::add, error);
    return;
  }
  fs::remove(copy, error);
}

}  // namespace survey
