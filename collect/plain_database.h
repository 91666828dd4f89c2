#ifndef COLLECT_PLAIN_DATABASE_H_
#define COLLECT_PLAIN_DATABASE_H_

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "collect/table.h"
#include "template/store_tables.h"

struct sqlite3;
struct sqlite3_stmt;

namespace survey {

// A new database without a password, for the department's own tools. Written in one go: what is not
// finished is no database.
class PlainDatabase {
 public:
  // Throws RunTimeError where nothing can be made at `path`.
  explicit PlainDatabase(const std::string& path);
  ~PlainDatabase();
  PlainDatabase(const PlainDatabase&) = delete;
  PlainDatabase& operator=(const PlainDatabase&) = delete;

  // `columns` come first, then the table's own.
  void AddTable(const StoreTable& table, const std::vector<StoreColumn>& columns);
  // `first` and then `rest`, one value for each column. Throws RunTimeError, when the disk is full
  // for instance, and std::out_of_range for no table of these.
  void AddRow(const std::string& table, const Row& first, const Row& rest = {});
  // The last call. Throws RunTimeError.
  void Finish();

 private:
  struct CloseDatabase {
    void operator()(sqlite3* database) const;
  };
  struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const;
  };

  void Run(const std::string& sql);
  void Require(int code) const;

  std::unique_ptr<sqlite3, CloseDatabase> database_;
  std::map<std::string, std::unique_ptr<sqlite3_stmt, FinalizeStatement>> inserts_;
};

}  // namespace survey

#endif  // COLLECT_PLAIN_DATABASE_H_
