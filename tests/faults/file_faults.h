#ifndef TESTS_FAULTS_FILE_FAULTS_H_
#define TESTS_FAULTS_FILE_FAULTS_H_

#include <filesystem>
#include <vector>

namespace survey::testing {

// What may happen to a database file while its pages are open.
struct FileFault {
  const char* name;
  void (*begin)(const std::filesystem::path& file);
  void (*end)(const std::filesystem::path& file);  // all is as before
  const char* told_when_saving;
  const char* told_when_opening = nullptr;  // null: the file can be opened
};

const std::vector<FileFault>& FileFaults();

}  // namespace survey::testing

#endif  // TESTS_FAULTS_FILE_FAULTS_H_
