#ifndef DESKTOP_GRID_PAINTER_H_
#define DESKTOP_GRID_PAINTER_H_

#include <QColor>
#include <QFont>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "desktop/grid_sheet.h"
#include "grid/grid.h"

class QPainter;

namespace survey {

class TextFace;

// How a cell stands out on screen.
struct CellLook {
  bool selected = false;
  bool cursor = false;   // the cursor is here
  bool focused = false;  // and the table has the keyboard
  // On screen, where a sign too tells what a colour says; paper shows the colour alone.
  bool on_screen = false;
};

// Draws cells of a table, on screen and on paper alike: what a user prints is what they saw.
// The survey's own colours hold, whatever colours the desktop has.
class GridPainter {
 public:
  using LookOf = std::function<CellLook(Cell)>;

  // Both must outlive the painter. `font` gives the family, `points` the size of the texts.
  GridPainter(const Grid& grid, const GridSheet& sheet, const QFont& font, double points);

  // Draws the cells of `block` (row 0 may be in it) that touch `exposed`, at their places on the
  // sheet under this scroll. A span is drawn once, in full; the caller clips.
  void PaintBlock(QPainter& painter, const CellRange& block, QPoint scroll, const QRect& exposed,
                  const LookOf& look_of = {}) const;

  // The box to tick of a check box cell that is drawn in `cell`.
  QRect BoxIn(const QRect& cell) const;

  // The text font of the cells.
  const QFont& font() const { return font_; }

 private:
  struct Setting;
  struct Fitted;

  Setting SettingOf(Cell cell, const CellLook& look) const;
  QColor ColorOf(Cell cell) const;
  void PaintCell(QPainter& painter, Cell cell, const QRect& rect, const CellLook& look) const;
  void PaintLines(QPainter& painter, const std::map<Cell, Placement>& places) const;
  void PaintCursor(QPainter& painter, const QRect& rect, const CellLook& look) const;
  void PaintBox(QPainter& painter, const QRect& cell, bool ticked, bool open) const;
  void PaintText(QPainter& painter, const QRect& cell, const Setting& setting) const;
  static void PaintLine(QPainter& painter, const QRect& room, const QString& text,
                        const TextFace& face, Qt::Alignment alignment);
  const TextFace& Face(bool bold, int size) const;
  int HeadSize(int row) const;
  int SideOf(const Setting& setting) const;
  QRect RoomIn(const QRect& cell, const Setting& setting) const;
  Fitted Fit(const Setting& setting, const QRect& room) const;
  int Units(int twips) const;

  const Grid& grid_;
  const GridSheet& sheet_;
  QFont font_;
  mutable std::map<std::pair<bool, int>, const TextFace*> faces_;
  mutable std::vector<int> head_sizes_;  // by row, 0 where not yet asked for
};

}  // namespace survey

#endif  // DESKTOP_GRID_PAINTER_H_
