#include "grid/grid.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "grid/cell_entry.h"

namespace survey {

Grid::Grid(const GridDesign& design, EditHistory* history)
    : design_(&design), history_(history), rows_(design.rows), index_(design, design.rows) {
  ReturnToDesign();
}

void Grid::ReturnToDesign() {
  EndHistory();
  if (rows_ != design_->rows) {
    rows_ = design_->rows;
    index_ = DesignIndex(*design_, rows_);
  }
  cells_.assign(MaxColumns() * rows_, CellState{});
  hidden_rows_.assign(rows_, false);
  active_ = NextOpenCell({0, 0}).value_or(Cell{1, 1});
  chosen_row_ = 0;
  for (const CellText& text : design_->texts) SetText(text.column, text.row, text.text);
  ++revision_;
}

// ---- Code's side ---------------------------------------------------------------------------

const std::string& Grid::GetText(int column, int row) const {
  static const std::string kNone;
  const int position = PositionOf(column, row);
  return position == kNowhere ? kNone : Read(position);
}

void Grid::SetText(int column, int row, std::string_view text) {
  const int position = PositionOf(column, row);
  if (position != kNowhere) WriteByCode(position, std::string(text));
}

void Grid::SetText(int column, int row, double number) { SetText(column, row, NumberText(number)); }

std::int32_t Grid::GetInteger(int column, int row) const {
  return ToWholeNumber(LeadingNumber(GetText(column, row)));
}

void Grid::SetInteger(int column, int row, std::int32_t value) {
  SetText(column, row, std::to_string(value));
}

void Grid::SetLock(int column, int row, bool locked) {
  if (!Has(column, row)) return;
  cells_[PositionOf(column, row)].locked = locked;
  ++revision_;
}

void Grid::SetBackColor(int column, int row, Color color) {
  if (!Has(column, row)) return;
  cells_[PositionOf(column, row)].back_color = color;
  ++revision_;
}

void Grid::SetNote(int column, int row, CellNote note) {
  if (!Has(column, row)) return;
  cells_[PositionOf(column, row)].note = std::move(note);
  ++revision_;
}

void Grid::SetActiveCell(int column, int row) {
  if (!Has(column, row)) return;
  active_ = {column, row};
  ++revision_;
}

void Grid::SetChosenRow(int row) {
  if (row == chosen_row_) return;
  chosen_row_ = row;
  ++revision_;
}

void Grid::ClearRange(int column, int row, int last_column, int last_row) {
  for (int r = std::max(row, 1); r <= std::min(last_row, rows_); ++r) {
    for (int c = std::max(column, 1); c <= std::min(last_column, MaxColumns()); ++c) {
      WriteByCode(PositionOf(c, r), "");
      ShowSum(PositionOf(c, r));
    }
  }
}

void Grid::SetMaxRows(int rows) {
  rows = std::max(rows, 0);
  if (rows == rows_) return;
  if (rows < rows_) EndHistory();
  const int before = MaxColumns() * rows_;
  for (int dropped = MaxColumns() * rows; dropped < before; ++dropped) MarkTotalsOver(dropped);
  rows_ = rows;
  index_ = DesignIndex(*design_, rows_);
  cells_.resize(MaxColumns() * rows_);
  hidden_rows_.resize(rows_);
  active_.row = std::clamp(active_.row, 1, std::max(rows_, 1));
  if (chosen_row_ > rows_) chosen_row_ = 0;
  for (const auto& total : index_.totals()) {
    if (total.position >= before) cells_[total.position].stale = true;
  }
  ++revision_;
}

void Grid::SetRowHidden(int row, bool hidden) {
  if (row < 1 || row > rows_) return;
  hidden_rows_[row - 1] = hidden;
  ++revision_;
}

// ---- What a view asks ----------------------------------------------------------------------

bool Grid::Has(int column, int row) const { return PositionOf(column, row) != kNowhere; }

const CellKind& Grid::Kind(int column, int row) const {
  static const CellKind kLabelKind;
  const CellRule* rule = DesignOf(column, row).rule;
  return rule ? rule->kind : kLabelKind;
}

bool Grid::IsLocked(int column, int row) const {
  const int position = PositionOf(column, row);
  if (position == kNowhere) return true;
  const CellRule* rule = index_.At(position).rule;
  return cells_[position].locked.value_or(rule == nullptr || !rule->open);
}

bool Grid::IsTotal(int column, int row) const { return DesignOf(column, row).total >= 0; }

bool Grid::IsCheckBox(int column, int row) const {
  return Kind(column, row).type == CellKind::Type::kCheckBox;
}

bool Grid::IsOpen(int column, int row) const { return WhyClosed(column, row).empty(); }

bool Grid::IsRowHidden(int row) const { return row >= 1 && row <= rows_ && hidden_rows_[row - 1]; }

Color Grid::BackColor(int column, int row) const {
  const int position = PositionOf(column, row);
  if (position == kNowhere) return design_->locked_color;
  if (const auto painted = cells_[position].back_color) return *painted;
  if (const CellShade* shade = index_.At(position).shade) return shade->color;
  const bool closed = IsLocked(column, row) || Kind(column, row).type == CellKind::Type::kLabel;
  return closed ? design_->locked_color : kWhite;
}

const CellNote& Grid::NoteOf(int column, int row) const {
  static const CellNote nothing;
  return Has(column, row) ? cells_[PositionOf(column, row)].note : nothing;
}

Alignment Grid::AlignmentOf(int column, int row) const {
  if (const CellAlignment* set = DesignOf(column, row).alignment) return set->alignment;
  switch (Kind(column, row).type) {
    case CellKind::Type::kNumber:
      return Alignment::kRight;
    case CellKind::Type::kCheckBox:
      return Alignment::kCenter;
    default:
      return Alignment::kLeft;
  }
}

bool Grid::IsBold(int column, int row) const { return DesignOf(column, row).bold; }

CellRange Grid::SpanOf(int column, int row) const {
  const CellRange* span = DesignOf(column, row).span;
  return span ? *span : CellRange(column, row);
}

std::optional<Cell> Grid::NextOpenCell(Cell from) const {
  const int columns = MaxColumns();
  const int start = (from.row - 1) * columns + std::clamp(from.column, 0, columns);
  for (int position = std::max(start, 0); position < std::ssize(cells_); ++position) {
    if (IsToFill(CellOf(position).column, CellOf(position).row)) return CellOf(position);
  }
  return std::nullopt;
}

std::optional<Cell> Grid::PreviousOpenCell(Cell from) const {
  const int columns = MaxColumns();
  const int start = (from.row - 1) * columns + std::clamp(from.column, 1, columns + 1) - 2;
  for (int position = std::min(start, columns * rows_ - 1); position >= 0; --position) {
    if (IsToFill(CellOf(position).column, CellOf(position).row)) return CellOf(position);
  }
  return std::nullopt;
}

// ---- The user's side -----------------------------------------------------------------------

Entry Grid::MayEnter(int column, int row) const {
  const std::string_view why = WhyClosed(column, row);
  return {why.empty(), std::string(why)};
}

Entry Grid::MayBecome(int column, int row, std::string_view text) const {
  if (Entry entry = MayEnter(column, row); !entry.taken) return entry;
  const CellKind& kind = Kind(column, row);
  if (text == GetText(column, row) || MayBecomeEntry(kind, text)) return {};
  return {false, RequestOf(kind)};
}

void Grid::RunAction(Action, const std::function<void()>& run) { run(); }

Entry Grid::EntryByUser(Action action, const std::function<Entry()>& enter) {
  Entry entry{false, {}};
  RunAction(action, [&] { entry = enter(); });
  return entry;
}

Entry Grid::Type(int column, int row, std::string_view text) {
  return EntryByUser(Action::kType, [&] { return TakeText(column, row, text); });
}

Entry Grid::Tick(int column, int row) {
  return EntryByUser(Action::kTick, [&] { return TakeTick(column, row); });
}

Entry Grid::Restore(int column, int row, std::string_view text) {
  return EntryByUser(IsCheckBox(column, row) ? Action::kTick : Action::kType, [&] {
    if (Entry entry = MayEnter(column, row); !entry.taken) return entry;
    return Put(column, row, std::string(text));
  });
}

void Grid::MoveTo(int column, int row) {
  RunAction(Action::kMove, [&] { MoveCursor(column, row); });
}

void Grid::Click(int column, int row) {
  RunAction(Action::kClick, [&] {
    const bool on_head =
        row == 0 && !design_->heads.empty() && column >= 1 && column <= MaxColumns();
    if (!on_head && !Has(column, row)) return;
    MoveCursor(column, row);  // nowhere from the head
    if (!on_head) SetChosenRow(row);
    if (on_click) on_click(column, row);
  });
}

// ---- Inside --------------------------------------------------------------------------------

int Grid::PositionOf(int column, int row) const {
  const bool inside = column >= 1 && column <= MaxColumns() && row >= 1 && row <= rows_;
  return inside ? (row - 1) * MaxColumns() + column - 1 : kNowhere;
}

const CellDesign& Grid::DesignOf(int column, int row) const {
  static const CellDesign kNone;
  const int position = PositionOf(column, row);
  return position == kNowhere ? kNone : index_.At(position);
}

const std::string& Grid::Read(int position) const {
  const CellState& cell = cells_[position];
  if (cell.stale) Compute(index_.totals()[index_.At(position).total]);
  return cell.text;
}

void Grid::Write(int position, std::string text) {
  CellState& cell = cells_[position];
  cell.text = std::move(text);
  cell.stale = false;
  cell.written = true;
  MarkTotalsOver(position);
  ++revision_;
}

void Grid::WriteByCode(int position, std::string text) {
  if (history_ != nullptr && Read(position) != text) history_->End();
  Write(position, std::move(text));
}

// The formula of a total outlives what was written over it.
void Grid::ShowSum(int position) {
  const bool total = index_.At(position).total >= 0;
  cells_[position].stale = total;
  if (total) cells_[position].written = false;
}

void Grid::EndHistory() {
  if (history_ != nullptr) history_->End();
}

void Grid::MarkTotalsOver(int position) {
  for (const int total : index_.TotalsOver(position)) {
    cells_[total].stale = true;
    cells_[total].note = {};  // it was about the figures before
  }
}

void Grid::Compute(const DesignIndex::TotalCell& total) const {
  CellState& cell = cells_[total.position];
  cell.stale = false;  // first, so that a total that adds itself comes to an end
  cell.written = false;
  std::optional<double> sum;
  for (const int added : total.adds) {
    if (const auto number = NumberHeld(Read(added))) sum = sum.value_or(0) + *number;
  }
  const CellRule* rule = index_.At(total.position).rule;
  cell.text = sum ? NumberText(RoundedTo(*sum, rule ? rule->kind.decimals : 0)) : "";
}

Cell Grid::CellOf(int position) const {
  return {position % MaxColumns() + 1, position / MaxColumns() + 1};
}

bool Grid::IsToFill(int column, int row) const {
  return IsOpen(column, row) && !DesignOf(column, row).rule->passed_over;
}

bool Grid::IsCovered(int column, int row) const {
  const CellRange* span = DesignOf(column, row).span;
  return span && (span->column != column || span->row != row);
}

// "" for a cell that takes something.
std::string_view Grid::WhyClosed(int column, int row) const {
  if (!Has(column, row)) return "There is no such cell.";
  if (Kind(column, row).type == CellKind::Type::kLabel) return kTakesNothing;
  if (IsLocked(column, row)) {
    return IsTotal(column, row) ? "This cell is a total, which the table adds up by itself."
                                : "This cell is locked.";
  }
  const bool shown =
      design_->column_widths[column - 1] > 0 && !IsRowHidden(row) && !IsCovered(column, row);
  return shown ? "" : "This cell is hidden.";
}

Entry Grid::TakeText(int column, int row, std::string_view text) {
  if (Entry entry = MayEnter(column, row); !entry.taken) return entry;
  // Going through a cell without touching it is no entry, even where code or an older file left
  // something that the limits would not let in.
  if (text == GetText(column, row)) return {};
  const CellKind& kind = Kind(column, row);
  auto held = CanonicalEntry(kind, text);
  if (!held) return {false, RequestOf(kind)};
  return Put(column, row, *std::move(held));
}

Entry Grid::TakeTick(int column, int row) {
  if (Entry entry = MayEnter(column, row); !entry.taken) return entry;
  if (!IsCheckBox(column, row)) {
    return {false, "This cell is not a box to tick."};
  }
  return Put(column, row, GetText(column, row) == "1" ? "0" : "1");
}

void Grid::MoveCursor(int column, int row) {
  if (!Has(column, row) || active_ == Cell{column, row}) return;
  SetActiveCell(column, row);
  if (on_cell) on_cell(column, row);
}

// The one place where the user's side changes what a cell holds.
Entry Grid::Put(int column, int row, std::string text) {
  if (text == GetText(column, row)) return {};
  const int position = PositionOf(column, row);
  if (history_ != nullptr) {
    const bool sum = IsTotal(column, row) && !cells_[position].written;
    history_->Record(*this, {column, row}, sum ? std::string() : Read(position), text);
  }
  const bool emptied = text.empty();
  Write(position, std::move(text));
  if (emptied) ShowSum(position);
  if (const Notification& notify = IsCheckBox(column, row) ? on_check : on_change)
    notify(column, row);
  return {};
}

}  // namespace survey
