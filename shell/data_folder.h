#ifndef SHELL_DATA_FOLDER_H_
#define SHELL_DATA_FOLDER_H_

#include <filesystem>
#include <string>
#include <vector>

namespace survey {

// What a look for a file or a folder may answer.
enum class Found { kYes, kNo, kFailed };

// The databases beside the program: one file per college or campus in the data folder, each
// copied from the template.
class DataFolder {
 public:
  explicit DataFolder(std::filesystem::path program_folder);

  // Makes the folder where it is missing; a failure shows itself at the first use.
  Found MakeSure() const;

  // Names of the listed databases, without ending, in the order in which the folder gives them.
  // A name ends at its first point, so that "a.b.mdb" is listed as "a". Empty on failure.
  std::vector<std::string> Names() const;

  // Full path of the database of that name, whether it exists or not.
  std::string PathOf(const std::string& name) const;

  const std::filesystem::path& path() const { return folder_; }

  // Whether a database of that name may be made: kNo when it is free, kYes when something is
  // there, kFailed when that cannot be told, the name would lead out of the folder, or is too long.
  Found Look(const std::string& name) const;

  // Copies the template to the database of that name, which appears when it is whole, for its
  // owner alone; the journal of one that lay there before goes. A copy that fails leaves nothing
  // behind; answers why it failed, in words for the user, "" where it did not.
  std::string CopyTemplate(const std::string& name) const;

 private:
  std::filesystem::path program_folder_;
  std::filesystem::path folder_;
};

}  // namespace survey

#endif  // SHELL_DATA_FOLDER_H_
