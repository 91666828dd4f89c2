#include "desktop/entry_note.h"

#include <QAccessible>
#include <QApplication>
#include <QScrollBar>
#include <algorithm>
#include <chrono>

namespace survey {
namespace {

constexpr std::chrono::milliseconds kShown(10'000);
constexpr std::chrono::milliseconds kShownPerCharacter(60);
constexpr int kWidest = 520;  // of a note, in pixels

}  // namespace

EntryNote::EntryNote(QTableView& view) : view_(view) {
  timer_.setSingleShot(true);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Hide(); });
}

EntryNote::~EntryNote() { delete label_; }

void EntryNote::Show(Cell cell, const std::string& text, Stays stays) {
  Hide();
  if (text.empty()) return;
  cell_ = cell;
  const QString told = QString::fromStdString(text);
  label_ = new QLabel(told, view_.window());
  label_->setObjectName(QStringLiteral("entryNote"));
  label_->setTextFormat(Qt::PlainText);
  label_->setStyleSheet(QStringLiteral(
      "QLabel { background: #fff3c4; color: black; border: 1px solid #806000; padding: 4px; }"));
  label_->raise();
  label_->show();
  Place();
  FollowScrolling();
  if (stays == Stays::kForAWhile) timer_.start(kShown + told.size() * kShownPerCharacter);
  Describe(told);
  QAccessibleEvent alert(label_, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

// The note is a child of the window, over all that scrolls in it.
void EntryNote::FollowScrolling() {
  for (QWidget* around = &view_; around != nullptr; around = around->parentWidget()) {
    auto* area = qobject_cast<QAbstractScrollArea*>(around);
    if (area == nullptr) continue;
    for (const QScrollBar* bar : {area->horizontalScrollBar(), area->verticalScrollBar()}) {
      QObject::connect(bar, &QScrollBar::valueChanged, label_, [this] { Place(); });
    }
  }
}

// Below the cell where the window has room, else above it; nowhere while the cell is scrolled away.
void EntryNote::Place() {
  if (!label_) return;  // hidden, but not yet gone
  const QRect cell = view_.visualRect(view_.model()->index(cell_.row - 1, cell_.column - 1));
  label_->setVisible(cell.intersects(view_.viewport()->rect()));
  const QWidget& window = *view_.window();
  const int widest = std::min(kWidest, window.width() - 8);
  if (label_->sizeHint().width() > widest) {
    label_->setWordWrap(true);
    label_->setFixedWidth(widest);
  }
  label_->adjustSize();
  const QPoint below = view_.viewport()->mapTo(&window, cell.bottomLeft()) + QPoint(0, 3);
  const QPoint above =
      view_.viewport()->mapTo(&window, cell.topLeft()) - QPoint(0, label_->height() + 3);
  const bool fits = below.y() + label_->height() <= window.height();
  const QPoint at = fits ? below : above;
  label_->move(std::clamp(at.x(), 0, std::max(0, window.width() - label_->width())),
               std::max(0, at.y()));
}

// Of what the user is in: the line that is typed into, or the view itself.
void EntryNote::Describe(const QString& text) {
  view_.setAccessibleDescription(text);
  QWidget* focus = QApplication::focusWidget();
  if (focus != nullptr && view_.isAncestorOf(focus)) focus->setAccessibleDescription(text);
}

void EntryNote::Hide() {
  timer_.stop();
  if (!label_) return;
  Describe({});
  label_->hide();
  label_->deleteLater();
  label_ = nullptr;
}

}  // namespace survey
