#include "collect/plain_database.h"

#include <sqlite3.h>

#include "base/run_time_error.h"
#include "base/text.h"

namespace survey {
namespace {

void Bind(sqlite3_stmt* insert, int place, const Value& value) {
  if (value.IsNumber()) {
    sqlite3_bind_double(insert, place, value.Number());
  } else if (!value.IsNull()) {
    const std::string text = ToValidUtf8(value.Text());
    sqlite3_bind_text(insert, place, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
  }
}

}  // namespace

void PlainDatabase::CloseDatabase::operator()(sqlite3* database) const { sqlite3_close(database); }

void PlainDatabase::FinalizeStatement::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

// The engine of the store without a key: a second one in the same program would be a trap.
PlainDatabase::PlainDatabase(const std::string& path) {
  sqlite3* database = nullptr;
  const int code =
      sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  database_.reset(database);
  Require(code);
  Run("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA locking_mode = EXCLUSIVE; "
      "BEGIN");
}

PlainDatabase::~PlainDatabase() = default;

void PlainDatabase::AddTable(const StoreTable& table, const std::vector<StoreColumn>& columns) {
  std::string declared;
  std::string places;
  const auto declare = [&](const StoreColumn& column) {
    declared +=
        (declared.empty() ? "" : ", ") + column.name + (column.is_text ? " TEXT" : " NUMERIC");
    places += places.empty() ? "?" : ",?";
  };
  for (const StoreColumn& column : columns) declare(column);
  for (const StoreColumn& column : table.columns) declare(column);
  Run("CREATE TABLE " + table.name + " (" + declared + ")");
  sqlite3_stmt* insert = nullptr;
  const std::string sql = "INSERT INTO " + table.name + " VALUES (" + places + ")";
  Require(sqlite3_prepare_v2(database_.get(), sql.c_str(), -1, &insert, nullptr));
  inserts_[table.name].reset(insert);
}

void PlainDatabase::AddRow(const std::string& table, const Row& first, const Row& rest) {
  sqlite3_stmt* insert = inserts_.at(table).get();
  int place = 0;
  for (const Row* part : {&first, &rest}) {
    for (const Value& value : *part) Bind(insert, ++place, value);
  }
  const int code = sqlite3_step(insert);
  if (code != SQLITE_DONE) Require(code);
  sqlite3_reset(insert);
  sqlite3_clear_bindings(insert);
}

void PlainDatabase::Finish() {
  inserts_.clear();
  Run("COMMIT");
}

void PlainDatabase::Run(const std::string& sql) {
  Require(sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr));
}

void PlainDatabase::Require(int code) const {
  if (code == SQLITE_OK) return;
  throw RunTimeError(code, std::string("the gathered database cannot be written: ") +
                               sqlite3_errmsg(database_.get()));
}

}  // namespace survey
