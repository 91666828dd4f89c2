#include "desktop/clipboard_block.h"

#include <algorithm>

#include "desktop/grid_names.h"

namespace survey {
namespace {

constexpr QChar kQuote = u'"';
constexpr QChar kTab = u'\t';
constexpr QChar kLineEnd = u'\n';
constexpr int kMostTold = 8;  // a longer list would not fit on the screen

bool EndsCell(const QString& text, qsizetype at) {
  return at >= text.size() || text[at] == kTab || text[at] == kLineEnd;
}

// The quote that closes the cell opened at `at`; -1 where none does. A cell that merely begins
// with a quote is written as it is, and would else swallow what follows.
qsizetype ClosingQuote(const QString& text, qsizetype at) {
  for (++at; at < text.size(); ++at) {
    if (text[at] != kQuote) continue;
    if (at + 1 >= text.size() || text[at + 1] != kQuote) return EndsCell(text, at + 1) ? at : -1;
    ++at;
  }
  return -1;
}

// Reads the cell that starts at `at` and leaves `at` on the tab or line end behind it.
QString ReadCell(const QString& text, qsizetype& at) {
  const qsizetype start = at;
  if (const qsizetype close = text[at] == kQuote ? ClosingQuote(text, at) : -1; close > 0) {
    at = close + 1;
    return text.mid(start + 1, close - start - 1).replace(QStringLiteral("\"\""), kQuote);
  }
  while (!EndsCell(text, at)) ++at;
  return text.mid(start, at - start);
}

QString WriteCell(QString cell) {
  if (!cell.contains(kTab) && !cell.contains(kLineEnd) && !cell.contains(kQuote)) return cell;
  return kQuote + cell.replace(kQuote, QStringLiteral("\"\"")) + kQuote;
}

// The rows or columns from `first` on that are shown, as many as `count`.
template <typename Shown>
std::vector<int> ShownFrom(int first, int last, qsizetype count, Shown shown) {
  std::vector<int> found;
  for (int i = first; i <= last && std::ssize(found) < count; ++i) {
    if (shown(i)) found.push_back(i);
  }
  return found;
}

std::vector<int> ShownRows(const Grid& grid, int first, int last, qsizetype count) {
  return ShownFrom(first, last, count, [&](int row) { return !grid.IsRowHidden(row); });
}

std::vector<int> ShownColumns(const Grid& grid, int first, int last, qsizetype count) {
  return ShownFrom(first, last, count,
                   [&](int column) { return grid.design().column_widths[column - 1] > 0; });
}

// Collects what a paste could not do.
class Refusals {
 public:
  explicit Refusals(const Grid& grid) : grid_(grid) {}

  void Add(Cell cell, const QString& value, const std::string& reason) {
    if (++count_ > kMostTold) return;
    told_ << CellName(grid_, cell) + QStringLiteral(": \"") + value.simplified() +
                 QStringLiteral("\" ") + QString::fromStdString(reason);
  }
  void AddOutside(qsizetype cells) { outside_ += cells; }

  QString Text() const {
    if (count_ == 0 && outside_ == 0) return {};
    QStringList lines;
    if (count_ > 0) {
      lines << (count_ == 1 ? QStringLiteral("1 value was not taken:")
                            : QStringLiteral("%1 values were not taken:").arg(count_));
      lines << told_;
    }
    if (count_ > kMostTold) lines << QStringLiteral("and %1 more.").arg(count_ - kMostTold);
    if (outside_ > 0) {
      lines << (outside_ == 1
                    ? QStringLiteral("1 value did not fit into the table.")
                    : QStringLiteral("%1 values did not fit into the table.").arg(outside_));
    }
    return lines.join(kLineEnd);
  }

 private:
  const Grid& grid_;
  int count_ = 0;
  qsizetype outside_ = 0;
  QStringList told_;
};

void PasteCell(GridControl& grid, Cell cell, const QString& value, Refusals& refusals) {
  if (grid.IsOpen(cell.column, cell.row)) {
    const Entry entry = grid.Type(cell.column, cell.row, value.toStdString());
    if (!entry.taken) refusals.Add(cell, value, entry.reason);
    return;
  }
  // Labels and totals that were copied along are no loss where they stand here too.
  const QString pasted = value.simplified();
  if (pasted.isEmpty() || pasted == ShownText(grid, cell).simplified()) return;
  refusals.Add(cell, value, grid.MayBecome(cell.column, cell.row, value.toStdString()).reason);
}

qsizetype FilledCells(const QStringList& row, qsizetype from) {
  return std::count_if(row.begin() + std::min(from, row.size()), row.end(),
                       [](const QString& value) { return !value.isEmpty(); });
}

void PasteBlock(GridControl& grid, const CellRange& cells, const ClipboardBlock& block,
                Refusals& refusals) {
  const auto rows = ShownRows(grid, cells.row, grid.MaxRows(), std::ssize(block));
  for (qsizetype r = 0; r < std::ssize(block); ++r) {
    if (r >= std::ssize(rows)) {
      refusals.AddOutside(FilledCells(block[r], 0));
      continue;
    }
    const auto columns = ShownColumns(grid, cells.column, grid.MaxColumns(), block[r].size());
    for (qsizetype c = 0; c < std::ssize(columns); ++c) {
      PasteCell(grid, {columns[c], rows[r]}, block[r][c], refusals);
    }
    refusals.AddOutside(FilledCells(block[r], std::ssize(columns)));
  }
}

template <typename Visit>
void ForEachOpenCell(const Grid& grid, const CellRange& cells, Visit visit) {
  for (int row = cells.row; row <= cells.last_row; ++row) {
    for (int column = cells.column; column <= cells.last_column; ++column) {
      if (grid.IsOpen(column, row)) visit(Cell{column, row});
    }
  }
}

}  // namespace

ClipboardBlock ParseBlock(const QString& text) {
  QString plain = text;
  plain.replace(QStringLiteral("\r\n"), kLineEnd).replace(u'\r', kLineEnd);
  ClipboardBlock block;
  qsizetype at = 0;
  while (at < plain.size()) {
    QStringList row;
    while (true) {
      row << (at < plain.size() ? ReadCell(plain, at) : QString());
      if (at >= plain.size() || plain[at] != kTab) break;
      ++at;
    }
    ++at;  // the line end
    block.push_back(row);
  }
  return block;
}

QString WriteBlock(const ClipboardBlock& block) {
  QStringList lines;
  for (const QStringList& row : block) {
    QStringList cells;
    for (const QString& cell : row) cells << WriteCell(cell);
    lines << cells.join(kTab);
  }
  return lines.join(kLineEnd);
}

QString CopyCells(const Grid& grid, const CellRange& cells) {
  ClipboardBlock block;
  for (const int row : ShownRows(grid, cells.row, cells.last_row, grid.MaxRows())) {
    QStringList line;
    for (const int column :
         ShownColumns(grid, cells.column, cells.last_column, grid.MaxColumns())) {
      line << ShownText(grid, {column, row});
    }
    block.push_back(line);
  }
  return WriteBlock(block);
}

QString PasteCells(GridControl& grid, const CellRange& cells, const QString& text) {
  const ClipboardBlock block = ParseBlock(text);
  Refusals refusals(grid);
  const bool one_value = block.size() == 1 && block[0].size() == 1;
  if (one_value && cells != CellRange(cells.column, cells.row)) {
    ForEachOpenCell(grid, cells, [&](Cell cell) { PasteCell(grid, cell, block[0][0], refusals); });
  } else {
    PasteBlock(grid, cells, block, refusals);
  }
  return refusals.Text();
}

void ClearCells(GridControl& grid, const CellRange& cells) {
  ForEachOpenCell(grid, cells, [&](Cell cell) {
    if (grid.Kind(cell.column, cell.row).type != CellKind::Type::kCheckBox) {
      grid.Type(cell.column, cell.row, "");
    } else if (grid.GetText(cell.column, cell.row) == "1") {
      grid.Tick(cell.column, cell.row);
    }
  });
}

}  // namespace survey
