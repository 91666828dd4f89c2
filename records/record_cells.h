#ifndef RECORDS_RECORD_CELLS_H_
#define RECORDS_RECORD_CELLS_H_

#include <span>
#include <string>
#include <vector>

#include "grid/grid.h"
#include "store/recordset.h"

namespace survey {

// A record whose fields lie in single cells of a grid, as on the pages that are a form to fill in
// rather than a table.

// A field that is only shown.
struct FieldCell {
  const char* field;
  Cell cell;
};

// Writes each field of the record in front into its cell; a null empties the cell. Throws what
// Recordset::Field throws, with the cells before it written.
void ShowFields(const Recordset& record, const std::vector<FieldCell>& fields, Grid& grid);

// How the text of a cell stands in a statement.
enum class CellAs {
  kText,    // between quotes, its own quotes doubled
  kQuoted,  // between quotes, as typed: a quote in it breaks the statement
  kBare,    // as typed, without quotes
  kNumber,  // its leading number, 0 for an empty cell
  kDate,    // as typed, between date marks
  // Two cells between quotes, with a blank between them: the one that is told, as typed, and the
  // one below it, its quotes doubled. Comes back taken apart at the first blank.
  kNumberAndName,
};

// A column of the store's table and the cell that answers it.
struct Answer {
  const char* column;
  Cell cell;
  CellAs as;
  Cell shown = cell;  // where the stored answer comes back, which the survey has elsewhere at times
};

// Writes each answer of the record in front into its cell; a null empties the cell. Of a number
// and name a null leaves both cells as they were, and a text without a blank is shown as the name
// and then throws InvalidProcedureCall(). Throws what Recordset::Field throws. After a failure the
// answers before it are written.
void ShowAnswers(const Recordset& record, std::span<const Answer> answers, Grid& grid);

// The same, but an answer that cannot be taken apart keeps none behind it back.
void ShowEachAnswer(const Recordset& record, std::span<const Answer> answers, Grid& grid);

// For an INSERT: "a,b" and "'x',1".
std::string ColumnsOf(std::span<const Answer> answers);
std::string ValuesOf(std::span<const Answer> answers, const Grid& grid);

// For an UPDATE: each piece, ", Title = ", with the value of the answer whose column it names.
// Throws std::out_of_range for a piece that names none.
std::string Assignments(const std::vector<const char*>& pieces, std::span<const Answer> answers,
                        const Grid& grid);

}  // namespace survey

#endif  // RECORDS_RECORD_CELLS_H_
