#ifndef STORE_NEW_FILE_H_
#define STORE_NEW_FILE_H_

#include <cstdio>
#include <filesystem>
#include <string_view>

namespace survey {

// A file that appears under its name only when it is whole and on the disk; until then it lies
// beside it under a name of its own, which nobody lists. Its owner alone may read and write it. All
// calls throw RunTimeError, with the reason, when the disk or the folder refuses.
class NewFile {
 public:
  explicit NewFile(std::filesystem::path path);
  // What was not finished is removed.
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  void Write(std::string_view bytes);
  // Replaces what stands under the name. The last call.
  void Finish();

 private:
  void Require(bool done) const;

  std::filesystem::path path_;
  std::filesystem::path unfinished_;
  std::FILE* file_ = nullptr;
};

}  // namespace survey

#endif  // STORE_NEW_FILE_H_
