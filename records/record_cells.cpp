#include "records/record_cells.h"

#include "base/text.h"
#include "store/dialect.h"

namespace survey {
namespace {

std::string TextFor(const std::string& text, CellAs as) {
  switch (as) {
    case CellAs::kText:
      return SqlEscape(text);
    case CellAs::kNumber:
      return NumberText(LeadingNumber(text));
    case CellAs::kRaw:
      break;
  }
  return text;
}

}  // namespace

void ShowFields(const Recordset& record, const std::vector<FieldCell>& fields, Grid& grid) {
  for (const auto& [field, cell] : fields) {
    grid.SetText(cell.column, cell.row, record.Field(field).Text());
  }
}

std::string JoinPieces(const std::vector<StatementPiece>& pieces, const Grid& grid) {
  std::string statement;
  for (const auto& [literal, cell, as] : pieces) {
    statement += literal;
    statement += TextFor(grid.GetText(cell.column, cell.row), as);
  }
  return statement;
}

}  // namespace survey
