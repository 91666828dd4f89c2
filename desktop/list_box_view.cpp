#include "desktop/list_box_view.h"

#include <QKeyEvent>
#include <QSignalBlocker>

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
  // Moving through the list by key chooses, as clicking does.
  void keyPressEvent(QKeyEvent* event) override {
    const int before = list_.ListIndex();
    QListView::keyPressEvent(event);
    // The first key enters the list at its top, where it may have stood unseen.
    const bool enters = before < 0 && event->key() == Qt::Key_Down;
    const int row = enters ? 0 : currentIndex().row();
    const bool moved = row != before && selectionModel()->hasSelection();
    if (enters || moved || event->key() == Qt::Key_Space) list_.Choose(row);
  }

 private:
  ListBox& list_;
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
  QObject::connect(&widget_, &QListView::clicked, &widget_, [this](const QModelIndex& index) {
    list_.Choose(index.row());
    TakeOver();
  });
}

void ListBoxView::TakeOverState() {
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
