// How a table is typed into: keys, mouse and clipboard.

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <algorithm>

#include "desktop/clipboard_block.h"
#include "desktop/entry_note.h"
#include "desktop/grid_delegate.h"
#include "desktop/grid_model.h"
#include "desktop/grid_painter.h"
#include "desktop/grid_sheet.h"
#include "desktop/grid_view.h"
#include "desktop/keys.h"

namespace survey {
namespace {

constexpr int kReachAroundBox = 3;  // pixels

// Keys that go on to another cell while a cell is being typed.
bool MovesOn(const QKeyEvent& event, bool typing_over) {
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return true;
    case Qt::Key_Left:
    case Qt::Key_Right:
      return typing_over && event.modifiers() == (event.modifiers() & Qt::KeypadModifier);
    default:
      return false;
  }
}

}  // namespace

// ---- The editor ----------------------------------------------------------------------------

bool GridView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
  const bool was_open = delegate_->editor() != nullptr;
  const bool taken = QTableView::edit(index, trigger, event);
  if (was_open || delegate_->editor() == nullptr) return taken;
  typing_over_ = trigger == AnyKeyPressed;
  if (!typing_over_) delegate_->editor()->end(false);
  return taken;
}

bool GridView::EditorKey(QKeyEvent& event) {
  note_->Hide();
  if (IsEnter(event)) {
    if (CommitEntry()) Step(event.modifiers().testFlag(Qt::ShiftModifier));
    return true;
  }
  if (MovesOn(event, typing_over_)) {
    if (CommitEntry()) QTableView::keyPressEvent(&event);
    return true;
  }
  switch (event.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      if (CommitEntry()) focusNextPrevChild(event.key() == Qt::Key_Tab);
      return true;
    case Qt::Key_Escape:
      CloseEditor();
      return true;
    case Qt::Key_F2:
      typing_over_ = false;
      return true;
    default:
      return false;
  }
}

bool GridView::CommitEntry() {
  if (delegate_->editor() == nullptr || committing_) return true;
  const Entry entry = Submit();
  if (delegate_->editor() == nullptr) return entry.taken;
  if (entry.taken) {
    CloseEditor();
    return true;
  }
  delegate_->editor()->setFocus();
  delegate_->editor()->selectAll();
  Tell(delegate_->cell(), entry.reason);
  return false;
}

// Puts what was typed to the grid; going through a cell without typing is no entry.
Entry GridView::Submit() {
  if (committing_ || !delegate_->IsChanged()) return {};
  const QScopedValueRollback committing(committing_, true);
  const Cell cell = delegate_->cell();
  return grid_.Type(cell.column, cell.row, delegate_->editor()->text().toStdString());
}

void GridView::CloseEditor() {
  if (delegate_->editor() == nullptr) return;
  closeEditor(delegate_->editor(), QAbstractItemDelegate::RevertModelCache);
  UpdatePanes();
}

// The user clicked elsewhere. Typing is kept over another window and a menu. A refused text is
// given up, but not to a button: that works on what stands in the table, so CommitEntry() has to
// stop it first.
void GridView::LeaveEditor(Qt::FocusReason reason) {
  if (committing_ || reason == Qt::PopupFocusReason || reason == Qt::ActiveWindowFocusReason) {
    return;
  }
  const Cell cell = delegate_->cell();
  const Entry entry = Submit();
  if (!entry.taken) {
    Tell(cell, entry.reason);
    if (qobject_cast<QAbstractButton*>(QApplication::focusWidget()) != nullptr) return;
  }
  CloseEditor();
}

void GridView::Tell(Cell cell, const std::string& reason) {
  if (reason.empty()) return;
  note_->Show(QString::fromStdString(reason), *viewport(), visualRect(model_->IndexOf(cell)));
}

void GridView::hideEvent(QHideEvent* event) {
  note_->Hide();
  QTableView::hideEvent(event);
}

// ---- Keys ----------------------------------------------------------------------------------

void GridView::keyPressEvent(QKeyEvent* event) {
  note_->Hide();
  if (ClipboardKey(*event) || GridKey(*event) || StartsRefused(*event)) {
    event->accept();
    return;
  }
  QTableView::keyPressEvent(event);
}

bool GridView::ClipboardKey(QKeyEvent& event) {
  if (event.matches(QKeySequence::Copy)) {
    Copy();
  } else if (event.matches(QKeySequence::Cut)) {
    Copy();
    ClearCells(grid_, SelectedCells());
  } else if (event.matches(QKeySequence::Paste)) {
    Paste();
  } else {
    return false;
  }
  return true;
}

bool GridView::GridKey(QKeyEvent& event) {
  if (IsEnter(event) && !list_) {
    Step(event.modifiers().testFlag(Qt::ShiftModifier));
    return true;
  }
  if (IsEnter(event) && event.modifiers().testFlag(Qt::ControlModifier)) {
    grid_.Click(Active().column, 0);  // the head over the cursor, by which a list is sorted
    return true;
  }
  // The cursor of a list chooses nothing by itself: the first Down chooses where it stands.
  const bool enters = list_ && event.key() == Qt::Key_Down && !selectionModel()->hasSelection();
  if (enters || IsEnter(event) || event.key() == Qt::Key_Space) {
    if (!list_ && !IsBox(Active())) return false;
    Operate();
    return true;
  }
  if (event.key() == Qt::Key_Delete || event.key() == Qt::Key_Backspace) {
    ClearCells(grid_, SelectedCells());
    return true;
  }
  return false;
}

// Says why a key that would begin an entry cannot, and swallows it.
bool GridView::StartsRefused(const QKeyEvent& event) {
  if (list_ || !IsCharacter(event) || delegate_->editor() != nullptr) return false;
  const Cell cell = Active();
  const std::string typed = event.text().toStdString();
  const Entry entry = IsBox(cell) ? grid_.Type(cell.column, cell.row, typed)
                                  : grid_.MayBecome(cell.column, cell.row, typed);
  if (!entry.taken) Tell(cell, entry.reason);
  return !entry.taken || IsBox(cell);
}

// A key that types nothing is no search, but in a list it is one.
void GridView::keyboardSearch(const QString& search) {
  if (list_) QTableView::keyboardSearch(search);
}

void GridView::Step(bool back) {
  const auto to = back ? grid_.PreviousOpenCell(Active()) : grid_.NextOpenCell(Active());
  if (to) setCurrentIndex(model_->IndexOf(*to));
}

// What a click does, from the keyboard.
void GridView::Operate() {
  const Cell cell = Active();
  if (!list_) {
    grid_.Tick(cell.column, cell.row);
    return;
  }
  selectionModel()->select(currentIndex(),
                           QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  grid_.Click(cell.column, cell.row);
}

// ---- Mouse and cursor ----------------------------------------------------------------------

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (following_ || !current.isValid()) return;
  const Cell cell = GridModel::CellAt(current);
  // Arrow keys choose in a list, as in any other list; a mouse press goes on to be a click.
  if (list_ && !pressing_) {
    grid_.Click(cell.column, cell.row);
  } else {
    grid_.MoveTo(cell.column, cell.row);
  }
  UpdatePanes();
}

void GridView::mousePressEvent(QMouseEvent* event) {
  pressing_ = true;
  QTableView::mousePressEvent(event);
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  released_at_ = event->pos();
  QTableView::mouseReleaseEvent(event);
  pressing_ = false;
}

void GridView::ClickCell(const QModelIndex& index) {
  const Cell cell = GridModel::CellAt(index);
  grid_.Click(cell.column, cell.row);
  const QRect box =
      painter_->BoxIn(visualRect(index))
          .adjusted(-kReachAroundBox, -kReachAroundBox, kReachAroundBox, kReachAroundBox);
  if (IsBox(cell) && box.contains(released_at_)) grid_.Tick(cell.column, cell.row);
}

// A click on what stays in view: the head of a list, or a label of a row.
void GridView::ClickPane(Pane pane, QPoint place) {
  if (!CommitEntry()) return;
  setFocus(Qt::MouseFocusReason);
  const Cell cell = sheet_->CellAt(place + OriginOf(pane), Scroll());
  const bool head = cell.row == 0;
  if (cell.column > 0 && (head || cell.row > sheet_->head_rows())) {
    grid_.Click(cell.column, cell.row);
  }
}

bool GridView::IsBox(Cell cell) const {
  return grid_.Kind(cell.column, cell.row).type == CellKind::Type::kCheckBox;
}

// ---- Clipboard -----------------------------------------------------------------------------

CellRange GridView::SelectedCells() const {
  CellRange cells(grid_.ActiveColumn(), grid_.ActiveRow());
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    cells = {std::min(cells.column, range.left() + 1), std::min(cells.row, range.top() + 1),
             std::max(cells.last_column, range.right() + 1),
             std::max(cells.last_row, range.bottom() + 1)};
  }
  return cells;
}

void GridView::Copy() const {
  QApplication::clipboard()->setText(CopyCells(grid_, SelectedCells()));
}

void GridView::Paste() {
  const CellRange cells = SelectedCells();
  const QString refused = PasteCells(grid_, cells, QApplication::clipboard()->text());
  Tell({cells.column, cells.row}, refused.toStdString());
}

}  // namespace survey
