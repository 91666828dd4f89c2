#include "desktop/grid_clipboard.h"

#include <QApplication>
#include <QClipboard>
#include <algorithm>

#include "desktop/clipboard_block.h"
#include "desktop/grid_names.h"
#include "forms/form.h"

namespace survey {
namespace {

constexpr int kMostTold = 8;  // a longer list would not fit on the screen

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
    return lines.join(u'\n');
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
  refusals.Add(cell, value, grid.MayEnter(cell.column, cell.row).reason);
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

// In words what was not taken and where, "" when all was. A single value goes into every open cell
// of `cells`, a block into the shown cells from their first corner on.
QString PasteCells(GridControl& grid, const CellRange& cells, const ClipboardBlock& block) {
  Refusals refusals(grid);
  const bool one_value = block.size() == 1 && block[0].size() == 1;
  if (one_value && cells != CellRange(cells.column, cells.row)) {
    ForEachOpenCell(grid, cells, [&](Cell cell) { PasteCell(grid, cell, block[0][0], refusals); });
  } else {
    PasteBlock(grid, cells, block, refusals);
  }
  return refusals.Text();
}

}  // namespace

GridClipboard::GridClipboard(GridControl& grid, EntryNote& note, QTableView& view)
    : grid_(grid), note_(note), view_(view) {}

bool GridClipboard::TakeKey(const QKeyEvent& key) {
  if (key.matches(QKeySequence::Copy)) {
    Copy();
  } else if (key.matches(QKeySequence::Cut)) {
    Copy();
    Clear();
  } else if (key.matches(QKeySequence::Paste)) {
    Paste();
  } else if (key.key() == Qt::Key_Delete || key.key() == Qt::Key_Backspace) {
    Clear();
  } else {
    return false;
  }
  return true;
}

CellRange GridClipboard::SelectedCells() const {
  CellRange cells(grid_.ActiveColumn(), grid_.ActiveRow());
  for (const QItemSelectionRange& range : view_.selectionModel()->selection()) {
    cells = {std::min(cells.column, range.left() + 1), std::min(cells.row, range.top() + 1),
             std::max(cells.last_column, range.right() + 1),
             std::max(cells.last_row, range.bottom() + 1)};
  }
  return cells;
}

// The cells that are shown.
void GridClipboard::Copy() const {
  const CellRange cells = SelectedCells();
  ClipboardBlock block;
  for (const int row : ShownRows(grid_, cells.row, cells.last_row, grid_.MaxRows())) {
    QStringList line;
    for (const int column :
         ShownColumns(grid_, cells.column, cells.last_column, grid_.MaxColumns())) {
      line << ShownText(grid_, {column, row});
    }
    block.push_back(line);
  }
  QApplication::clipboard()->setText(WriteBlock(block));
}

void GridClipboard::Paste() {
  const EditHistory::Block block(grid_.form().history());
  const CellRange cells = SelectedCells();
  const QString refused = PasteCells(grid_, cells, ParseBlock(QApplication::clipboard()->text()));
  note_.Show({cells.column, cells.row}, refused.toStdString());
}

void GridClipboard::Clear() {
  const EditHistory::Block block(grid_.form().history());
  ForEachOpenCell(grid_, SelectedCells(), [this](Cell cell) {
    if (!grid_.IsCheckBox(cell.column, cell.row)) {
      grid_.Type(cell.column, cell.row, "");
    } else if (grid_.GetText(cell.column, cell.row) == "1") {
      grid_.Tick(cell.column, cell.row);
    }
  });
}

}  // namespace survey
