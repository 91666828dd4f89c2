#include "desktop/grid_view.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "desktop/entry_note.h"
#include "desktop/grid_accessible.h"
#include "desktop/grid_bands.h"
#include "desktop/grid_clipboard.h"
#include "desktop/grid_entry.h"
#include "desktop/grid_fit.h"
#include "desktop/grid_model.h"
#include "desktop/grid_names.h"
#include "desktop/grid_painter.h"
#include "desktop/grid_sheet.h"
#include "desktop/keys.h"

namespace survey {
namespace {

constexpr double kPoints = 9;
constexpr double kTwipsPerInch = 1440;
// A table has the size it has on paper, so that it fits a small screen, until the desktop's texts
// are set larger than desktops usually set them.
constexpr double kUsualDesktopPoints = 11;
constexpr int kReachAroundBox = 3;  // pixels
constexpr int kWholeTable = 340;    // height up to which a table does not scroll by itself

double UnitsPerTwip(const QWidget& view, int zoom) {
  const double points = view.fontInfo().pointSizeF();
  return view.logicalDpiX() / kTwipsPerInch * std::max(1.0, points / kUsualDesktopPoints) * zoom /
         100;
}

// A table with heads of a list and nothing to type into.
bool IsList(const GridDesign& design) {
  return !design.heads.empty() &&
         std::ranges::none_of(design.rules, [](const CellRule& rule) { return rule.open; });
}

// The part of a block behind the frozen rows and columns; empty (last before first) where there
// is none.
CellRange BodyPart(const CellRange& block, const GridSheet& sheet) {
  return {std::max(block.column, sheet.label_columns() + 1),
          std::max(block.row, sheet.head_rows() + 1), std::min(block.last_column, sheet.columns()),
          std::min(block.last_row, sheet.rows())};
}

}  // namespace

GridView::GridView(GridControl& grid, QWidget* parent)
    : QTableView(parent),
      grid_(grid),
      list_(IsList(grid.design())),
      model_(new GridModel(grid, this)),
      heads_(new GridBand(Qt::Horizontal, ActionsOf(Pane::kHeads), this)),
      labels_(new GridBand(Qt::Vertical, ActionsOf(Pane::kLabels), this)),
      corner_(new GridCorner(ActionsOf(Pane::kCorner), this)),
      design_(std::make_unique<GridSheet>(grid, UnitsPerTwip(*this, zoom_))),
      sheet_(std::make_unique<GridSheet>(*design_)),
      painter_(std::make_unique<GridPainter>(grid, *sheet_, font(), kPoints)),
      note_(std::make_unique<EntryNote>(*this)),
      entry_(new GridEntry(grid, painter_->font(), *note_, *this)),
      clipboard_(std::make_unique<GridClipboard>(grid, *note_, *this)),
      teller_(std::make_unique<GridTeller>(*this)) {
  SetUp();
  connect(entry_, &GridEntry::Ended, this, &GridView::GoOn);
  connect(entry_, &GridEntry::closeEditor, this, &GridView::UpdatePanes);
  connect(this, &QAbstractItemView::clicked, this, &GridView::ClickCell);
  Refresh();
}

GridView::~GridView() { entry_->Abandon(); }

void GridView::SetUp() {
  setModel(model_);
  setItemDelegate(entry_);
  setHorizontalHeader(heads_);
  setVerticalHeader(labels_);
  setCornerButtonEnabled(false);
  setFrameShape(QFrame::NoFrame);
  setShowGrid(false);
  viewport()->setBackgroundRole(QPalette::Window);
  setHorizontalScrollMode(ScrollPerPixel);
  setVerticalScrollMode(ScrollPerPixel);
  setTabKeyNavigation(false);
  setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
  setSelectionMode(list_ ? SingleSelection : ContiguousSelection);
  setSelectionBehavior(list_ ? SelectRows : SelectItems);
  setAccessibleName(TableName(grid_));
}

// ---- Looks ---------------------------------------------------------------------------------

void GridView::Refresh() {
  if (grid_.revision() == shown_) return;
  shown_ = grid_.revision();
  const QScopedValueRollback following(following_, true);
  model_->Refresh();
  Measure();
  entry_->Refresh();
  FollowActiveCell();
  ShowChosenRow();
  UpdatePanes();
  teller_->TellChanges();
}

// Before the view has a width of its own the sheet is that of the design: the layout asks for it.
void GridView::Measure() {
  GridSheet design(grid_, UnitsPerTwip(*this, zoom_));
  const int room = testAttribute(Qt::WA_Resized) ? width() - BarWidth() : 0;
  if (design == *design_ && room == room_) return;
  *design_ = std::move(design);
  room_ = room;
  QFont usual = font();
  usual.setPixelSize(TextSizeOf(kPoints, design_->units_per_twip()));
  *sheet_ = room > 0 ? FitToRoom(grid_, design_->units_per_twip(), usual, room) : *design_;
  painter_ = std::make_unique<GridPainter>(grid_, *sheet_, font(), kPoints);
  entry_->SetFont(painter_->font());
  LayOut();
}

void GridView::SetZoom(int percent) {
  zoom_ = percent;
  Measure();
}

int GridView::BarWidth() const {
  return style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
}

void GridView::resizeEvent(QResizeEvent* event) {
  Measure();
  QTableView::resizeEvent(event);
}

// At once, so that the next click meets the cells where they are drawn.
void GridView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange) Measure();
}

void GridView::FollowActiveCell() {
  const QModelIndex active = model_->IndexOf(Active());
  if (active == currentIndex()) return;
  if (list_) {
    // Without selecting it: only a row that the user chose is shown as chosen.
    selectionModel()->setCurrentIndex(active, QItemSelectionModel::NoUpdate);
  } else {
    setCurrentIndex(active);
  }
  scrollTo(active);
}

// What a list shows as chosen is what the form knows as chosen.
void GridView::ShowChosenRow() {
  if (!list_) return;
  if (grid_.ChosenRow() == 0) {
    selectionModel()->clearSelection();
  } else {
    selectionModel()->select(model_->IndexOf({Active().column, grid_.ChosenRow()}),
                             QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  }
}

void GridView::LayOut() {
  for (int column = 1; column <= sheet_->columns(); ++column) {
    const int width = sheet_->X(column + 1) - sheet_->X(column);
    setColumnHidden(column - 1, column <= sheet_->label_columns() || width == 0);
    if (width > 0) setColumnWidth(column - 1, width);
  }
  for (int row = 1; row <= sheet_->rows(); ++row) {
    const int height = sheet_->Y(row + 1) - sheet_->Y(row);
    setRowHidden(row - 1, row <= sheet_->head_rows() || height == 0);
    if (height > 0) setRowHeight(row - 1, height);
  }
  SetSpans();
  heads_->SetThickness(sheet_->FrozenSize().height());
  heads_->setVisible(sheet_->FrozenSize().height() > 0);
  labels_->SetThickness(sheet_->FrozenSize().width());
  labels_->setVisible(sheet_->FrozenSize().width() > 0);
  setMaximumHeight(sizeHint().height());
  updateGeometry();
  updateGeometries();
}

void GridView::SetSpans() {
  clearSpans();
  for (const CellRange& span : grid_.design().spans) {
    const CellRange part = BodyPart(span, *sheet_);
    const int columns = part.last_column - part.column + 1;
    const int rows = part.last_row - part.row + 1;
    if (columns < 1 || rows < 1 || columns * rows == 1) continue;
    setSpan(part.row - 1, part.column - 1, rows, columns);
  }
}

// The whole table in the size of its design and room for its scroll bars. It takes more room across
// where there is any, but never more down than its rows have.
QSize GridView::sizeHint() const {
  return {design_->Size().width() + BarWidth(), sheet_->Size().height() + BarWidth()};
}

QSize GridView::minimumSizeHint() const {
  const int row = static_cast<int>(grid_.design().row_height * sheet_->units_per_twip());
  const QSize frozen = sheet_->FrozenSize();
  const QSize whole = sizeHint();
  const int height = whole.height() <= kWholeTable ? whole.height() : frozen.height() + 5 * row;
  return whole.boundedTo({frozen.width() + 12 * row, height});
}

void GridView::updateGeometries() {
  QTableView::updateGeometries();
  const QRect crossing(labels_->x(), heads_->y(), labels_->width(), heads_->height());
  corner_->setGeometry(crossing);
  corner_->setVisible(!heads_->isHidden() && !labels_->isHidden());
  corner_->raise();
}

// Code has placed the cursor, and scrolled to it, before the view had its size.
void GridView::showEvent(QShowEvent* event) {
  QTableView::showEvent(event);
  scrollToTop();
  scrollTo(model_->IndexOf(Active()));
}

void GridView::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  UpdatePanes();  // spans over the edge of the frozen part do not move with the rest
}

void GridView::UpdatePanes() {
  viewport()->update();
  heads_->viewport()->update();
  labels_->viewport()->update();
  corner_->update();
}

BandActions GridView::ActionsOf(Pane pane) {
  return {.paint = [this, pane](QPainter& painter,
                                const QRect& exposed) { PaintPane(pane, painter, exposed); },
          .click = [this, pane](QPoint place) { ClickPane(pane, place); },
          .wheel = [this](QWheelEvent& event) { QCoreApplication::sendEvent(viewport(), &event); }};
}

CellRange GridView::BlockOf(Pane pane) const {
  const bool heads = pane == Pane::kHeads || pane == Pane::kCorner;
  const bool labels = pane == Pane::kLabels || pane == Pane::kCorner;
  return {labels ? 1 : sheet_->label_columns() + 1, heads ? 0 : sheet_->head_rows() + 1,
          labels ? sheet_->label_columns() : sheet_->columns(),
          heads ? sheet_->head_rows() : sheet_->rows()};
}

// Where the part begins, on the sheet before it is scrolled.
QPoint GridView::OriginOf(Pane pane) const {
  const CellRange block = BlockOf(pane);
  return {sheet_->X(block.column), sheet_->Y(block.row)};
}

QPoint GridView::Scroll() const { return {horizontalOffset(), verticalOffset()}; }

void GridView::PaintPane(Pane pane, QPainter& painter, const QRect& exposed) const {
  const QPoint origin = OriginOf(pane);
  const CellRange active = grid_.SpanOf(grid_.ActiveColumn(), grid_.ActiveRow());
  const bool focused = hasFocus() || entry_->IsOpen();
  const auto look_of = [&](Cell cell) {
    const bool cursor = cell == Cell{active.column, active.row};
    const bool selected = cell.row > 0 && selectionModel()->isSelected(model_->IndexOf(cell));
    return CellLook{selected && (list_ || !cursor), cursor, focused, true};
  };
  painter.translate(-origin);
  painter_->PaintBlock(painter, BlockOf(pane), Scroll(), exposed.translated(origin), look_of);
}

void GridView::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  PaintPane(Pane::kBody, painter, event->rect());
}

// ---- Screen readers ------------------------------------------------------------------------

QRect GridView::PlaceOf(Cell cell) const {
  return cell.column == 0 || cell.row == 0 ? QRect() : visualRect(model_->IndexOf(cell));
}

Cell GridView::CellAt(QPoint place) const {
  if (!rect().contains(place)) return {};
  return sheet_->CellAt(place, Scroll());
}

bool GridView::IsSelected(Cell cell) const {
  return selectionModel()->isSelected(model_->IndexOf(cell));
}

void GridView::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  teller_->TellFocus(Active());
}

// ---- Keys ----------------------------------------------------------------------------------

bool GridView::CommitEntry() { return entry_->Commit(); }

bool GridView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
  const bool was_open = entry_->IsOpen();
  const bool taken = QTableView::edit(index, trigger, event);
  if (!was_open && entry_->IsOpen()) entry_->Begin(trigger == AnyKeyPressed);
  return taken;
}

void GridView::hideEvent(QHideEvent* event) {
  note_->Hide();
  QTableView::hideEvent(event);
}

void GridView::keyPressEvent(QKeyEvent* event) {
  if (entry_->IsOpen()) {  // a key that means nothing there means nothing here either
    event->ignore();
    return;
  }
  note_->Hide();
  if (clipboard_->TakeKey(*event) || (list_ ? ListKey(*event) : TableKey(*event))) {
    event->accept();
  } else {
    QTableView::keyPressEvent(event);
  }
}

bool GridView::TableKey(const QKeyEvent& event) {
  if (IsEnter(event)) {
    Step(event.modifiers().testFlag(Qt::ShiftModifier));
    return true;
  }
  const Cell cell = Active();
  if (event.key() == Qt::Key_Space && grid_.IsCheckBox(cell.column, cell.row)) {
    grid_.Tick(cell.column, cell.row);
    return true;
  }
  return entry_->TakesInstead(event);
}

bool GridView::ListKey(const QKeyEvent& event) {
  if (IsEnter(event) && event.modifiers().testFlag(Qt::ControlModifier)) {
    grid_.Click(Active().column, 0);  // the head over the cursor, by which a list is sorted
    return true;
  }
  // While no row is chosen, the first Down chooses the one where the cursor is.
  const bool enters = event.key() == Qt::Key_Down && grid_.ChosenRow() == 0;
  if (!enters && !IsEnter(event) && event.key() != Qt::Key_Space) return false;
  Choose();
  return true;
}

// Typing finds an entry in a list; in a table it enters, and a key that is refused is no search.
void GridView::keyboardSearch(const QString& search) {
  if (list_) QTableView::keyboardSearch(search);
}

// Moves on from the cell as the key says that ended its entry.
void GridView::GoOn(QKeyEvent* key) {
  if (IsEnter(*key)) {
    Step(key->modifiers().testFlag(Qt::ShiftModifier));
  } else if (key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab) {
    focusNextPrevChild(key->key() == Qt::Key_Tab);
  } else {
    QTableView::keyPressEvent(key);
  }
}

void GridView::Step(bool back) {
  const auto to = back ? grid_.PreviousOpenCell(Active()) : grid_.NextOpenCell(Active());
  if (to) {
    setCurrentIndex(model_->IndexOf(*to));
  } else {
    Q_EMIT PassedEnd(back);
  }
}

void GridView::Begin(bool at_end) {
  setFocus(Qt::TabFocusReason);
  const Cell behind{grid_.MaxColumns() + 1, grid_.MaxRows()};
  const auto to = at_end ? grid_.PreviousOpenCell(behind) : grid_.NextOpenCell({0, 0});
  if (to) setCurrentIndex(model_->IndexOf(*to));
}

void GridView::Attend(Cell cell, const std::string& word) {
  setFocus(Qt::OtherFocusReason);
  setCurrentIndex(model_->IndexOf(cell));
  scrollTo(model_->IndexOf(cell));
  note_->Show(cell, word);
}

void GridView::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) return QTableView::wheelEvent(event);
  if (event->angleDelta().y() != 0) Q_EMIT ZoomAsked(event->angleDelta().y() > 0);
  event->accept();
}

// What a click does in a list, from the keyboard.
void GridView::Choose() {
  grid_.Click(Active().column, Active().row);
  ShowChosenRow();
}

// ---- Mouse and cursor ----------------------------------------------------------------------

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (following_ || !current.isValid()) return;
  const Cell cell = GridModel::CellAt(current);
  // Arrow keys choose in a list; after a press of the mouse its release does, as a click.
  if (list_ && !pressing_) {
    grid_.Click(cell.column, cell.row);
  } else {
    grid_.MoveTo(cell.column, cell.row);
  }
  UpdatePanes();
}

void GridView::mousePressEvent(QMouseEvent* event) {
  pressing_ = pressed_ = true;
  QTableView::mousePressEvent(event);
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!pressed_) return;  // the first press was on the button that has led here
  const Cell cell = GridModel::CellAt(indexAt(event->pos()));
  goes_on_ = list_ && !grid_.GetText(1, cell.row).empty();
  QTableView::mouseDoubleClickEvent(event);
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
  released_at_ = event->pos();
  QTableView::mouseReleaseEvent(event);
  pressing_ = false;
  ShowChosenRow();  // a press that was no click has chosen nothing
  if (std::exchange(goes_on_, false) && grid_.Default != nullptr) grid_.Default->Click();
}

void GridView::ClickCell(const QModelIndex& index) {
  const QRect box =
      painter_->BoxIn(visualRect(index))
          .adjusted(-kReachAroundBox, -kReachAroundBox, kReachAroundBox, kReachAroundBox);
  TakeClick(GridModel::CellAt(index), box.contains(released_at_));
}

void GridView::TakeClick(Cell cell, bool on_box) {
  grid_.Click(cell.column, cell.row);
  if (on_box && grid_.IsCheckBox(cell.column, cell.row)) grid_.Tick(cell.column, cell.row);
  TickBeside(cell);
}

void GridView::Click(Cell cell, bool on_box) {
  if (!isEnabled() || !CommitEntry()) return;
  setFocus(Qt::MouseFocusReason);
  TakeClick(cell, on_box);
  ShowChosenRow();
}

// A click on the text to the left of a box ticks it.
void GridView::TickBeside(Cell label) {
  const int box = grid_.SpanOf(label.column, label.row).last_column + 1;
  const bool is_label = grid_.Kind(label.column, label.row).type == CellKind::Type::kLabel;
  if (is_label && grid_.IsCheckBox(box, label.row)) grid_.Tick(box, label.row);
}

// A click on what stays in view: the head of a list, or a label of a row.
void GridView::ClickPane(Pane pane, QPoint place) {
  if (!CommitEntry()) return;
  setFocus(Qt::MouseFocusReason);
  const Cell cell = sheet_->CellAt(place + OriginOf(pane), Scroll());
  const bool head = cell.row == 0;
  if (cell.column > 0 && (head || cell.row > sheet_->head_rows())) {
    grid_.Click(cell.column, cell.row);
    TickBeside(cell);
  }
}

}  // namespace survey
