#ifndef DESKTOP_GRID_MODEL_H_
#define DESKTOP_GRID_MODEL_H_

#include <QAbstractTableModel>

#include "grid/grid.h"

namespace survey {

// Shows a table to Qt's view. Read only: entries go to the grid.
class GridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  // `grid` must outlive the model.
  GridModel(const Grid& grid, QObject* parent);

  // Tells the view that the grid has changed.
  void Refresh();

  static Cell CellAt(const QModelIndex& index) { return {index.column() + 1, index.row() + 1}; }
  QModelIndex IndexOf(Cell cell) const { return index(cell.row - 1, cell.column - 1); }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  const Grid& grid_;
  int rows_;  // as the view knows them
};

}  // namespace survey

#endif  // DESKTOP_GRID_MODEL_H_
