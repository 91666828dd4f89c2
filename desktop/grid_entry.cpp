#include "desktop/grid_entry.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QValidator>
#include <algorithm>
#include <utility>

#include "desktop/grid_names.h"
#include "desktop/keys.h"

namespace survey {
namespace {

// Leaves every text as it is, but for capitals where the cell has them, and for the line end that
// a cell copied elsewhere comes with.
class EntryText : public QValidator {
 public:
  EntryText(bool capitals, QObject* parent) : QValidator(parent), capitals_(capitals) {}

  State validate(QString& input, int& cursor) const override {
    while (input.endsWith(u'\n') || input.endsWith(u'\r')) input.chop(1);
    cursor = std::min(cursor, static_cast<int>(input.size()));
    if (capitals_) input = input.toUpper();
    return Acceptable;
  }

 private:
  bool capitals_;
};

// Black on white as the open cell itself, under any desktop colours.
QPalette EntryColors() {
  QPalette palette;
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, Qt::black);
  palette.setColor(QPalette::Highlight, QColor(0, 60, 140));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

Qt::Alignment SideOf(Alignment alignment) {
  if (alignment == Alignment::kRight) return Qt::AlignRight;
  return alignment == Alignment::kCenter ? Qt::AlignHCenter : Qt::AlignLeft;
}

// Keys that take the entry and go on from its cell.
bool EndsEntry(const QKeyEvent& event, bool over) {
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
      return over && event.modifiers() == (event.modifiers() & Qt::KeypadModifier);
    default:
      return false;
  }
}

bool IsRedo(const QKeyEvent& event) {
  return event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier;
}

}  // namespace

GridEntry::GridEntry(GridControl& grid, QFont font, EntryNote& note, QTableView& view)
    : QStyledItemDelegate(&view), grid_(grid), font_(std::move(font)), note_(note), view_(view) {}

// ---- What becomes of the text --------------------------------------------------------------

void GridEntry::Begin(bool over) {
  over_ = over;
  kept_press_ = false;
  if (!over) line_->end(false);
}

bool GridEntry::TakesInstead(const QKeyEvent& key) {
  if (IsOpen() || !IsCharacter(key)) return false;
  const Cell cell{grid_.ActiveColumn(), grid_.ActiveRow()};
  const bool box = grid_.IsCheckBox(cell.column, cell.row);
  const Entry entry = box ? grid_.Type(cell.column, cell.row, key.text().toStdString())
                          : grid_.MayEnter(cell.column, cell.row);
  if (!entry.taken) note_.Show(cell, entry.reason);
  return !entry.taken || box;
}

bool GridEntry::Commit() {
  if (!IsOpen() || submitting_) return true;
  const Entry entry = Submit();
  if (!IsOpen()) return entry.taken;
  if (entry.taken) {
    Close();
    return true;
  }
  view_.scrollTo(view_.model()->index(cell_.row - 1, cell_.column - 1));
  line_->setFocus();
  line_->selectAll();
  Show(entry);
  QApplication::beep();
  return false;
}

// Puts what was typed to the grid; going through a cell without typing is no entry.
Entry GridEntry::Submit() const {
  if (submitting_ || !IsOpen() || line_->text() == before_) return {};
  const QScopedValueRollback submitting(submitting_, true);
  return grid_.Type(cell_.column, cell_.row, line_->text().toStdString());
}

// Says of each text at once whether it can become an entry, but not again at each further key.
void GridEntry::Judge() const {
  const std::string text = line_->text().toStdString();
  const Entry entry = text.empty() ? Entry() : grid_.MayBecome(cell_.column, cell_.row, text);
  if (entry.taken == line_->refused()) Show(entry);
}

void GridEntry::Show(const Entry& entry) const {
  line_->SetRefused(!entry.taken);
  note_.Show(cell_, entry.reason, EntryNote::Stays::kUntilHidden);
}

void GridEntry::Close() {
  if (!IsOpen()) return;
  note_.Hide();
  const QScopedValueRollback closing(submitting_, true);  // the focus that leaves ends nothing more
  Q_EMIT closeEditor(line_, RevertModelCache);
}

void GridEntry::Refresh() {
  if (!submitting_ && !grid_.IsOpen(cell_.column, cell_.row)) Close();
}

void GridEntry::Abandon() {
  if (!IsOpen()) return;
  line_->removeEventFilter(this);
  qApp->removeEventFilter(this);  // or it would ask about a line that is half gone
  line_ = nullptr;
}

// ---- What the user does in the line --------------------------------------------------------

bool GridEntry::TakeKey(QKeyEvent& event) {
  if (EndsEntry(event, over_)) {
    if (Commit()) Q_EMIT Ended(&event);
    return true;
  }
  if (event.key() == Qt::Key_Escape) {
    Close();
    return true;
  }
  if (event.key() == Qt::Key_F2) {
    over_ = false;
    return true;
  }
  if (IsRedo(event)) {
    line_->redo();
    return true;
  }
  return false;
}

// The focus has gone elsewhere. Typing is kept over another window and a menu; a refused text
// calls the focus back, once it has got where it was going.
void GridEntry::Leave(Qt::FocusReason reason) {
  if (submitting_ || reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason) {
    return;
  }
  if (Submit().taken) {
    Close();
  } else {
    QMetaObject::invokeMethod(
        this, [this] { Commit(); }, Qt::QueuedConnection);
  }
}

// A click elsewhere in the window takes the entry first, and is not to do anything while that is
// refused. Scrolling is free.
bool GridEntry::KeepsMouse(QObject* watched, const QEvent& event) {
  if (event.type() == QEvent::MouseButtonRelease) return std::exchange(kept_press_, false);
  const bool press =
      event.type() == QEvent::MouseButtonPress || event.type() == QEvent::MouseButtonDblClick;
  const auto* widget = qobject_cast<const QWidget*>(watched);
  if (!press || widget == nullptr || widget == line_ || widget->window() != view_.window() ||
      qobject_cast<const QScrollBar*>(widget) != nullptr) {
    return false;
  }
  kept_press_ = !Commit();
  return kept_press_;
}

// The table decides what keys and leaving mean; Qt's own rules would drop a refused text without
// a word.
bool GridEntry::eventFilter(QObject* watched, QEvent* event) {
  if (watched != line_) return IsOpen() && KeepsMouse(watched, *event);
  if (event->type() == QEvent::KeyPress) return TakeKey(static_cast<QKeyEvent&>(*event));
  if (event->type() == QEvent::FocusOut) {
    Leave(static_cast<QFocusEvent&>(*event).reason());
    return false;
  }
  if (event->type() != QEvent::ShortcutOverride) return false;
  const auto& key = static_cast<QKeyEvent&>(*event);
  if (key.key() != Qt::Key_Escape && !IsRedo(key)) return false;
  event->accept();  // else a dialog around the table would close, or the table do something again
  return true;
}

// ---- The line ------------------------------------------------------------------------------

QWidget* GridEntry::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                 const QModelIndex& index) const {
  cell_ = {index.column() + 1, index.row() + 1};
  auto* line = new EntryLine(parent);
  line->setObjectName(QStringLiteral("cellEditor"));
  line->setAccessibleName(CellName(grid_, cell_));
  line->setFont(font_);
  line->setPalette(EntryColors());
  line->setFrame(false);
  line->setAlignment(SideOf(grid_.AlignmentOf(cell_.column, cell_.row)) | Qt::AlignVCenter);
  line->setValidator(new EntryText(grid_.Kind(cell_.column, cell_.row).upper_case, line));
  connect(line, &QLineEdit::textChanged, this, &GridEntry::Judge);
  qApp->installEventFilter(const_cast<GridEntry*>(this));
  line_ = line;
  before_.reset();
  return line;
}

// Qt sets the line again whenever the table changes; what is being typed must outlast that.
void GridEntry::setEditorData(QWidget* editor, const QModelIndex& index) const {
  if (before_) return;
  QStyledItemDelegate::setEditorData(editor, index);
  before_ = line_->text();
}

// The cursor leaves the cell.
void GridEntry::setModelData(QWidget*, QAbstractItemModel*, const QModelIndex&) const {
  const Entry entry = Submit();
  if (!entry.taken) note_.Show(cell_, entry.reason);
}

void GridEntry::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                     const QModelIndex&) const {
  editor->setGeometry(option.rect.adjusted(1, 1, -2, -2));
}

void GridEntry::destroyEditor(QWidget* editor, const QModelIndex& index) const {
  line_ = nullptr;
  qApp->removeEventFilter(const_cast<GridEntry*>(this));
  QStyledItemDelegate::destroyEditor(editor, index);
}

// A box is ticked through the grid alone.
bool GridEntry::editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&,
                            const QModelIndex&) {
  return false;
}

}  // namespace survey
