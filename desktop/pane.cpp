#include "desktop/pane.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/keys.h"

namespace survey {
namespace {

constexpr QRgb kAlarmOnDark = 0xFFFF8A80;
constexpr int kHalf = 128;  // of the lightness of a colour
constexpr int kMargin = 6;
constexpr int kLeastCharacters = 32;  // of a line that are seen
constexpr int kLineSpacing = 5;

// Lines that are easily told apart and hit.
class RoomyLines : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, kLineSpacing);
  }
};

}  // namespace

QColor AlarmOn(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < kHalf ? kAlarmOnDark : kAlarm;
}

// ---- PaneList ------------------------------------------------------------------------------

PaneList::PaneList(const QString& name, int columns) {
  setObjectName(name);
  setColumnCount(columns);
  setHeaderHidden(true);
  setRootIsDecorated(false);
  setIndentation(0);
  setItemDelegate(new RoomyLines(this));
  setItemsExpandable(false);
  setFrameShape(NoFrame);
  setAllColumnsShowFocus(true);
  setFocusPolicy(Qt::ClickFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setMinimumWidth(kLeastCharacters * fontMetrics().averageCharWidth());
  header()->setStretchLastSection(true);
  for (int column = 0; column < columns - 1; ++column) {
    header()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
  }
  connect(this, &QTreeWidget::itemClicked, this, &PaneList::Chosen);
}

void PaneList::keyPressEvent(QKeyEvent* event) {
  if (!IsEnter(*event)) return QTreeWidget::keyPressEvent(event);
  if (currentItem() != nullptr) Q_EMIT Chosen(currentItem());
}

// ---- Pane ----------------------------------------------------------------------------------

Pane::Pane(const QString& name, const QString& title, PaneList* list, QWidget* window)
    : QDockWidget(title, window), list_(list), stops_{list} {
  setObjectName(name);
  setFeatures(DockWidgetClosable);
  list->setAccessibleName(title);
  auto* inner = new QWidget;
  auto* column = new QVBoxLayout(inner);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(list, 1);
  setWidget(inner);
}

void Pane::AddBelow(QWidget* widget) {
  auto* across = new QHBoxLayout;
  across->setContentsMargins(kMargin, 0, kMargin, kMargin);
  across->addWidget(widget);
  static_cast<QVBoxLayout*>(this->widget()->layout())->addLayout(across);
  widget->setFocusPolicy(Qt::ClickFocus);
  stops_.push_back(widget);
}

void Pane::closeEvent(QCloseEvent* event) {
  event->ignore();
  Q_EMIT CloseAsked();
}

bool Pane::focusNextPrevChild(bool next) {
  const auto at = std::ranges::find(stops_, focusWidget());
  const std::size_t from = at == stops_.end() ? 0 : at - stops_.begin();
  stops_[(from + (next ? 1 : stops_.size() - 1)) % stops_.size()]->setFocus(
      next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

void Pane::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return QDockWidget::keyPressEvent(event);
  Q_EMIT Left();
}

}  // namespace survey
