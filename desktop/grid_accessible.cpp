#include "desktop/grid_accessible.h"

#include <QAccessibleWidget>
#include <QHash>

#include "desktop/grid_names.h"
#include "desktop/grid_view.h"

namespace survey {
namespace {

// A cell, a head of a column (row 0) or the label of a row (column 0). The table owns it.
class CellAccessible : public QAccessibleInterface,
                       public QAccessibleTableCellInterface,
                       public QAccessibleActionInterface {
 public:
  CellAccessible(GridView& view, Cell cell) : view_(view), cell_(cell) {}

  bool isValid() const override { return cell_.row <= grid().MaxRows(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return table()->window(); }
  QAccessibleInterface* parent() const override { return table(); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  void setText(QAccessible::Text, const QString&) override {}

  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name) return {};
    if (cell_.row == 0) return cell_.column == 0 ? QString() : ColumnName(grid(), cell_.column);
    return cell_.column == 0 ? RowName(grid(), cell_.row) : SpokenText(grid(), cell_);
  }

  QRect rect() const override {
    const QRect place = view_.PlaceOf(cell_);
    return {view_.viewport()->mapToGlobal(place.topLeft()), place.size()};
  }

  QAccessible::Role role() const override {
    if (cell_.row == 0) return QAccessible::ColumnHeader;
    return cell_.column == 0 ? QAccessible::RowHeader : QAccessible::Cell;
  }

  QAccessible::State state() const override {
    QAccessible::State now;
    now.invisible = !view_.isVisible();
    now.disabled = !view_.isEnabled();
    now.offscreen = !view_.PlaceOf(cell_).intersects(view_.viewport()->rect());
    if (IsHead()) return now;
    now.focusable = true;
    now.selectable = true;
    now.active = cell_ == Cell{grid().ActiveColumn(), grid().ActiveRow()};
    now.focused = now.active && view_.hasFocus();
    now.selected = isSelected();
    now.checkable = grid().IsCheckBox(cell_.column, cell_.row);
    now.checked = now.checkable && grid().GetText(cell_.column, cell_.row) == "1";
    now.editable = grid().IsOpen(cell_.column, cell_.row) && !now.checkable;
    now.readOnly = !grid().IsOpen(cell_.column, cell_.row);
    return now;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TableCellInterface) {
      return static_cast<QAccessibleTableCellInterface*>(this);
    }
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
  }

  bool isSelected() const override { return view_.IsSelected(cell_); }
  QList<QAccessibleInterface*> columnHeaderCells() const override {
    return {Part({cell_.column, 0})};
  }
  QList<QAccessibleInterface*> rowHeaderCells() const override { return {Part({0, cell_.row})}; }
  int columnIndex() const override { return cell_.column - 1; }
  int rowIndex() const override { return cell_.row - 1; }
  int columnExtent() const override { return Span().last_column - Span().column + 1; }
  int rowExtent() const override { return Span().last_row - Span().row + 1; }
  QAccessibleInterface* table() const override {
    return QAccessible::queryAccessibleInterface(&view_);
  }

  QStringList actionNames() const override {
    if (cell_.column == 0) return {};
    if (grid().IsCheckBox(cell_.column, cell_.row)) return {toggleAction(), setFocusAction()};
    return IsHead() ? QStringList{pressAction()} : QStringList{pressAction(), setFocusAction()};
  }
  void doAction(const QString& name) override {
    if (!actionNames().contains(name)) return;
    if (name == setFocusAction()) {
      view_.Attend(cell_, {});
    } else {
      view_.Click(cell_, name == toggleAction());
    }
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  const Grid& grid() const { return view_.grid(); }
  bool IsHead() const { return cell_.row == 0 || cell_.column == 0; }
  CellRange Span() const {
    return IsHead() ? CellRange(cell_.column, cell_.row) : grid().SpanOf(cell_.column, cell_.row);
  }
  QAccessibleInterface* Part(Cell cell) const {
    return CellAccessibleOf(*table(), cell.column, cell.row);
  }

  GridView& view_;
  Cell cell_;
};

class TableAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit TableAccessible(GridView& view)
      : QAccessibleWidget(&view, QAccessible::Table), view_(view) {}
  ~TableAccessible() override {
    for (const QAccessible::Id id : parts_) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return (rowCount() + 1) * Stride(); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    QAccessible::Id& id = parts_[index];
    if (id == 0) {
      const Cell cell{index % Stride(), index / Stride()};
      id = QAccessible::registerAccessibleInterface(new CellAccessible(view_, cell));
    }
    return QAccessible::accessibleInterface(id);
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    const QAccessible::Id id = QAccessible::uniqueId(const_cast<QAccessibleInterface*>(child));
    return parts_.key(id, -1);
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const Cell cell = view_.CellAt(view_.mapFromGlobal(QPoint(x, y)));
    return cell.column == 0 ? nullptr : child(cell.row * Stride() + cell.column);
  }
  QAccessibleInterface* focusChild() const override {
    if (!view_.hasFocus()) return QAccessibleWidget::focusChild();
    return cellAt(view_.grid().ActiveRow() - 1, view_.grid().ActiveColumn() - 1);
  }
  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QAccessibleInterface* cellAt(int row, int column) const override {
    if (row < 0 || column < 0 || column >= columnCount()) return nullptr;
    return child((row + 1) * Stride() + column + 1);
  }
  int columnCount() const override { return view_.grid().MaxColumns(); }
  int rowCount() const override { return view_.grid().MaxRows(); }
  QString columnDescription(int column) const override {
    return ColumnName(view_.grid(), column + 1);
  }
  QString rowDescription(int row) const override { return RowName(view_.grid(), row + 1); }

  QList<QAccessibleInterface*> selectedCells() const override {
    QList<QAccessibleInterface*> cells;
    for (const QModelIndex& index : view_.selectionModel()->selectedIndexes()) {
      cells << cellAt(index.row(), index.column());
    }
    return cells;
  }
  int selectedCellCount() const override { return static_cast<int>(selectedCells().size()); }
  QList<int> selectedRows() const override {
    QList<int> rows;
    for (const QModelIndex& index : view_.selectionModel()->selectedRows()) rows << index.row();
    return rows;
  }
  QList<int> selectedColumns() const override { return {}; }
  int selectedRowCount() const override { return static_cast<int>(selectedRows().size()); }
  int selectedColumnCount() const override { return 0; }
  bool isRowSelected(int row) const override { return selectedRows().contains(row); }
  bool isColumnSelected(int) const override { return false; }
  // A row is chosen in a list, as by a click.
  bool selectRow(int row) override {
    if (view_.selectionBehavior() != QTableView::SelectRows || cellAt(row, 0) == nullptr) {
      return false;
    }
    view_.Click({1, row + 1}, false);
    return true;
  }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }

  // Cells stay what they are, unless their row is gone.
  void modelChange(QAccessibleTableModelChangeEvent*) override {
    for (auto part = parts_.begin(); part != parts_.end();) {
      if (part.key() < childCount()) {
        ++part;
      } else {
        QAccessible::deleteAccessibleInterface(*part);
        part = parts_.erase(part);
      }
    }
  }

 private:
  int Stride() const { return columnCount() + 1; }

  GridView& view_;
  mutable QHash<int, QAccessible::Id> parts_;  // by their index; those that were asked for
};

}  // namespace

QAccessibleInterface* MakeGridAccessible(const QString&, QObject* object) {
  auto* view = qobject_cast<GridView*>(object);
  return view == nullptr ? nullptr : new TableAccessible(*view);
}

QAccessibleInterface* CellAccessibleOf(QAccessibleInterface& table, int column, int row) {
  const int columns = table.tableInterface()->columnCount();
  return column > columns ? nullptr : table.child(row * (columns + 1) + column);
}

GridTeller::GridTeller(GridView& view) : view_(view), active_(QAccessible::isActive()) {
  QAccessible::installActivationObserver(this);
}

GridTeller::~GridTeller() { QAccessible::removeActivationObserver(this); }

void GridTeller::accessibilityActiveChanged(bool active) {
  active_ = active;
  told_.clear();
  TellChanges();  // nothing yet: a reader finds for itself what is there
}

void GridTeller::Tell(QAccessible::Event type, Cell cell) const {
  QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&view_);
  QAccessibleInterface* part = CellAccessibleOf(*table, cell.column, cell.row);
  if (part == nullptr) return;
  if (type == QAccessible::NameChanged && part->state().checkable) {
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent tick(part, changed);
    QAccessible::updateAccessibility(&tick);
  }
  QAccessibleEvent event(part, type);
  QAccessible::updateAccessibility(&event);
}

void GridTeller::TellChanges() {
  if (!active_) return;
  const Grid& grid = view_.grid();
  const bool first = told_.isEmpty();
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    for (int column = 1; column <= grid.MaxColumns(); ++column) {
      const QString now = ShownText(grid, {column, row}) + u'\n' + StateOf(grid, {column, row});
      QString& told = told_[row * (grid.MaxColumns() + 1) + column];
      if (told == now) continue;
      told = now;
      if (!first && view_.isVisible()) Tell(QAccessible::NameChanged, {column, row});
    }
  }
}

void GridTeller::TellFocus(Cell cell) const {
  if (active_) Tell(QAccessible::Focus, cell);
}

}  // namespace survey
