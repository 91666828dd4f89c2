#ifndef SHELL_BACKUPS_H_
#define SHELL_BACKUPS_H_

#include <filesystem>
#include <string>
#include <vector>

#include "store/connection.h"

namespace survey {

// Copies of the databases, as they were when they were chosen: "NAME yyyy-mm-dd.mdb" in a folder
// of the data folder, one a day, the last ten of each database. A database that lies elsewhere
// bears the name of its folder as well: "NAME (FOLDER) yyyy-mm-dd.mdb".
class Backups {
 public:
  explicit Backups(const std::filesystem::path& data_folder);

  const std::filesystem::path& folder() const { return folder_; }

  // Copies the database, which lies at `path` and is open, where it differs from its last copy; no
  // copy is made of a copy. Throws RunTimeError when that fails; the copies are then what they
  // were.
  void Keep(Connection& database, const std::filesystem::path& path) const;

 private:
  std::string NameOf(const std::filesystem::path& path) const;
  // The days of which there is a copy, the last one first.
  std::vector<std::string> DaysOf(const std::string& name) const;
  std::filesystem::path CopyOf(const std::string& name, const std::string& day) const;

  std::filesystem::path data_folder_;
  std::filesystem::path folder_;
};

}  // namespace survey

#endif  // SHELL_BACKUPS_H_
