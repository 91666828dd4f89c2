#ifndef STORE_RECORDSET_H_
#define STORE_RECORDSET_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "store/connection.h"
#include "store/value.h"

namespace survey {

// The rows that a query gives, read forward. All rows are read at Open, so that no lock on the
// file outlives the call: a recordset left open harms nobody.
class Recordset {
 public:
  // Runs the query. Throws ObjectNotSet() without a connection, RunTimeError when the statement
  // fails or gives more than fits into memory; the recordset then holds no rows.
  void Open(std::string_view statement, Connection* connection);

  void Close();

  // True before the first row of an empty result and after the last row.
  bool Eof() const { return position_ >= rows_.size(); }

  void MoveNext() { ++position_; }

  int RecordCount() const { return static_cast<int>(rows_.size()); }

  // A field of the row in front, by name in any letter case. Throws RunTimeError 3265 for a name
  // the query does not give, 3021 when there is no row.
  const Value& Field(std::string_view name) const;

  // All rows at once, whichever is in front, their fields in the order of the query.
  const std::vector<std::vector<Value>>& Rows() const { return rows_; }

 private:
  static std::vector<std::vector<Value>> AllRows(Connection& connection, sqlite3_stmt* query);

  std::vector<std::string> names_;
  std::vector<std::vector<Value>> rows_;
  std::size_t position_ = 0;
};

}  // namespace survey

#endif  // STORE_RECORDSET_H_
