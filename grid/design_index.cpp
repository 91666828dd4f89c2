#include "grid/design_index.h"

#include <algorithm>

namespace survey {
namespace {

// Visits the positions of a block, as far as it lies on a grid of that size.
template <typename Visit>
void ForEachPosition(const CellRange& block, int columns, int rows, Visit visit) {
  for (int row = std::max(block.row, 1); row <= std::min(block.last_row, rows); ++row) {
    for (int column = std::max(block.column, 1); column <= std::min(block.last_column, columns);
         ++column) {
      visit((row - 1) * columns + column - 1);
    }
  }
}

CellRange Moved(const CellRange& block, int columns, int rows) {
  return {block.column + columns, block.row + rows, block.last_column + columns,
          block.last_row + rows};
}

}  // namespace

DesignIndex::DesignIndex(const GridDesign& design, int rows) : cells_(design.columns * rows) {
  const auto note = [&](const CellRange& block, auto&& set) {
    ForEachPosition(block, design.columns, rows, [&](int position) { set(cells_[position]); });
  };
  for (const CellRule& rule : design.rules) {
    note(rule.cells, [&](CellDesign& cell) { cell.rule = &rule; });
  }
  for (const CellRange& span : design.spans) {
    note(span, [&](CellDesign& cell) { cell.span = &span; });
  }
  for (const CellShade& shade : design.shades) {
    note(shade.cells, [&](CellDesign& cell) { cell.shade = &shade; });
  }
  for (const CellAlignment& alignment : design.alignments) {
    note(alignment.cells, [&](CellDesign& cell) { cell.alignment = &alignment; });
  }
  for (const CellRange& bold : design.bold) {
    note(bold, [](CellDesign& cell) { cell.bold = true; });
  }
  IndexTotals(design, rows);
  if (!totals_.empty()) IndexTotalsOver();
}

void DesignIndex::IndexTotals(const GridDesign& design, int rows) {
  for (const Total& total : design.totals) {
    ForEachPosition(total.cells, design.columns, rows, [&](int position) {
      const int columns_on = position % design.columns + 1 - total.cells.column;
      const int rows_on = position / design.columns + 1 - total.cells.row;
      int& place = cells_[position].total;
      if (place < 0) {
        place = static_cast<int>(totals_.size());
        totals_.push_back({position, {}});
      }
      std::vector<int>& adds = totals_[place].adds;
      adds.clear();  // as with rules, the last total that names a cell holds
      for (const CellRange& block : total.adds) {
        ForEachPosition(Moved(block, columns_on, rows_on), design.columns, rows,
                        [&](int added) { adds.push_back(added); });
      }
    });
  }
}

void DesignIndex::IndexTotalsOver() {
  std::vector<std::vector<int>> directly(cells_.size());
  for (const TotalCell& total : totals_) {
    for (const int added : total.adds) directly[added].push_back(total.position);
  }
  std::vector<int> found_for(cells_.size(), -1);
  for (int position = 0; position < std::ssize(cells_); ++position) {
    totals_over_start_.push_back(static_cast<int>(totals_over_.size()));
    found_for[position] = position;
    const auto add = [&](const std::vector<int>& totals) {
      for (const int total : totals) {
        if (found_for[total] == position) continue;
        found_for[total] = position;
        totals_over_.push_back(total);
      }
    };
    add(directly[position]);
    // What is added here is visited in its turn.
    for (std::size_t i = totals_over_start_.back(); i < totals_over_.size(); ++i) {
      add(directly[totals_over_[i]]);
    }
  }
  totals_over_start_.push_back(static_cast<int>(totals_over_.size()));
}

std::span<const int> DesignIndex::TotalsOver(int position) const {
  if (totals_over_start_.empty()) return {};
  const int start = totals_over_start_[position];
  return std::span(totals_over_).subspan(start, totals_over_start_[position + 1] - start);
}

}  // namespace survey
