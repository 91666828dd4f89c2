#include "desktop/grid_sheet.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace survey {
namespace {

constexpr int kTwipsPerCharacter = 125;  // of a head, in bold
constexpr int kTwipsPerLine = 240;

int LinesOf(std::string_view text, int width) {
  const int fitting = std::max(1, width / kTwipsPerCharacter);
  return static_cast<int>(text.size() + fitting - 1) / fitting;
}

// The design gives row 0 no height of its own: it is as high as its longest text needs.
int HeadHeight(const GridDesign& design) {
  if (design.heads.empty()) return 0;
  int lines = 1;
  for (int i = 0; i < std::min(std::ssize(design.heads), std::ssize(design.column_widths)); ++i) {
    if (design.column_widths[i] == 0) continue;
    lines = std::max(lines, LinesOf(design.heads[i], design.column_widths[i]));
  }
  return std::max(design.row_height, std::min(lines, 3) * kTwipsPerLine + 60);
}

int RowHeight(const Grid& grid, int row) {
  const GridDesign& design = grid.design();
  if (row == 0) return HeadHeight(design);
  if (grid.IsRowHidden(row)) return 0;
  return row <= std::ssize(design.row_heights) ? design.row_heights[row - 1] : design.row_height;
}

bool TakesTyping(const Grid& grid, const CellRange& cells) {
  for (int row = cells.row; row <= cells.last_row; ++row) {
    for (int column = cells.column; column <= cells.last_column; ++column) {
      if (grid.IsOpen(column, row)) return true;
    }
  }
  return false;
}

// The cursor does not reach what stays in view: heads and labels that take typing go along with
// the other cells.
int HeadRows(const Grid& grid) {
  const int rows = std::min(grid.design().head_rows, grid.MaxRows());
  return TakesTyping(grid, {1, 1, grid.MaxColumns(), rows}) ? 0 : rows;
}

int LabelColumns(const Grid& grid) {
  const int columns = std::min(grid.design().label_columns, grid.MaxColumns());
  return TakesTyping(grid, {1, 1, columns, grid.MaxRows()}) ? 0 : columns;
}

// Each edge is rounded for itself: rounded widths would add up to another sheet.
void AddEdges(std::vector<int>& edges, const std::vector<double>& extents) {
  double edge = 0;
  for (const double extent : extents) {
    edges.push_back(static_cast<int>(std::lround(edge += extent)));
  }
}

std::vector<double> DesignWidths(const Grid& grid, double units_per_twip) {
  std::vector<double> widths{0};
  for (const int twips : grid.design().column_widths) widths.push_back(twips * units_per_twip);
  widths.resize(grid.MaxColumns() + 1);
  return widths;
}

std::vector<double> DesignHeights(const Grid& grid, double units_per_twip) {
  std::vector<double> heights;
  for (int row = 0; row <= grid.MaxRows(); ++row) {
    heights.push_back(RowHeight(grid, row) * units_per_twip);
  }
  return heights;
}

}  // namespace

GridSheet::GridSheet(const Grid& grid, double units_per_twip)
    : GridSheet(grid, units_per_twip, DesignWidths(grid, units_per_twip),
                DesignHeights(grid, units_per_twip)) {}

GridSheet::GridSheet(const Grid& grid, double units_per_twip, const std::vector<double>& widths,
                     const std::vector<double>& heights)
    : units_per_twip_(units_per_twip),
      head_rows_(HeadRows(grid)),
      label_columns_(LabelColumns(grid)),
      left_{0},
      top_{0} {
  AddEdges(left_, widths);
  AddEdges(top_, heights);
}

Placement GridSheet::Place(const CellRange& block, QPoint scroll) const {
  const int last_column = std::min(block.last_column, columns());
  const int last_row = std::min(block.last_row, rows());
  const int x = X(block.column) - (block.column > label_columns_ ? scroll.x() : 0);
  const int y = Y(block.row) - (block.row > head_rows_ ? scroll.y() : 0);
  const int right = X(last_column + 1) - (last_column > label_columns_ ? scroll.x() : 0);
  const int bottom = Y(last_row + 1) - (last_row > head_rows_ ? scroll.y() : 0);
  return {{x, y, X(last_column + 1) - X(block.column), Y(last_row + 1) - Y(block.row)},
          {x, y, std::max(0, right - x), std::max(0, bottom - y)}};
}

Cell GridSheet::CellAt(QPoint place, QPoint scroll) const {
  // In this order what stays in view comes before what has been scrolled beneath it.
  for (int row = 0; row <= rows(); ++row) {
    for (int column = 1; column <= columns(); ++column) {
      if (Place({column, row}, scroll).shown.contains(place)) return {column, row};
    }
  }
  return {};
}

}  // namespace survey
