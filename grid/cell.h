#ifndef GRID_CELL_H_
#define GRID_CELL_H_

#include <compare>

namespace survey {

// A place on a grid: (column, row), both counted from 1. Row 0 is the head of a list.
struct Cell {
  int column = 0;
  int row = 0;

  auto operator<=>(const Cell&) const = default;
};

// A block of cells from its first to its last corner, both within. A block of one cell may be
// written {column, row}.
struct CellRange {
  int column = 0;
  int row = 0;
  int last_column = 0;
  int last_row = 0;

  constexpr CellRange(int only_column, int only_row)
      : CellRange(only_column, only_row, only_column, only_row) {}
  constexpr CellRange(int first_column, int first_row, int to_column, int to_row)
      : column(first_column), row(first_row), last_column(to_column), last_row(to_row) {}

  constexpr bool Contains(Cell cell) const {
    return column <= cell.column && cell.column <= last_column && row <= cell.row &&
           cell.row <= last_row;
  }

  bool operator==(const CellRange&) const = default;
};

}  // namespace survey

#endif  // GRID_CELL_H_
