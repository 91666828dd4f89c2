#ifndef RECORDS_CELL_TABLE_H_
#define RECORDS_CELL_TABLE_H_

#include <optional>
#include <string>
#include <vector>

#include "grid/grid.h"
#include "records/site_records.h"
#include "store/recordset.h"
#include "store/survey.h"

namespace survey {

// The codes that one row (or column) of a survey table stands for.
struct CodePosition {
  int index;  // row or column of the grid
  std::vector<int> codes;
};

// How the rows, or the columns, of a survey table stand for the codes of its records.
struct Axis {
  std::vector<const char*> fields;           // of the record, one per code
  std::vector<CodePosition> positions = {};  // none: the one code is the index less `offset`
  int offset = 0;                            // without fields: the one index there is
  // Where the meaning of each code is written: the column, for the codes of a row, or the row.
  std::vector<int> labels = {};

  // The code `which` of the row or column `index`. Throws std::out_of_range where none stands.
  int CodeAt(int index, int which) const;
  // Takes the index that a record belongs to. With positions, a record of codes that stand
  // nowhere leaves `index` as it was: it goes where the record before it went. Without, the
  // code is not tested and may lead out of the table.
  void Place(const Recordset& record, int& index) const;
};

// One value of an INSERT.
struct InsertValue {
  enum class Kind { kCollege, kCampus, kYear, kQuantity, kRowCode, kColumnCode, kCode, kConstant };
  Kind kind;
  int number = 0;  // which of the axis's codes, or the constant itself
};

inline constexpr InsertValue kCollege{InsertValue::Kind::kCollege};
inline constexpr InsertValue kCampus{InsertValue::Kind::kCampus};
inline constexpr InsertValue kYear{InsertValue::Kind::kYear};
inline constexpr InsertValue kQuantity{InsertValue::Kind::kQuantity};
inline constexpr InsertValue kCode{InsertValue::Kind::kCode};  // the code the page passes
constexpr InsertValue RowCode(int which = 0) { return {InsertValue::Kind::kRowCode, which}; }
constexpr InsertValue ColumnCode(int which = 0) { return {InsertValue::Kind::kColumnCode, which}; }
constexpr InsertValue Constant(int number) { return {InsertValue::Kind::kConstant, number}; }

// A column of the store's table and what an INSERT puts there.
struct InsertColumn {
  const char* name;
  InsertValue value;
};

// Which cells count as filled when a table is stored.
enum class Filled {
  kNotEmpty,  // a typed 0 is stored
  kNotZero,   // neither an empty cell nor a 0 is
};

enum class Walk { kRowByRow, kColumnByColumn };

// A survey table that is kept as one record for each filled cell. The statements are completed
// by the site's numbers and the survey year, the tails stand behind these.
struct CellTable {
  std::string select;  // up to the college number
  std::string remove;  // up to the college number
  std::string insert;  // up to the bracket before the columns
  CellRange body;      // the cells that are stored
  Walk walk;           // in which order
  Axis rows;
  Axis columns;
  std::vector<InsertColumn> values;
  std::string select_tail = {};
  std::string remove_tail = {};
  Filled filled = Filled::kNotEmpty;
};

// Writes each record of the table into its cell; other cells stay as they are. `code` is put
// behind the tail where one is given. Throws RunTimeError.
void LoadCells(const SiteRecords& site, const CellTable& table, Grid& grid,
               std::optional<int> code = {});

// Removes the table's records and stores one for each filled cell, one statement each. What was
// done before a failure stays done. Throws RunTimeError.
void SaveCells(Survey& survey, const CellTable& table, const Grid& grid,
               std::optional<int> code = {});

// The two halves of SaveCells, for tables that share their records.
void RemoveRecords(Survey& survey, const CellTable& table, std::optional<int> code = {});
void InsertRecords(Survey& survey, const CellTable& table, const Grid& grid,
                   std::optional<int> code = {});

}  // namespace survey

#endif  // RECORDS_CELL_TABLE_H_
