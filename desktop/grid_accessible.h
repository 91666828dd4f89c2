#ifndef DESKTOP_GRID_ACCESSIBLE_H_
#define DESKTOP_GRID_ACCESSIBLE_H_

#include <QAccessible>
#include <QHash>

#include "grid/cell.h"

namespace survey {

class GridView;

// What a screen reader is told of a GridView, and what it may do there: to be installed as a
// factory once, with QAccessible::installFactory(). The toolkit's own would select a cell where the
// user asked for a tick or a choice, and the form would not hear of it.
//
// Children go by row and column with a row of heads and a column of labels before the cells, as the
// toolkit counts them in the events that it raises for tables.
QAccessibleInterface* MakeGridAccessible(const QString& class_name, QObject* object);

// Row and column of a table's cell as its accessible; null outside.
QAccessibleInterface* CellAccessibleOf(QAccessibleInterface& table, int column, int row);

// Tells screen readers what happens in a table. Nothing while nobody listens.
class GridTeller : public QAccessible::ActivationObserver {
 public:
  // `view` must outlive the teller.
  explicit GridTeller(GridView& view);
  ~GridTeller() override;

  // Which cells hold something else than they last did, whoever has changed them: the user, by
  // typing, ticking, clearing or pasting, a total that follows, or the page.
  void TellChanges();
  void TellFocus(Cell cell) const;

 protected:
  // A screen reader has come, or gone.
  void accessibilityActiveChanged(bool active) override;

 private:
  void Tell(QAccessible::Event type, Cell cell) const;

  GridView& view_;
  bool active_;
  QHash<int, QString> told_;  // of each cell
};

}  // namespace survey

#endif  // DESKTOP_GRID_ACCESSIBLE_H_
