#include "desktop/grid_painter.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <map>

#include "desktop/colors.h"
#include "desktop/grid_names.h"

namespace survey {
namespace {

// Colours that no page and no grid design sets.
constexpr QColor kText(0, 0, 0);
constexpr QColor kTextOnDark(255, 255, 255);
constexpr QColor kLine(96, 96, 96);
constexpr QColor kSelection(120, 180, 255, 110);  // over red too, black is to be read
constexpr QColor kCursor(0, 60, 140);
constexpr QColor kIdleCursor(90, 110, 140);
constexpr QColor kBox(64, 64, 64);

constexpr int kLineWidth = 10;  // twips
constexpr int kSidePadding = 60;
constexpr int kCenteredPadding = 20;
constexpr int kTopPadding = 10;
constexpr int kBoxSide = 200;
constexpr int kCursorWidth = 28;
constexpr double kSmallestText = 0.65;  // of the usual size
constexpr int kDark = 100;              // grey, up to which black on it is hard to read

// A printer without colours makes the red of a wrong total a dark grey.
QColor InkOnPaper(const QColor& ground) {
  return qGray(ground.rgb()) < kDark ? kTextOnDark : kText;
}

// Whether the design itself says where the text goes.
bool IsAligned(const GridDesign& design, Cell cell) {
  return std::ranges::any_of(design.alignments, [&](const CellAlignment& alignment) {
    return alignment.cells.Contains(cell);
  });
}

bool IsUpright(const GridDesign& design, Cell cell) {
  return std::ranges::any_of(design.upright,
                             [&](const CellRange& cells) { return cells.Contains(cell); });
}

Qt::Alignment ToQt(Alignment alignment) {
  switch (alignment) {
    case Alignment::kLeft:
      return Qt::AlignLeft;
    case Alignment::kRight:
      return Qt::AlignRight;
    case Alignment::kCenter:
      break;
  }
  return Qt::AlignHCenter;
}

}  // namespace

// How a cell's text is set.
struct GridPainter::Setting {
  QString text;
  QString sign;  // says without the colour what the colour says
  QColor ink = kText;
  Qt::Alignment alignment = Qt::AlignLeft;
  bool bold = false;
  bool wraps = true;  // a number never does
};

GridPainter::GridPainter(const Grid& grid, const GridSheet& sheet, const QFont& font, double points)
    : grid_(grid), sheet_(sheet), font_(font) {
  font_.setPixelSize(
      std::max(1, static_cast<int>(std::lround(points * 20 * sheet.units_per_twip()))));
  font_.setBold(false);
}

int GridPainter::Units(int twips) const {
  return std::max(1, static_cast<int>(std::lround(twips * sheet_.units_per_twip())));
}

void GridPainter::PaintBlock(QPainter& painter, const CellRange& block, QPoint scroll,
                             const QRect& exposed, const LookOf& look_of) const {
  std::map<Cell, Placement> places;
  for (int row = block.row; row <= block.last_row; ++row) {
    for (int column = block.column; column <= block.last_column; ++column) {
      if (!sheet_.Place({column, row}, scroll).shown.intersects(exposed)) continue;
      const CellRange span = row == 0 ? CellRange(column, 0) : grid_.SpanOf(column, row);
      places.emplace(Cell{span.column, span.row}, sheet_.Place(span, scroll));
    }
  }
  // The lines come over all cells: a cell drawn later would cover half of its neighbour's.
  const auto for_each_place = [&](auto&& paint) {
    for (const auto& [cell, place] : places) {
      painter.save();
      if (place.shown != place.whole) painter.setClipRect(place.shown, Qt::IntersectClip);
      paint(cell, place.whole);
      painter.restore();
    }
  };
  const auto look = [&](Cell cell) { return look_of ? look_of(cell) : CellLook(); };
  for_each_place([&](Cell cell, const QRect& rect) { PaintCell(painter, cell, rect, look(cell)); });
  for_each_place([&](Cell, const QRect& rect) { PaintLines(painter, rect); });
  for_each_place([&](Cell cell, const QRect& rect) { PaintCursor(painter, rect, look(cell)); });
}

QColor GridPainter::ColorOf(Cell cell) const {
  if (cell.row == 0) return ToQColor(kLockedGrey);
  return ToQColor(grid_.BackColor(cell.column, cell.row));
}

GridPainter::Setting GridPainter::SettingOf(Cell cell, const CellLook& look) const {
  Setting setting;
  setting.text = cell.row == 0 ? HeadText(grid_, cell.column) : ShownText(grid_, cell);
  const bool head = cell.row <= grid_.design().head_rows;
  setting.bold =
      head || grid_.IsBold(cell.column, cell.row) || grid_.IsTotal(cell.column, cell.row);
  setting.alignment = head && !IsTitleRow(grid_, cell.row) && !IsAligned(grid_.design(), cell)
                          ? Qt::AlignHCenter
                          : ToQt(grid_.AlignmentOf(cell.column, cell.row));
  setting.wraps = grid_.Kind(cell.column, cell.row).type != CellKind::Type::kNumber;
  if (look.on_screen) {
    setting.sign = QString::fromStdString(grid_.NoteOf(cell.column, cell.row).sign);
  } else {
    setting.ink = InkOnPaper(ColorOf(cell));
  }
  return setting;
}

void GridPainter::PaintCell(QPainter& painter, Cell cell, const QRect& rect,
                            const CellLook& look) const {
  painter.fillRect(rect, ColorOf(cell));
  if (look.selected) painter.fillRect(rect, kSelection);
  if (grid_.IsCheckBox(cell.column, cell.row)) {
    PaintBox(painter, rect, grid_.GetText(cell.column, cell.row) == "1",
             grid_.IsOpen(cell.column, cell.row));
  } else if (IsUpright(grid_.design(), cell)) {
    painter.save();
    painter.translate(rect.left(), rect.bottom() + 1);
    painter.rotate(-90);
    PaintText(painter, QRect(QPoint(0, 0), rect.size().transposed()), SettingOf(cell, look));
    painter.restore();
  } else {
    PaintText(painter, rect, SettingOf(cell, look));
  }
}

// Each cell draws its right and lower line; those along the sheet's left and upper edge close it.
void GridPainter::PaintLines(QPainter& painter, const QRect& rect) const {
  QPen pen(kLine, Units(kLineWidth), Qt::SolidLine, Qt::SquareCap);
  QRectF edges(rect.topLeft(), rect.bottomRight());
  if (const double ratio = painter.device()->devicePixelRatio(); ratio > 1) {
    // Whole pixels, else lines differ in width on a screen at 125 %.
    pen.setCosmetic(true);
    pen.setWidth(static_cast<int>(std::lround(ratio)));
    edges.translate(0.5, 0.5);
  }
  painter.setPen(pen);
  painter.drawLine(edges.topRight(), edges.bottomRight());
  painter.drawLine(edges.bottomLeft(), edges.bottomRight());
  if (rect.left() == 0) painter.drawLine(edges.topLeft(), edges.bottomLeft());
  if (rect.top() == 0) painter.drawLine(edges.topLeft(), edges.topRight());
}

void GridPainter::PaintCursor(QPainter& painter, const QRect& rect, const CellLook& look) const {
  if (!look.cursor) return;
  const int width = look.focused ? Units(kCursorWidth) : 1;
  painter.setPen(QPen(look.focused ? kCursor : kIdleCursor, width, Qt::SolidLine, Qt::SquareCap,
                      Qt::MiterJoin));
  const double inset = width / 2.0;
  painter.drawRect(QRectF(rect).adjusted(inset, inset, -inset - 1, -inset - 1));
}

QRect GridPainter::BoxIn(const QRect& cell) const {
  const int side = std::min({Units(kBoxSide), cell.width() - 2, cell.height() - 2});
  QRect box(0, 0, side, side);
  box.moveCenter(cell.center());
  return box;
}

void GridPainter::PaintBox(QPainter& painter, const QRect& cell, bool ticked, bool open) const {
  const QRect box = BoxIn(cell);
  painter.fillRect(box, kBox);
  const int border = Units(15);
  painter.fillRect(box.adjusted(border, border, -border, -border),
                   open ? QColor(Qt::white) : QColor(235, 235, 235));
  if (!ticked) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(kText, Units(30), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const auto at = [&](double x, double y) {
    return QPointF(box.left() + x * box.width(), box.top() + y * box.height());
  };
  const QPointF tick[] = {at(0.22, 0.52), at(0.43, 0.74), at(0.79, 0.26)};
  painter.drawPolyline(tick, 3);
}

// A text that is too long for its cell is set smaller, down to where it would not be legible,
// rather than painted over its neighbour. What then is still too long is cut off at the end, but a
// number never: without a digit it would be another one.
void GridPainter::PaintText(QPainter& painter, const QRect& cell, const Setting& setting) const {
  if (setting.text.isEmpty() && setting.sign.isEmpty()) return;
  const int side = Units(setting.alignment == Qt::AlignHCenter ? kCenteredPadding : kSidePadding);
  const int top = Units(kTopPadding);
  const QRect room = cell.adjusted(side, top, -side, -top);
  QFont font = font_;
  font.setBold(setting.bold);
  painter.setPen(setting.ink);
  int flags = static_cast<int>(setting.alignment | Qt::AlignVCenter) |
              (setting.wraps ? Qt::TextWordWrap : Qt::TextSingleLine);
  const int usual = font_.pixelSize();
  const int smallest = std::max(1, static_cast<int>(usual * kSmallestText));
  bool fits = false;
  for (int size = usual; !fits && size >= smallest; size -= std::max(1, usual / 16)) {
    font.setPixelSize(size);
    painter.setFont(font);
    QSize needed = painter.boundingRect(room, flags, setting.text).size();
    if (!setting.sign.isEmpty()) {
      needed.rwidth() += painter.fontMetrics().horizontalAdvance(setting.sign) + side;
    }
    fits = needed.width() <= room.width() && needed.height() <= room.height();
  }
  if (!fits && setting.wraps) {
    flags = static_cast<int>(setting.alignment | Qt::AlignTop) | Qt::TextWrapAnywhere;
  }
  painter.drawText(room, flags, fits || setting.wraps ? setting.text : QStringLiteral("###"));
  if (fits && !setting.sign.isEmpty()) {
    painter.drawText(room, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), setting.sign);
  }
}

}  // namespace survey
