#ifndef DESKTOP_GRID_FIT_H_
#define DESKTOP_GRID_FIT_H_

#include <QFont>

#include "desktop/grid_sheet.h"

namespace survey {

// The padding of a cell's text, in twips.
inline constexpr int kSidePadding = 60;
inline constexpr int kCenteredPadding = 20;
inline constexpr int kTopPadding = 10;

// The text size of tables on a screen, in pixels, where a twip is that many.
int TextSizeOf(double points, double units_per_twip);

// The sheet of a table on a screen that has `room` units for it across. Columns take what room
// there is, those first whose words would not stand in them, and rows grow until their heads and
// labels stand whole: type is set smaller only for what is written into a cell. Where there is
// little room columns give way by a tenth, but never break a word; the table is wider than its
// room after that. `font` is that of the texts, in their size.
GridSheet FitToRoom(const Grid& grid, double units_per_twip, const QFont& font, int room);

}  // namespace survey

#endif  // DESKTOP_GRID_FIT_H_
