#ifndef DESKTOP_GRID_PAGES_H_
#define DESKTOP_GRID_PAGES_H_

#include <QRect>
#include <vector>

#include "desktop/grid_painter.h"
#include "desktop/grid_sheet.h"

namespace survey {

// A table on paper, broken into pages between rows and between columns: down first, then to the
// right. The head rows and the label columns stand on every page. All in twips.
class GridPages {
 public:
  // `grid` must outlive the pages. `area` is what a page has for the table.
  GridPages(const Grid& grid, const QRect& area);

  int count() const;
  // Draws page `page`, from 1, into the area; nothing for a page that there is not. A unit of the
  // painter is a twip.
  void Paint(QPainter& painter, int page) const;

 private:
  struct Part {
    int first;
    int last;
  };

  template <typename EdgeOf>
  static std::vector<Part> Break(int first, int last, int room, EdgeOf edge_of);

  QRect area_;
  GridSheet sheet_;
  GridPainter painter_;
  std::vector<Part> row_parts_;
  std::vector<Part> column_parts_;
};

}  // namespace survey

#endif  // DESKTOP_GRID_PAGES_H_
