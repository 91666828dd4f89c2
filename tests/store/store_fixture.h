#ifndef TESTS_STORE_STORE_FIXTURE_H_
#define TESTS_STORE_STORE_FIXTURE_H_

#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "base/run_time_error.h"
#include "store/recordset.h"
#include "store/survey.h"
#include "template/template.h"

namespace survey {

inline std::string ReadBytes(const std::filesystem::path& path) {
  std::ifstream stream(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

inline void WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

inline SurveyLists SmallLists() {
  return {.provinces = {{1, "Western Cape"}, {7, "Gauteng"}},
          .sites = {{10, "North 'n South", 10, "Office", 1, 7}, {10, "North", 11, "Élan", 2, 7}},
          .subjects = {{"0456", "Maths", "NC(V)"}, {"456", "Welding", "Report 191"}},
          .qualifications = {{58761, "Baker's Mate", 11, "Level 2"}}};
}

// A folder that is gone after the test, with a survey database in it.
class StoreTest : public ::testing::Test {
 protected:
  StoreTest() {
    std::filesystem::create_directories(folder_);
    MakeTemplate(SmallLists(), path_);
  }
  ~StoreTest() override { std::filesystem::remove_all(folder_); }

  std::unique_ptr<Connection> Open() { return Connection::Open(path_, DatabasePassword(), keys_); }

  // What a query of one field answers in its first row.
  static std::string Answer(const std::string& query, Connection& connection) {
    Recordset rows;
    rows.Open("select (" + query + ") as answer", &connection);
    return rows.Field("Answer").Text();
  }
  std::string AnswerOfFile(const std::string& query) { return Answer(query, *Open()); }

  std::set<std::string> FilesInFolder() const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
      names.insert(entry.path().filename().string());
    }
    return names;
  }

  const std::filesystem::path folder_ =
      std::filesystem::path(::testing::TempDir()) / ("survey-store-" + std::to_string(getpid()));
  const std::string path_ = (folder_ / "Site.mdb").string();
  CipherKeys keys_;
};

// Runs `action`, which must fail with this number; gives the description back.
template <typename Action>
std::string FailsWith(double number, Action action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), number) << error.what();
    return error.what();
  }
  ADD_FAILURE() << "nothing failed";
  return {};
}

}  // namespace survey

#endif  // TESTS_STORE_STORE_FIXTURE_H_
