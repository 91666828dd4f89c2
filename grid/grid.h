#ifndef GRID_GRID_H_
#define GRID_GRID_H_

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "grid/design_index.h"
#include "grid/edit_history.h"
#include "grid/entry.h"
#include "grid/grid_design.h"

namespace survey {

// What is said about a cell beside its colour, for those who do not see the colour: a short sign
// drawn in the cell on screen, and a sentence.
struct CellNote {
  std::string sign;
  std::string text;
};

// A survey table on screen: the state that changes, over the GridDesign that does not.
//
// Two ways in, kept apart. Code reads and writes cells without asking limits or locks, raises no
// notification, and is silent outside the grid. The user's side obeys locks and limits, answers
// whether the entry was taken, and notifies; all of it goes through RunAction(), so that nobody
// who has the grid in hand can pass by the form that it stands on.
class Grid {
 public:
  using Notification = std::function<void(int column, int row)>;

  // `design` must outlive the grid, and so must `history`, where all that the user changes is
  // noted; null: nowhere.
  explicit Grid(const GridDesign& design, EditHistory* history = nullptr);
  virtual ~Grid() = default;
  Grid(const Grid&) = delete;
  Grid& operator=(const Grid&) = delete;

  const GridDesign& design() const { return *design_; }
  // Back to what the design says: texts, locks, colours, row count, cursor.
  void ReturnToDesign();

  // ---- Code's side -------------------------------------------------------------------------
  // "" for an untouched cell and outside the grid. A total gives the sum of the numbers that its
  // cells hold, rounded to the decimals of its kind; "" while they hold none.
  const std::string& GetText(int column, int row) const;
  // Writes a cell. A text over a total shows until a cell that goes into the total, directly or
  // through another one, is written again, be it with the same text.
  void SetText(int column, int row, std::string_view text);
  void SetText(int column, int row, double number);
  // The cell's leading number as a whole number, half to even; 0 for an empty cell. Throws
  // Overflow() beyond 32 bits.
  std::int32_t GetInteger(int column, int row) const;
  void SetInteger(int column, int row, std::int32_t value);

  void SetLock(int column, int row, bool locked);
  void SetBackColor(int column, int row, Color color);
  // A note on a total goes when a cell that goes into the total is written.
  void SetNote(int column, int row, CellNote note);
  void SetActiveCell(int column, int row);
  // Empties a block; formats, locks and colours remain, and totals show their sums again. The part
  // outside the grid is ignored.
  void ClearRange(int column, int row, int last_column, int last_row);
  int ActiveColumn() const { return active_.column; }
  int ActiveRow() const { return active_.row; }
  // The row of a list that the user's last click chose, 0 for none; the list shows it. Whoever
  // forgets or changes what is chosen says so here.
  int ChosenRow() const { return chosen_row_; }
  void SetChosenRow(int row);
  int MaxRows() const { return rows_; }
  int MaxColumns() const { return design_->columns; }
  // Rows are added empty, under the rules of the design that reach them, and dropped from the end.
  void SetMaxRows(int rows);
  void SetRowHidden(int row, bool hidden);

  // ---- What a view asks --------------------------------------------------------------------
  bool Has(int column, int row) const;
  const CellKind& Kind(int column, int row) const;
  bool IsLocked(int column, int row) const;
  bool IsTotal(int column, int row) const;
  bool IsCheckBox(int column, int row) const;
  // The cell takes typing or ticking: unlocked, of a kind that takes something, and shown, that is,
  // in a column with a width, in no hidden row and not drawn as part of another cell.
  bool IsOpen(int column, int row) const;
  // The cell is one to be filled in: open, and not passed over by ENTER.
  bool IsToFill(int column, int row) const;
  bool IsRowHidden(int row) const;
  // What a page painted the cell with, else the design's shade, grey when locked, or white.
  Color BackColor(int column, int row) const;
  const CellNote& NoteOf(int column, int row) const;  // empty where nothing is said
  Alignment AlignmentOf(int column, int row) const;
  bool IsBold(int column, int row) const;
  // The block that is drawn as one cell and holds this one; the cell alone where there is none.
  CellRange SpanOf(int column, int row) const;
  // The next cell to be filled in, in the order of reading, or the one before; none at the end.
  // Open cells that the design says to pass over do not count, nor does `from` itself.
  std::optional<Cell> NextOpenCell(Cell from) const;
  std::optional<Cell> PreviousOpenCell(Cell from) const;
  // Grows with every change of anything above, so that a view can see whether it is up to date.
  std::uint64_t revision() const { return revision_; }

  // ---- The user's side ---------------------------------------------------------------------
  // Refused, with the reason, where the cell takes no entry at all.
  Entry MayEnter(int column, int row) const;
  // Whether `text`, half typed, may still become an entry of that cell.
  Entry MayBecome(int column, int row, std::string_view text) const;
  // Types a text into a cell and leaves the cell. An entry outside the limits is refused, and
  // the cell keeps what it held; an empty text empties it, and a total then shows its sum. An
  // entry that changes nothing is taken and not notified.
  Entry Type(int column, int row, std::string_view text);
  // Operates a check box: notifies on_check, not on_change.
  Entry Tick(int column, int row);
  // Puts back what an open cell held before, which the limits do not concern: code may have
  // written it.
  Entry Restore(int column, int row, std::string_view text);
  // The cursor goes to a cell, by key or mouse: notifies on_cell where it really moved.
  void MoveTo(int column, int row);
  // A click on a cell: moves the cursor there, chooses its row, then notifies on_click. Row 0 is
  // the head and chooses nothing.
  void Click(int column, int row);

  // What a form hears of the user's side. The form sets them; they outlive ReturnToDesign().
  Notification on_change;
  Notification on_check;
  Notification on_click;
  Notification on_cell;

 protected:
  enum class Action { kType, kTick, kMove, kClick };
  // Runs each action of the user's, notifications included. A grid on a form makes it an action of
  // the form, or leaves it out where the form takes none: an entry is then refused without a word.
  virtual void RunAction(Action action, const std::function<void()>& run);

 private:
  struct CellState {
    std::string text;
    std::optional<bool> locked;
    std::optional<Color> back_color;
    CellNote note;
    bool stale = false;    // a total to compute before it is read
    bool written = false;  // a total that shows what was written over it
  };

  // Cells go by their position in the order of reading, from 0; kNowhere outside the grid.
  static constexpr int kNowhere = -1;
  int PositionOf(int column, int row) const;
  const CellDesign& DesignOf(int column, int row) const;
  const std::string& Read(int position) const;
  void Write(int position, std::string text);
  void WriteByCode(int position, std::string text);
  void ShowSum(int position);
  void EndHistory();
  void MarkTotalsOver(int position);
  void Compute(const DesignIndex::TotalCell& total) const;
  bool IsCovered(int column, int row) const;
  Cell CellOf(int position) const;
  std::string_view WhyClosed(int column, int row) const;
  Entry EntryByUser(Action action, const std::function<Entry()>& enter);
  Entry TakeText(int column, int row, std::string_view text);
  Entry TakeTick(int column, int row);
  void MoveCursor(int column, int row);
  Entry Put(int column, int row, std::string text);

  const GridDesign* design_;
  EditHistory* history_;
  int rows_;
  DesignIndex index_;
  mutable std::vector<CellState> cells_;  // totals are computed when read
  std::vector<bool> hidden_rows_;
  Cell active_;
  int chosen_row_ = 0;
  std::uint64_t revision_ = 0;
};

}  // namespace survey

#endif  // GRID_GRID_H_
