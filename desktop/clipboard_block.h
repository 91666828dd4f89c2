#ifndef DESKTOP_CLIPBOARD_BLOCK_H_
#define DESKTOP_CLIPBOARD_BLOCK_H_

#include <QString>
#include <QStringList>
#include <vector>

namespace survey {

// Rows of cells, as spreadsheets exchange them: cells apart by tabs, rows by line ends. Read by
// hand, since a library for CSV takes a quote that merely begins a cell for the start of a quoted
// one, and would swallow all that follows.
using ClipboardBlock = std::vector<QStringList>;

// Takes any kind of line end, and cells in quotes that hold tabs, line ends or doubled quotes.
// A line end after the last row makes no further row.
ClipboardBlock ParseBlock(const QString& text);
QString WriteBlock(const ClipboardBlock& block);

}  // namespace survey

#endif  // DESKTOP_CLIPBOARD_BLOCK_H_
