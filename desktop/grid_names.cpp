#include "desktop/grid_names.h"

#include <QStringList>
#include <algorithm>

namespace survey {
namespace {

// The text that is drawn at a cell, from the first corner of its span.
QString LabelAt(const Grid& grid, int column, int row) {
  const CellRange span = grid.SpanOf(column, row);
  return ShownText(grid, {span.column, span.row}).simplified();
}

QString ValueOf(const Grid& grid, Cell cell) {
  const QString text = ShownText(grid, cell).simplified();
  if (grid.Kind(cell.column, cell.row).type == CellKind::Type::kCheckBox) {
    return text == QLatin1String("1") ? QStringLiteral("ticked") : QStringLiteral("not ticked");
  }
  return text.isEmpty() ? QStringLiteral("empty") : text;
}

}  // namespace

QString ShownText(const Grid& grid, Cell cell) {
  return QString::fromStdString(grid.GetText(cell.column, cell.row));
}

QString HeadText(const Grid& grid, int column) {
  const auto& heads = grid.design().heads;
  const bool has = column >= 1 && column <= std::ssize(heads);
  return has ? QString::fromStdString(heads[column - 1]) : QString();
}

bool IsTitleRow(const Grid& grid, int row) {
  const GridDesign& design = grid.design();
  if (row < 1 || row > design.head_rows) return false;
  // A title runs from over the labels to the end of the table.
  return std::ranges::any_of(design.spans, [&](const CellRange& span) {
    return span.row == row && span.last_column == design.columns &&
           span.column <= std::max(design.label_columns, 2);
  });
}

QString TableName(const Grid& grid) {
  return QString::fromStdString(grid.design().title).simplified();
}

QString ColumnName(const Grid& grid, int column) {
  QStringList heads{HeadText(grid, column).simplified()};
  for (int row = 1; row <= grid.design().head_rows; ++row) {
    if (IsTitleRow(grid, row)) continue;
    const QString head = LabelAt(grid, column, row);
    if (head != heads.back()) heads << head;
  }
  const QString name = heads.join(QLatin1Char(' ')).simplified();
  return name.isEmpty() ? QStringLiteral("column %1").arg(column) : name;
}

QString RowName(const Grid& grid, int row) {
  const int columns = grid.design().label_columns;
  QStringList labels;
  int first_own = columns + 1;
  for (int column = columns; column >= 1; --column) {
    if (!LabelAt(grid, column, row).isEmpty()) first_own = column;
  }
  for (int column = 1; column <= columns; ++column) {
    int from = row;
    while (column < first_own && first_own <= columns && from > grid.design().head_rows + 1 &&
           LabelAt(grid, column, from).isEmpty()) {
      --from;
    }
    const QString label = LabelAt(grid, column, from);
    if (labels.isEmpty() || label != labels.back()) labels << label;
  }
  const QString name = labels.join(QLatin1Char(' ')).simplified();
  return name.isEmpty() ? QStringLiteral("row %1").arg(row) : name;
}

QString CellName(const Grid& grid, Cell cell) {
  return RowName(grid, cell.row) + QStringLiteral(", ") + ColumnName(grid, cell.column);
}

QString StateOf(const Grid& grid, Cell cell) {
  QStringList states;
  if (grid.IsTotal(cell.column, cell.row)) {
    states << QStringLiteral("total");
  } else if (!grid.IsOpen(cell.column, cell.row)) {
    states << QStringLiteral("locked");
  }
  const QString note = QString::fromStdString(grid.NoteOf(cell.column, cell.row).text);
  if (!note.isEmpty()) states << note;
  return states.join(QStringLiteral(", "));
}

QString SpokenText(const Grid& grid, Cell cell) {
  QStringList parts{TableName(grid), CellName(grid, cell)};
  parts.removeAll(QString());
  const QString state = StateOf(grid, cell);
  return parts.join(QStringLiteral(", ")) + QStringLiteral(": ") + ValueOf(grid, cell) +
         (state.isEmpty() ? QString() : QStringLiteral(", ") + state);
}

}  // namespace survey
