#ifndef DESKTOP_GRID_NAMES_H_
#define DESKTOP_GRID_NAMES_H_

#include <QString>

#include "grid/grid.h"

namespace survey {

// What the parts of a table are called in words: by a screen reader, and where a message says
// which cell it means. All on one line but ShownText and HeadText, which are as they are drawn.

QString ShownText(const Grid& grid, Cell cell);
QString HeadText(const Grid& grid, int column);  // of row 0, "" where there is none

// Whether a head row holds the title of the table, not the heads of its columns.
bool IsTitleRow(const Grid& grid, int row);

QString TableName(const Grid& grid);
// The heads over a column, from the top: "Black African, Male". Never empty.
QString ColumnName(const Grid& grid, int column);
// The labels of a row, without a mere count before its own number; where only its first ones are
// blank, it shares those of a row above, as in the second row of a pair: "2.5.1 REPORT 191 N1
// Programmes Female". Totals share nothing. Never empty.
QString RowName(const Grid& grid, int row);
// Row and column; where these have no names the question that stands before or above the cell,
// and its number where nothing else tells it from others.
QString CellName(const Grid& grid, Cell cell);
// "locked" or "total", and what is noted about the cell; "" for a plain cell.
QString StateOf(const Grid& grid, Cell cell);
// What a cell is called, then its value and state. A reader says the table's name by itself, once
// on entering it.
QString SpokenText(const Grid& grid, Cell cell);

}  // namespace survey

#endif  // DESKTOP_GRID_NAMES_H_
