#ifndef COLLECT_GATHERING_H_
#define COLLECT_GATHERING_H_

#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "collect/plain_database.h"
#include "collect/returned_file.h"
#include "collect/table.h"

namespace survey {

// A returned file and its records as lines of CSV, table by table: made beside each other, written
// one after the other.
struct GatheredFile {
  ReturnedFile file;
  std::map<std::string, std::string> lines;  // by table
};
GatheredFile PrepareToGather(ReturnedFile file);

// The folder with what many files hold: TABLE.csv for each table of the store, for sites, problems
// and codes, a script that loads them into PostgreSQL, and a plain database of the same. It comes
// under its name when it is whole. All calls throw std::runtime_error, or RunTimeError, where the
// disk refuses.
class Gathering {
 public:
  // Throws where `folder` is there already.
  explicit Gathering(const std::filesystem::path& folder);

  void Add(const GatheredFile& gathered);
  // Of files that were added already.
  void AddProblems(const std::string& file, const std::vector<Problem>& problems);
  // The last call.
  void Finish();

 private:
  void AddTable(const StoreTable& table, const std::vector<StoreColumn>& first = {});
  void AddRow(const std::string& table, const Row& row);
  void Write(const std::string& table, const std::string& lines);

  std::filesystem::path folder_;
  std::filesystem::path unfinished_;
  std::map<std::string, std::ofstream> files_;  // by table
  std::string load_script_;
  std::unique_ptr<PlainDatabase> database_;
};

}  // namespace survey

#endif  // COLLECT_GATHERING_H_
