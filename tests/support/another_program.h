#ifndef TESTS_SUPPORT_ANOTHER_PROGRAM_H_
#define TESTS_SUPPORT_ANOTHER_PROGRAM_H_

#include <memory>
#include <string>
#include <vector>

class QProcess;

namespace survey::testing {

// A process of its own that works on a database while a test does: another_program_main.cpp tells
// what it can. Killed at the latest when this goes.
class AnotherProgram {
 public:
  explicit AnotherProgram(const std::vector<std::string>& arguments);
  ~AnotherProgram();
  AnotherProgram(AnotherProgram&& other) noexcept;

  // The next character that it says, 0 once it has ended.
  char Read();
  void Kill();
  // Waits for its end; its status.
  int Status();

 private:
  std::unique_ptr<QProcess> process_;
};

}  // namespace survey::testing

#endif  // TESTS_SUPPORT_ANOTHER_PROGRAM_H_
