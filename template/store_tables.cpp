#include "template/store_tables.h"

#include <sqlite3.h>

#include <memory>
#include <stdexcept>
#include <string_view>

#include "template/schema.h"

namespace survey {
namespace {

using Database = std::unique_ptr<sqlite3, int (*)(sqlite3*)>;

// The engine itself reads the schema, into a database that is nowhere.
Database MakeEmpty() {
  sqlite3* made = nullptr;
  const int opened = sqlite3_open(":memory:", &made);
  Database database(made, sqlite3_close);
  if (opened != SQLITE_OK || sqlite3_exec(made, kSchema, nullptr, nullptr, nullptr) != SQLITE_OK) {
    throw std::logic_error(std::string("the schema is none: ") + sqlite3_errmsg(made));
  }
  return database;
}

// `see` is given the fields of each row.
template <typename See>
void ForEachRow(sqlite3* database, const std::string& query, See see) {
  const auto call = [](void* seer, int, char** fields, char**) {
    (*static_cast<See*>(seer))(fields);
    return 0;
  };
  sqlite3_exec(database, query.c_str(), call, &see, nullptr);
}

std::vector<StoreTable> ReadTables() {
  const Database database = MakeEmpty();
  std::vector<StoreTable> tables;
  ForEachRow(database.get(), "SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY rowid",
             [&](char** fields) {
               tables.push_back({fields[0], {}});
             });
  for (StoreTable& table : tables) {
    ForEachRow(database.get(), "PRAGMA table_info(" + table.name + ")", [&](char** fields) {
      constexpr int kName = 1;
      constexpr int kType = 2;
      table.columns.push_back({fields[kName], std::string_view(fields[kType]) == "TEXT"});
    });
  }
  return tables;
}

}  // namespace

const std::vector<StoreTable>& StoreTables() {
  static const std::vector<StoreTable> tables = ReadTables();
  return tables;
}

}  // namespace survey
