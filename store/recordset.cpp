#include "store/recordset.h"

#define SQLITE_HAS_CODEC 1
#include <sqlite3.h>

#include <algorithm>
#include <new>

#include "base/run_time_error.h"
#include "base/text.h"

namespace survey {
namespace {

constexpr int kOnePage = 500;  // bytes of a row that surely lie on one page of the file
// Of memory for one query: many times what a database of the whole country gives for any of ours.
constexpr std::size_t kMostBytes = std::size_t{512} << 20;

Value ColumnValue(sqlite3_stmt* statement, int column) {
  switch (sqlite3_column_type(statement, column)) {
    case SQLITE_NULL:
      return Value();
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
      return Value(sqlite3_column_double(statement, column));
    default:
      const void* bytes = sqlite3_column_blob(statement, column);
      const auto size = static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
      return Value(std::string(static_cast<const char*>(bytes), size));
  }
}

}  // namespace

void Recordset::Open(std::string_view statement, Connection* connection) {
  Close();
  if (!connection) throw ObjectNotSet();
  const Connection::Statement query = connection->Prepare(statement);
  try {
    rows_ = AllRows(*connection, query.get());
  } catch (const std::bad_alloc&) {
    throw OutOfMemory();
  }
  for (int column = 0; column < sqlite3_column_count(query.get()); ++column) {
    names_.emplace_back(sqlite3_column_name(query.get(), column));
  }
}

std::vector<std::vector<Value>> Recordset::AllRows(Connection& connection, sqlite3_stmt* query) {
  std::vector<std::vector<Value>> rows;
  const int columns = sqlite3_column_count(query);
  const std::size_t bare_row = sizeof(rows[0]) + static_cast<std::size_t>(columns) * sizeof(Value);
  std::size_t all_bytes = 0;
  while (connection.Step(query)) {
    std::vector<Value>& row = rows.emplace_back();
    row.reserve(static_cast<std::size_t>(columns));
    int bytes = 0;
    for (int column = 0; column < columns; ++column) {
      row.push_back(ColumnValue(query, column));
      const bool is_text = sqlite3_column_type(query, column) == SQLITE_TEXT;
      if (is_text) bytes += sqlite3_column_bytes(query, column);
    }
    if (bytes > kOnePage) connection.RequireSoundPages();
    all_bytes += bare_row + static_cast<std::size_t>(bytes);
    if (all_bytes > kMostBytes) throw OutOfMemory();
  }
  return rows;
}

void Recordset::Close() {
  names_.clear();
  rows_.clear();
  position_ = 0;
}

const Value& Recordset::Field(std::string_view name) const {
  const auto found = std::ranges::find_if(
      names_, [&](const std::string& own) { return EqualsIgnoringCase(own, name); });
  if (found == names_.end()) {
    constexpr double kNoSuchField = 3265;
    throw RunTimeError(kNoSuchField, "The query gives no field " + std::string(name));
  }
  if (Eof()) {
    constexpr double kNoRecord = 3021;
    throw RunTimeError(kNoRecord, "There is no record in front");
  }
  return rows_[position_][static_cast<std::size_t>(found - names_.begin())];
}

}  // namespace survey
