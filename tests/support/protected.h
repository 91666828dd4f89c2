#ifndef TESTS_SUPPORT_PROTECTED_H_
#define TESTS_SUPPORT_PROTECTED_H_

#include <filesystem>
#include <stdexcept>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace survey::testing {

// While it lives, a file or folder may not be written to. An administrator may write everywhere:
// the test is somebody else meanwhile, who may look into the folder in which it lies.
class Protected {
 public:
  static constexpr auto kReadable = static_cast<std::filesystem::perms>(0555);

  explicit Protected(const std::filesystem::path& path, std::filesystem::perms perms = kReadable)
      : path_(path), before_(std::filesystem::status(path).permissions()) {
    std::filesystem::permissions(path_, perms);
    std::filesystem::permissions(path_.parent_path(), kReadable,
                                 std::filesystem::perm_options::add);
#ifndef _WIN32
    if (getuid() == 0 && seteuid(65534) != 0) throw std::runtime_error("still administrator");
#endif
  }
  ~Protected() {
#ifndef _WIN32
    if (getuid() == 0 && seteuid(0) != 0) std::terminate();
#endif
    std::filesystem::permissions(path_, before_);
  }
  Protected(const Protected&) = delete;
  Protected& operator=(const Protected&) = delete;

 private:
  std::filesystem::path path_;
  std::filesystem::perms before_;
};

}  // namespace survey::testing

#endif  // TESTS_SUPPORT_PROTECTED_H_
