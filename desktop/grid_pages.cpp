#include "desktop/grid_pages.h"

#include <QPainter>

namespace survey {
namespace {

constexpr double kUnitsPerTwip = 1;
constexpr double kPoints = 8;
constexpr int kEdge = 10;  // room for the last line

QFont PaperFont() {
  QFont font(QStringLiteral("Arial"));
  font.setStyleHint(QFont::SansSerif);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace

// As many rows or columns a page as go whole into `room`, but one at least.
template <typename EdgeOf>
std::vector<GridPages::Part> GridPages::Break(int first, int last, int room, EdgeOf edge_of) {
  std::vector<Part> parts;
  while (first <= last) {
    int end = first;
    while (end < last && edge_of(end + 2) - edge_of(first) <= room) ++end;
    parts.push_back({first, end});
    first = end + 1;
  }
  if (parts.empty()) parts.push_back({first, last});  // nothing but heads or labels
  return parts;
}

GridPages::GridPages(const Grid& grid, const QRect& area)
    : area_(area),
      sheet_(grid, kUnitsPerTwip),
      painter_(grid, sheet_, PaperFont(), kPoints),
      row_parts_(Break(sheet_.head_rows() + 1, sheet_.rows(),
                       area.height() - sheet_.FrozenSize().height(),
                       [this](int row) { return sheet_.Y(row); })),
      column_parts_(Break(sheet_.label_columns() + 1, sheet_.columns(),
                          area.width() - sheet_.FrozenSize().width(),
                          [this](int column) { return sheet_.X(column); })) {
  // Rows that are hidden at the end, as those of a list that is not full, make no page.
  const auto is_empty = [this](const Part& part) {
    return sheet_.Y(part.last + 1) == sheet_.Y(part.first);
  };
  while (row_parts_.size() > 1 && is_empty(row_parts_.back())) row_parts_.pop_back();
}

int GridPages::count() const { return static_cast<int>(row_parts_.size() * column_parts_.size()); }

void GridPages::Paint(QPainter& painter, int page) const {
  if (page < 1 || page > count()) return;
  const Part rows = row_parts_[(page - 1) % row_parts_.size()];
  const Part columns = column_parts_[(page - 1) / row_parts_.size()];
  const int labels = sheet_.label_columns();
  const int heads = sheet_.head_rows();
  const int left = sheet_.X(labels + 1);
  const int top = sheet_.Y(heads + 1);
  const QPoint scroll(sheet_.X(columns.first) - left, sheet_.Y(rows.first) - top);
  const int right = sheet_.X(columns.last + 1) - scroll.x();
  const int bottom = sheet_.Y(rows.last + 1) - scroll.y();

  painter.save();
  painter.translate(area_.topLeft());
  painter.setClipRect(QRect(0, 0, area_.width(), area_.height()), Qt::IntersectClip);
  const auto paint = [&](const CellRange& block, const QRect& place) {
    painter.save();
    painter.setClipRect(place.adjusted(0, 0, kEdge, kEdge), Qt::IntersectClip);
    painter_.PaintBlock(painter, block, scroll, place);
    painter.restore();
  };
  paint({columns.first, rows.first, columns.last, rows.last},
        {left, top, right - left, bottom - top});
  paint({columns.first, 0, columns.last, heads}, {left, 0, right - left, top});
  paint({1, rows.first, labels, rows.last}, {0, top, left, bottom - top});
  paint({1, 0, labels, heads}, {0, 0, left, top});
  painter.restore();
}

}  // namespace survey
