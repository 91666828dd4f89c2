#ifndef GRID_DESIGN_INDEX_H_
#define GRID_DESIGN_INDEX_H_

#include <span>
#include <vector>

#include "grid/grid_design.h"

namespace survey {

// What a design says of one cell; null where it says nothing.
struct CellDesign {
  const CellRule* rule = nullptr;
  const CellRange* span = nullptr;
  const CellShade* shade = nullptr;
  const CellAlignment* alignment = nullptr;
  bool bold = false;
  int total = -1;  // place among DesignIndex::totals(), -1 for a cell that is none
};

// What a design says, by cell instead of by rule, so that it is found without a search. Cells go by
// their position in the order of reading, from 0.
class DesignIndex {
 public:
  struct TotalCell {
    int position;
    std::vector<int> adds;  // positions; one that stands in two of its blocks is added twice
  };

  // For a grid of that many rows, be they more than the design has or fewer. `design` must outlive
  // the index.
  DesignIndex(const GridDesign& design, int rows);

  const CellDesign& At(int position) const { return cells_[position]; }
  const std::vector<TotalCell>& totals() const { return totals_; }
  // Positions of the totals that a cell goes into, by themselves or through other totals.
  std::span<const int> TotalsOver(int position) const;

 private:
  void IndexTotals(const GridDesign& design, int rows);
  void IndexTotalsOver();

  std::vector<CellDesign> cells_;
  std::vector<TotalCell> totals_;
  std::vector<int> totals_over_;        // of all cells, one cell's after the other's
  std::vector<int> totals_over_start_;  // per cell and one more; empty without totals
};

}  // namespace survey

#endif  // GRID_DESIGN_INDEX_H_
