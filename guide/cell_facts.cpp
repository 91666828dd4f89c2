#include "guide/cell_facts.h"

#include "base/text.h"
#include "grid/cell_entry.h"

namespace survey {
namespace {

// A page that measures a total paints it and says what it has found; a change takes the words back
// and leaves the colour until the next check.
std::string TotalFacts(const Grid& grid, Cell cell) {
  const std::string& found = grid.NoteOf(cell.column, cell.row).text;
  if (!found.empty()) return "Total: " + found;
  const Color color = grid.BackColor(cell.column, cell.row);
  if (color != kGreen && color != kRed) return "Total, adds up by itself";
  return std::string("Total: ") + (color == kGreen ? "balanced" : "did not balance") +
         " when it was last checked; Save checks it again";
}

}  // namespace

std::string CellFacts(const Grid& grid, Cell cell) {
  if (!grid.Has(cell.column, cell.row)) return {};
  if (grid.IsTotal(cell.column, cell.row)) return TotalFacts(grid, cell);
  if (!grid.IsOpen(cell.column, cell.row)) return {};
  return LimitsOf(grid.Kind(cell.column, cell.row));
}

std::string SumOf(const Grid& grid, const std::vector<Cell>& cells) {
  double sum = 0;
  int count = 0;
  for (const Cell& cell : cells) {
    const CellKind::Type type = grid.Kind(cell.column, cell.row).type;
    if (type != CellKind::Type::kNumber && !grid.IsTotal(cell.column, cell.row)) continue;
    const auto number = NumberHeld(grid.GetText(cell.column, cell.row));
    if (!number) continue;
    sum += *number;
    ++count;
  }
  constexpr int kMostDecimals = 3;  // that any cell has
  if (count == 0) return {};
  return "Sum " + NumberText(RoundedTo(sum, kMostDecimals)) + ", count " + std::to_string(count);
}

}  // namespace survey
