#include "desktop/grid_model.h"

#include "desktop/grid_names.h"

namespace survey {
namespace {

QVariant Note(const Grid& grid, Cell cell) {
  const std::string& text = grid.NoteOf(cell.column, cell.row).text;
  return text.empty() ? QVariant() : QVariant(QString::fromStdString(text));
}

QVariant Tick(const Grid& grid, Cell cell) {
  if (!grid.IsCheckBox(cell.column, cell.row)) return {};
  return ShownText(grid, cell) == QLatin1String("1") ? Qt::Checked : Qt::Unchecked;
}

}  // namespace

GridModel::GridModel(const Grid& grid, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid), rows_(grid.MaxRows()) {}

void GridModel::Refresh() {
  const int rows = grid_.MaxRows();
  if (rows > rows_) {
    beginInsertRows({}, rows_, rows - 1);
    rows_ = rows;
    endInsertRows();
  } else if (rows < rows_) {
    beginRemoveRows({}, rows, rows_ - 1);
    rows_ = rows;
    endRemoveRows();
  }
  if (rows_ > 0) Q_EMIT dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
}

int GridModel::rowCount(const QModelIndex& parent) const { return parent.isValid() ? 0 : rows_; }

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : grid_.MaxColumns();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const Cell cell = CellAt(index);
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return ShownText(grid_, cell);
    case Qt::CheckStateRole:
      return Tick(grid_, cell);
    case Qt::ToolTipRole:
      return Note(grid_, cell);
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) return {};
  return orientation == Qt::Horizontal ? ColumnName(grid_, section + 1)
                                       : RowName(grid_, section + 1);
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  const Cell cell = CellAt(index);
  Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  if (!grid_.IsOpen(cell.column, cell.row)) return flags;
  const bool box = grid_.IsCheckBox(cell.column, cell.row);
  return flags | (box ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

}  // namespace survey
