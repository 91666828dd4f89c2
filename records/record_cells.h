#ifndef RECORDS_RECORD_CELLS_H_
#define RECORDS_RECORD_CELLS_H_

#include <string>
#include <vector>

#include "grid/grid.h"
#include "store/recordset.h"

namespace survey {

// A record whose fields lie in single cells of a grid, as on the pages that are a form to fill in
// rather than a table.

struct FieldCell {
  const char* field;
  Cell cell;
};

// Writes each field of the record in front into its cell; a null empties the cell. Throws what
// Recordset::Field throws, with the cells before it written.
void ShowFields(const Recordset& record, const std::vector<FieldCell>& fields, Grid& grid);

// How the text of a cell enters a statement.
enum class CellAs {
  kText,    // between quotes, its own quotes doubled
  kRaw,     // as typed: a quote in it breaks the statement
  kNumber,  // its leading number, 0 for an empty cell
};

struct StatementPiece {
  const char* literal;
  Cell cell;
  CellAs as;
};

// Each literal with its cell behind it, one after the other.
std::string JoinPieces(const std::vector<StatementPiece>& pieces, const Grid& grid);

}  // namespace survey

#endif  // RECORDS_RECORD_CELLS_H_
