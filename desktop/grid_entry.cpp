#include "desktop/grid_entry.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QValidator>
#include <utility>

#include "desktop/grid_names.h"
#include "desktop/keys.h"

namespace survey {
namespace {

// Lets a line hold only what may still become an entry.
class EntryValidator : public QValidator {
 public:
  EntryValidator(const Grid& grid, Cell cell, QObject* parent)
      : QValidator(parent), grid_(grid), cell_(cell) {}

  const std::string& reason() const { return reason_; }

  State validate(QString& input, int&) const override {
    if (grid_.Kind(cell_.column, cell_.row).upper_case) input = input.toUpper();
    const Entry entry = grid_.MayBecome(cell_.column, cell_.row, input.toStdString());
    if (entry.taken || input.isEmpty()) return Acceptable;
    reason_ = entry.reason;
    return Invalid;
  }

 private:
  const Grid& grid_;
  Cell cell_;
  mutable std::string reason_;
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

}  // namespace

GridEntry::GridEntry(GridControl& grid, QFont font, EntryNote& note, QTableView& view)
    : QStyledItemDelegate(&view), grid_(grid), font_(std::move(font)), note_(note) {}

// ---- What becomes of the text --------------------------------------------------------------

void GridEntry::Begin(bool over) {
  over_ = over;
  if (!over) line_->end(false);
}

bool GridEntry::RefusesToBegin(const QKeyEvent& key) {
  if (IsOpen() || !IsCharacter(key)) return false;
  const Cell cell{grid_.ActiveColumn(), grid_.ActiveRow()};
  const std::string typed = key.text().toStdString();
  const bool box = grid_.IsCheckBox(cell.column, cell.row);
  const Entry entry = box ? grid_.Type(cell.column, cell.row, typed)
                          : grid_.MayBecome(cell.column, cell.row, typed);
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
  line_->setFocus();
  line_->selectAll();
  note_.Show(cell_, entry.reason);
  return false;
}

// Puts what was typed to the grid; going through a cell without typing is no entry.
Entry GridEntry::Submit() const {
  if (submitting_ || !IsOpen() || line_->text() == before_) return {};
  const QScopedValueRollback submitting(submitting_, true);
  return grid_.Type(cell_.column, cell_.row, line_->text().toStdString());
}

void GridEntry::Close() {
  if (IsOpen()) Q_EMIT closeEditor(line_, RevertModelCache);
}

void GridEntry::Refresh() {
  if (!submitting_ && !grid_.IsOpen(cell_.column, cell_.row)) Close();
}

void GridEntry::Abandon() {
  if (IsOpen()) line_->removeEventFilter(this);
}

// ---- What the user does in the line --------------------------------------------------------

bool GridEntry::TakeKey(QKeyEvent& event) {
  note_.Hide();
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
  return false;
}

// The user clicked elsewhere. Typing is kept over another window and a menu. A refused text is
// given up, but not to a button: that works on what stands in the table, so Commit() has to stop
// it first.
void GridEntry::Leave(Qt::FocusReason reason) {
  if (submitting_ || reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason) {
    return;
  }
  const Cell cell = cell_;
  const Entry entry = Submit();
  if (!entry.taken) {
    note_.Show(cell, entry.reason);
    if (qobject_cast<QAbstractButton*>(QApplication::focusWidget()) != nullptr) return;
  }
  Close();
}

// The table decides what keys and leaving mean; Qt's own rules would drop a refused text without
// a word.
bool GridEntry::eventFilter(QObject* watched, QEvent* event) {
  if (watched != line_) return false;
  if (event->type() == QEvent::KeyPress) return TakeKey(static_cast<QKeyEvent&>(*event));
  if (event->type() == QEvent::FocusOut) {
    Leave(static_cast<QFocusEvent&>(*event).reason());
    return false;
  }
  if (event->type() == QEvent::ShortcutOverride &&
      static_cast<QKeyEvent&>(*event).key() == Qt::Key_Escape) {
    event->accept();  // else a dialog around the table would close
    return true;
  }
  return false;
}

// ---- The line ------------------------------------------------------------------------------

QWidget* GridEntry::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                 const QModelIndex& index) const {
  cell_ = {index.column() + 1, index.row() + 1};
  auto* line = new QLineEdit(parent);
  line->setObjectName(QStringLiteral("cellEditor"));
  line->setAccessibleName(CellName(grid_, cell_));
  line->setFont(font_);
  line->setPalette(EntryColors());
  line->setFrame(false);
  line->setAlignment(SideOf(grid_.AlignmentOf(cell_.column, cell_.row)) | Qt::AlignVCenter);
  auto* validator = new EntryValidator(grid_, cell_, line);
  line->setValidator(validator);
  connect(line, &QLineEdit::inputRejected, this,
          [this, validator] { note_.Show(cell_, validator->reason()); });
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
  const Cell cell = cell_;
  const Entry entry = Submit();
  if (!entry.taken) note_.Show(cell, entry.reason);
}

void GridEntry::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                     const QModelIndex&) const {
  editor->setGeometry(option.rect.adjusted(1, 1, -2, -2));
}

void GridEntry::destroyEditor(QWidget* editor, const QModelIndex& index) const {
  line_ = nullptr;
  QStyledItemDelegate::destroyEditor(editor, index);
}

// A box is ticked through the grid alone.
bool GridEntry::editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&,
                            const QModelIndex&) {
  return false;
}

}  // namespace survey
