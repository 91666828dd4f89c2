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

bool IsLabel(const Grid& grid, Cell cell) {
  return grid.Kind(cell.column, cell.row).type == CellKind::Type::kLabel;
}

QString Joined(const QStringList& texts) { return texts.join(QLatin1Char(' ')).simplified(); }

// The heads over a column, from the top; "" where there are none.
QString Heads(const Grid& grid, int column) {
  QStringList heads{HeadText(grid, column).simplified()};
  for (int row = 1; row <= grid.design().head_rows; ++row) {
    if (IsTitleRow(grid, row)) continue;
    const QString head = LabelAt(grid, column, row);
    if (head != heads.back()) heads << head;
  }
  heads.removeAll(QString());
  return heads.join(QStringLiteral(", "));
}

bool IsTotalLabel(const QString& label) {
  return label.startsWith(QLatin1String("total"), Qt::CaseInsensitive);
}

// "6", beside the "3.5.6" that the survey knows a row by.
bool IsCount(const QString& label) {
  return std::ranges::all_of(label, [](QChar character) { return character.isDigit(); });
}

// What the label columns say of a row; "" where they are blank.
QString RowLabels(const Grid& grid, int row) {
  const int columns = grid.design().label_columns;
  QStringList labels;
  int first_own = columns + 1;
  for (int column = columns; column >= 1; --column) {
    if (!LabelAt(grid, column, row).isEmpty()) first_own = column;
  }
  if (first_own <= columns && IsTotalLabel(LabelAt(grid, first_own, row))) {
    return LabelAt(grid, first_own, row);
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
  labels.removeAll(QString());
  if (labels.size() > 1 && IsCount(labels[0]) && labels[1].front().isDigit()) labels.removeFirst();
  return Joined(labels);
}

// ---- Tables that are forms: questions and answers all over the cells -----------------------

struct Question {
  QString text;
  bool is_next = true;  // to the cell: no other answer lies between
};

// The nearest texts to the left of a cell, behind the label columns, up to the answer before them.
Question QuestionBefore(const Grid& grid, Cell cell) {
  QStringList labels;
  bool is_next = true;
  for (int column = cell.column - 1; column > grid.design().label_columns; --column) {
    column = grid.SpanOf(column, cell.row).column;
    const bool answer = !IsLabel(grid, {column, cell.row});
    if (answer && !labels.isEmpty()) break;
    if (answer) is_next = false;
    if (const QString label = LabelAt(grid, column, cell.row); !answer && !label.isEmpty()) {
      labels.prepend(label);
    }
  }
  return {Joined(labels), is_next};
}

// The nearest text above a cell that does not stay in view; row 0 where there is none.
Cell LabelAbove(const Grid& grid, Cell cell) {
  for (int row = cell.row - 1; row > grid.design().head_rows; --row) {
    const CellRange span = grid.SpanOf(cell.column, row);
    const Cell above{span.column, span.row};
    if (IsLabel(grid, above) && !ShownText(grid, above).simplified().isEmpty()) return above;
  }
  return {};
}

// The text above a column of answers, when it stands over just that column.
QString HeadOver(const Grid& grid, Cell cell) {
  const Cell above = LabelAbove(grid, cell);
  if (above.row == 0) return {};
  const CellRange head = grid.SpanOf(above.column, above.row);
  const CellRange own = grid.SpanOf(cell.column, cell.row);
  const bool fits = head.column == own.column && head.last_column == own.last_column;
  return fits ? LabelAt(grid, above.column, above.row) : QString();
}

// The text above a cell; those of a list below it are told apart by their lines.
QString QuestionAbove(const Grid& grid, Cell cell) {
  const Cell above = LabelAbove(grid, cell);
  if (above.row == 0) return {};
  const QString text = LabelAt(grid, above.column, above.row);
  const int line = cell.row - above.row;
  const bool list = line > 1 || grid.IsOpen(cell.column, cell.row + 1);
  return list ? text + QStringLiteral(" line %1").arg(line) : text;
}

bool IsOnlyAnswerOfColumn(const Grid& grid, Cell cell) {
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    if (row != cell.row && !IsLabel(grid, {cell.column, row})) return false;
  }
  return true;
}

QString ValueOf(const Grid& grid, Cell cell) {
  const QString text = ShownText(grid, cell).simplified();
  if (grid.IsCheckBox(cell.column, cell.row)) {
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
  const QString name = Heads(grid, column);
  return name.isEmpty() ? QStringLiteral("column %1").arg(column) : name;
}

QString RowName(const Grid& grid, int row) {
  const QString name = RowLabels(grid, row);
  return name.isEmpty() ? QStringLiteral("row %1").arg(row) : name;
}

QString CellName(const Grid& grid, Cell cell) {
  const Question before = QuestionBefore(grid, cell);
  QString row = Joined({RowLabels(grid, cell.row), before.text});
  QString column = Heads(grid, cell.column);
  if (column.isEmpty() && !row.isEmpty()) column = HeadOver(grid, cell);
  if (column.isEmpty() && !before.is_next) column = ColumnName(grid, cell.column);
  if (row.isEmpty()) row = QuestionAbove(grid, cell);
  if (row.isEmpty() && (column.isEmpty() || !IsOnlyAnswerOfColumn(grid, cell))) {
    row = RowName(grid, cell.row);
  }
  QStringList parts{row, column};
  parts.removeAll(QString());
  return parts.join(QStringLiteral(", "));
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
  const QString state = StateOf(grid, cell);
  return CellName(grid, cell) + QStringLiteral(": ") + ValueOf(grid, cell) +
         (state.isEmpty() ? QString() : QStringLiteral(", ") + state);
}

}  // namespace survey
