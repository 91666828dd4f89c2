#ifndef DESKTOP_CLIPBOARD_BLOCK_H_
#define DESKTOP_CLIPBOARD_BLOCK_H_

#include <QString>
#include <QStringList>
#include <vector>

#include "forms/control_kinds.h"

namespace survey {

// Rows of cells, as spreadsheets exchange them: cells apart by tabs, rows by line ends.
using ClipboardBlock = std::vector<QStringList>;

// Takes any kind of line end, and cells in quotes that hold tabs, line ends or doubled quotes.
// A line end after the last row makes no further row.
ClipboardBlock ParseBlock(const QString& text);
QString WriteBlock(const ClipboardBlock& block);

// The shown cells of a part of a table.
QString CopyCells(const Grid& grid, const CellRange& cells);

// Types a block into the shown cells from the first corner of `cells` on, each cell as one user
// action; a single value goes into every open cell of `cells`. Cells that take nothing keep what
// they hold. Answers in words what was not taken and where, "" when all was.
QString PasteCells(GridControl& grid, const CellRange& cells, const QString& text);

// Empties the open cells of a part of a table, each as one user action.
void ClearCells(GridControl& grid, const CellRange& cells);

}  // namespace survey

#endif  // DESKTOP_CLIPBOARD_BLOCK_H_
