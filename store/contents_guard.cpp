#include "store/contents_guard.h"

#define SQLITE_HAS_CODEC 1
#include <sqlite3.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "store/own_triggers.h"

namespace survey {
namespace {

constexpr std::string_view kTable = "CREATE TABLE ";
constexpr std::string_view kIndex = "CREATE INDEX ";
constexpr std::string_view kUniqueIndex = "CREATE UNIQUE INDEX ";

// The engine's own tables (statistics, numbering) are the only ones whose names begin so, in any
// case.
bool NamesEngineTable(std::string_view sql) {
  std::string small(sql);
  std::ranges::transform(small, small.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 'a' - 'A') : c; });
  return small.find("sqlite_stat") != std::string::npos;
}

// A table is its name and its columns. One that is made of a query is never kept in those words.
bool HasColumnsBehindName(std::string_view name_and_rest) {
  if (name_and_rest.empty()) return false;
  const char first = name_and_rest.front();
  const bool is_quoted = first == '"' || first == '\'' || first == '`' || first == '[';
  const std::size_t end = is_quoted ? name_and_rest.find(first == '[' ? ']' : first, 1)
                                    : name_and_rest.find_first_of(" \t\r\n(");
  if (end == std::string_view::npos) return false;
  const std::size_t next = name_and_rest.find_first_not_of(" \t\r\n", end + (is_quoted ? 1 : 0));
  return next != std::string_view::npos && name_and_rest[next] == '(';
}

// The engine keeps these beginnings in just this form, whatever was typed.
bool IsOfASurvey(std::string_view sql) {
  if (sql.empty()) return true;  // an index that belongs to its table
  if (NamesEngineTable(sql)) return false;
  if (sql.starts_with(kTable)) return HasColumnsBehindName(sql.substr(kTable.size()));
  return sql.starts_with(kIndex) || sql.starts_with(kUniqueIndex) ||
         std::ranges::find(kOwnTriggers, sql) != std::end(kOwnTriggers);
}

}  // namespace

ContentsGuard::ContentsGuard(sqlite3* database) : database_(database) {
  sqlite3_trace_v2(database_, SQLITE_TRACE_ROW, SeeRow, this);
}

ContentsGuard::~ContentsGuard() { sqlite3_trace_v2(database_, 0, nullptr, nullptr); }

// An entry of the table of contents ends in the words that made it. The interruption reaches the
// engine before it has read the second of them.
int ContentsGuard::SeeRow(unsigned, void* guard, void* statement, void*) {
  auto& self = *static_cast<ContentsGuard*>(guard);
  auto* row = static_cast<sqlite3_stmt*>(statement);
  constexpr int kFewestColumns = 3;  // fewer has only the question that set the reading off
  const int columns = sqlite3_column_count(row);
  if (columns < kFewestColumns) return 0;
  const void* text = sqlite3_column_blob(row, columns - 1);
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(row, columns - 1));
  if (!IsOfASurvey({static_cast<const char*>(text), text == nullptr ? 0 : size})) {
    self.found_foreign_ = true;
    sqlite3_interrupt(self.database_);
  }
  return 0;
}

}  // namespace survey
