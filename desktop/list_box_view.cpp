#include "desktop/list_box_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <utility>

namespace survey {
namespace {

class ListWidget : public QListView {
 public:
  ListWidget(ListBox& list, QWidget* parent) : QListView(parent), list_(list) {
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
  }

 protected:
  // Only choosing another entry ends a choice: a click below the last one does not, nor does a
  // click with Ctrl.
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override {
    if (!index.isValid()) return QItemSelectionModel::NoUpdate;
    const auto command = QListView::selectionCommand(index, event);
    return (command & QItemSelectionModel::Deselect) != 0 ? QItemSelectionModel::ClearAndSelect
                                                          : command;
  }

  void mouseDoubleClickEvent(QMouseEvent* event) override {
    goes_on_ = indexAt(event->pos()).isValid();
    QListView::mouseDoubleClickEvent(event);
  }

  // A press and a drag mark an entry; the mouse chooses where it is let go.
  void mousePressEvent(QMouseEvent* event) override {
    by_hand_ = true;
    QListView::mousePressEvent(event);
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    QListView::mouseReleaseEvent(event);
    by_hand_ = false;
    const int row = currentIndex().row();
    if (!selectionModel()->hasSelection()) return;
    if (row != list_.ListIndex() || indexAt(event->pos()).isValid()) list_.Choose(row);
    if (std::exchange(goes_on_, false) && list_.Default != nullptr) list_.Default->Click();
  }

  // Moving through the list by key chooses, as clicking does.
  void keyPressEvent(QKeyEvent* event) override {
    const int before = list_.ListIndex();
    {
      const QScopedValueRollback by_hand(by_hand_, true);
      QListView::keyPressEvent(event);
    }
    // Qt may already have its cursor, unseen, on the first entry, and would go to the second.
    const bool enters = before < 0 && event->key() == Qt::Key_Down;
    const int row = enters ? 0 : currentIndex().row();
    const bool moved = row != before && selectionModel()->hasSelection();
    if (enters || moved || event->key() == Qt::Key_Space) list_.Choose(row);
  }

  // A screen reader selects an entry where the mouse clicks it.
  void selectionChanged(const QItemSelection& selected, const QItemSelection& before) override {
    QListView::selectionChanged(selected, before);
    if (by_hand_ || selected.isEmpty()) return;
    const int row = selected.indexes().constFirst().row();
    if (row != list_.ListIndex()) list_.Choose(row);
  }

 private:
  ListBox& list_;
  bool by_hand_ = false;  // the user's mouse or key is at work, and chooses when it is done
  bool goes_on_ = false;  // the mouse is down in a double click on an entry
};

}  // namespace

QStringList Texts(const std::vector<ListItem>& items) {
  QStringList texts;
  texts.reserve(static_cast<qsizetype>(items.size()));
  for (const ListItem& item : items) texts << QString::fromStdString(item.text);
  return texts;
}

ListBoxView::ListBoxView(ListBox& list, QWidget* parent)
    : ControlView(list, new ListWidget(list, parent)),
      list_(list),
      widget_(static_cast<QListView&>(*widget())),
      model_(*new QStringListModel(&widget_)) {
  widget_.setModel(&model_);
}

void ListBoxView::RefreshState() {
  const QSignalBlocker blocker(widget_);
  if (revision_ != list_.revision()) {
    model_.setStringList(Texts(list_.items()));
    revision_ = list_.revision();
  }
  const bool anything = list_.ListIndex() >= 0;
  if (!anything) {
    widget_.clearSelection();
  } else {
    widget_.setCurrentIndex(model_.index(list_.ListIndex()));
  }
}

}  // namespace survey
