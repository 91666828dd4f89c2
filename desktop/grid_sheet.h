#ifndef DESKTOP_GRID_SHEET_H_
#define DESKTOP_GRID_SHEET_H_

#include <QPoint>
#include <QRect>
#include <QSize>
#include <vector>

#include "grid/grid.h"

namespace survey {

// Where a block of cells stands.
struct Placement {
  QRect whole;  // its full extent, over which its text is set
  QRect shown;  // what scrolling leaves of that
};

// Where the cells of a table lie, in whole units of the medium; hidden rows and columns have no
// extent. Row 0 is the head of a list, without extent where there is none. A copy of what the
// grid said when it was made.
class GridSheet {
 public:
  // `units_per_twip` is 1 on paper, the dots of an inch / 1440 on a screen.
  GridSheet(const Grid& grid, double units_per_twip);
  // The same with other widths than the design's, by column, and heights, by row, both from 0 and
  // in units.
  GridSheet(const Grid& grid, double units_per_twip, const std::vector<double>& widths,
            const std::vector<double>& heights);

  int columns() const { return static_cast<int>(left_.size()) - 2; }
  int rows() const { return static_cast<int>(top_.size()) - 2; }
  // The rows from 0 and the columns from 1 up to here stay in view.
  int head_rows() const { return head_rows_; }
  int label_columns() const { return label_columns_; }
  double units_per_twip() const { return units_per_twip_; }

  // The left edge of a column and the top edge of a row; of the one behind the last, the edge of
  // the sheet.
  int X(int column) const { return left_[column]; }
  int Y(int row) const { return top_[row]; }
  QSize Size() const { return {left_.back(), top_.back()}; }
  QSize FrozenSize() const { return {X(label_columns_ + 1), Y(head_rows_ + 1)}; }

  // All behind the frozen rows and columns is shifted by `scroll`; a block that begins over the
  // frozen part keeps its beginning in view.
  Placement Place(const CellRange& block, QPoint scroll) const;
  // The cell that is seen there; {0, 0} beside the sheet.
  Cell CellAt(QPoint place, QPoint scroll) const;

  bool operator==(const GridSheet&) const = default;

 private:
  double units_per_twip_;
  int head_rows_;
  int label_columns_;
  std::vector<int> left_;  // by column, 0 unused
  std::vector<int> top_;   // by row
};

}  // namespace survey

#endif  // DESKTOP_GRID_SHEET_H_
