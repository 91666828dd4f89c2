#include "desktop/grid_painter.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <map>

#include "desktop/colors.h"
#include "desktop/grid_fit.h"
#include "desktop/grid_names.h"
#include "desktop/text_face.h"

namespace survey {
namespace {

// Colours that no page and no grid design sets.
constexpr QColor kText(0, 0, 0);
constexpr QColor kTextOnDark(255, 255, 255);
constexpr QColor kPaper(255, 255, 255);
constexpr QColor kLine(96, 96, 96);
constexpr QColor kSelection(120, 180, 255, 110);  // over red too, black is to be read
constexpr QColor kCursor(0, 60, 140);
constexpr QColor kIdleCursor(90, 110, 140);
constexpr QColor kBox(64, 64, 64);

constexpr int kLineWidth = 10;  // twips
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
  bool number = false;
  bool wraps = true;  // between words; numbers and numberings never do
  int largest = 0;    // size, in the units of the font
};

// The size in which a text stands whole in its room, and whether it takes no more than a line.
struct GridPainter::Fitted {
  const TextFace* face;
  bool fits;
  bool one_line;
};

GridPainter::GridPainter(const Grid& grid, const GridSheet& sheet, const QFont& font, double points)
    : grid_(grid), sheet_(sheet), font_(font) {
  font_.setPixelSize(TextSizeOf(points, sheet.units_per_twip()));
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
  const auto clipped = [&](const Placement& place, auto&& paint) {
    if (place.shown == place.whole) return paint();
    painter.save();
    painter.setClipRect(place.shown, Qt::IntersectClip);
    paint();
    painter.restore();
  };
  const auto look = [&](Cell cell) { return look_of ? look_of(cell) : CellLook(); };
  for (const auto& [cell, place] : places) {
    clipped(place, [&, at = cell, rect = place.whole] { PaintCell(painter, at, rect, look(at)); });
  }
  // The lines come over all cells: a cell drawn later would cover half of its neighbour's.
  PaintLines(painter, places);
  for (const auto& [cell, place] : places) {
    if (const CellLook shown = look(cell); shown.cursor) {
      clipped(place, [&, rect = place.whole] { PaintCursor(painter, rect, shown); });
    }
  }
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
  setting.number = grid_.Kind(cell.column, cell.row).type == CellKind::Type::kNumber;
  setting.wraps = !setting.number && !IsNumbering(setting.text);
  setting.largest = head ? HeadSize(cell.row) : font_.pixelSize();
  if (look.on_screen) {
    setting.sign = QString::fromStdString(grid_.NoteOf(cell.column, cell.row).sign);
  } else {
    setting.ink = InkOnPaper(ColorOf(cell));
  }
  return setting;
}

void GridPainter::PaintCell(QPainter& painter, Cell cell, const QRect& rect,
                            const CellLook& look) const {
  if (const QColor ground = ColorOf(cell); look.on_screen || ground != kPaper) {
    painter.fillRect(rect, ground);
  }
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

// Each cell has its right and lower line; those along the sheet's left and upper edge close it.
void GridPainter::PaintLines(QPainter& painter, const std::map<Cell, Placement>& places) const {
  QPen pen(kLine, Units(kLineWidth), Qt::SolidLine, Qt::SquareCap);
  double inset = 0;
  if (const double ratio = painter.device()->devicePixelRatio(); ratio > 1) {
    // Whole pixels, else lines differ in width on a screen at 125 %.
    pen.setCosmetic(true);
    pen.setWidth(static_cast<int>(std::lround(ratio)));
    inset = 0.5;
  }
  QList<QLineF> lines;
  for (const auto& [cell, place] : places) {
    const QRect& whole = place.whole;
    const QRectF edges =
        QRectF(place.shown.topLeft(), place.shown.bottomRight()).translated(inset, inset);
    const bool has_right = place.shown.right() == whole.right();
    const bool has_bottom = place.shown.bottom() == whole.bottom();
    if (has_right) lines << QLineF(edges.topRight(), edges.bottomRight());
    if (has_bottom) lines << QLineF(edges.bottomLeft(), edges.bottomRight());
    if (whole.left() == 0) lines << QLineF(edges.topLeft(), edges.bottomLeft());
    if (whole.top() == 0) lines << QLineF(edges.topLeft(), edges.topRight());
  }
  painter.setPen(pen);
  painter.drawLines(lines);
}

void GridPainter::PaintCursor(QPainter& painter, const QRect& rect, const CellLook& look) const {
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

// All heads of a row stand in the size that the longest of them asks for.
int GridPainter::HeadSize(int row) const {
  if (head_sizes_.empty()) head_sizes_.resize(grid_.design().head_rows + 1);
  int& size = head_sizes_[row];
  if (size > 0) return size;
  size = font_.pixelSize();
  if (IsTitleRow(grid_, row)) return size;
  for (int column = 1; column <= sheet_.columns(); ++column) {
    const CellRange span = row == 0 ? CellRange(column, 0) : grid_.SpanOf(column, row);
    const Cell cell{column, row};
    const QRect place = sheet_.Place(span, {}).whole;
    const bool hidden = place.isEmpty() || span.column != column || span.row != row;
    if (hidden || IsUpright(grid_.design(), cell)) continue;
    const Setting setting = SettingOf(cell, {});
    if (!setting.text.isEmpty()) {
      size = std::min(size, Fit(setting, RoomIn(place, setting)).face->font().pixelSize());
    }
  }
  return size;
}

int GridPainter::SideOf(const Setting& setting) const {
  return Units(setting.alignment == Qt::AlignHCenter ? kCenteredPadding : kSidePadding);
}

QRect GridPainter::RoomIn(const QRect& cell, const Setting& setting) const {
  const int side = SideOf(setting);
  const int top = Units(kTopPadding);
  return cell.adjusted(side, top, -side, -top);
}

const TextFace& GridPainter::Face(bool bold, int size) const {
  const TextFace*& face = faces_[{bold, size}];
  if (face == nullptr) {
    QFont font = font_;
    font.setBold(bold);
    face = &TextFace::Of(font, size);
  }
  return *face;
}

// A text that is too long for its cell is set smaller, down to where it would not be legible,
// rather than painted over its neighbour.
GridPainter::Fitted GridPainter::Fit(const Setting& setting, const QRect& room) const {
  const int usual = font_.pixelSize();
  const int smallest = std::max(1, static_cast<int>(usual * kSmallestText));
  const bool may_break = setting.wraps && !setting.text.isEmpty();
  Fitted fitted{nullptr, false, false};
  for (int size = setting.largest; !fitted.fits && size >= smallest;
       size -= std::max(1, usual / 16)) {
    const TextFace& face = Face(setting.bold, size);
    const int sign = setting.sign.isEmpty() ? 0 : face.WidthOf(setting.sign) + SideOf(setting);
    const bool one_line =
        !setting.text.contains(u'\n') && face.WidthOf(setting.text) + sign <= room.width();
    const QSize needed = one_line || !may_break
                             ? QSize(face.WidthOf(setting.text) + sign, face.line_height())
                             : face.Wrapped(setting.text, room.width()) + QSize(sign, 0);
    const bool fits = needed.width() <= room.width() && needed.height() <= room.height();
    fitted = {&face, fits, one_line};
  }
  return fitted;
}

// What is still too long in the smallest size is cut off at the end, but a number never: without a
// digit it would be another one.
void GridPainter::PaintText(QPainter& painter, const QRect& cell, const Setting& setting) const {
  if (setting.text.isEmpty() && setting.sign.isEmpty()) return;
  const QRect room = RoomIn(cell, setting);
  const Fitted fitted = Fit(setting, room);
  painter.setPen(setting.ink);
  painter.setFont(fitted.face->font());
  const auto across = static_cast<int>(setting.alignment);
  if (fitted.fits && fitted.one_line) {
    PaintLine(painter, room, setting.text, *fitted.face, setting.alignment);
  } else if (fitted.fits) {
    painter.drawText(room, across | Qt::AlignVCenter | Qt::TextWordWrap, setting.text);
  } else if (!setting.number) {
    painter.drawText(room, across | Qt::AlignTop | Qt::TextWrapAnywhere, setting.text);
  } else {
    PaintLine(painter, room, QStringLiteral("###"), *fitted.face, setting.alignment);
  }
  if (fitted.fits && !setting.sign.isEmpty()) {
    PaintLine(painter, room, setting.sign, *fitted.face, Qt::AlignLeft);
  }
}

// Without the toolkit's own setting of a text in a rectangle, which costs more than the drawing.
void GridPainter::PaintLine(QPainter& painter, const QRect& room, const QString& text,
                            const TextFace& face, Qt::Alignment alignment) {
  int left = room.left();
  if (alignment != Qt::AlignLeft) {
    const int beside = room.width() - face.WidthOf(text);
    left += alignment == Qt::AlignRight ? beside : beside / 2;
  }
  const int top = room.top() + (room.height() - face.line_height()) / 2;
  painter.drawText(QPoint(left, top + face.ascent()), text);
}

}  // namespace survey
