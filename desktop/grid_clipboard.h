#ifndef DESKTOP_GRID_CLIPBOARD_H_
#define DESKTOP_GRID_CLIPBOARD_H_

#include <QKeyEvent>
#include <QTableView>

#include "desktop/entry_note.h"
#include "forms/control_kinds.h"

namespace survey {

// What is done to the selected cells of a table as a block, as in any spreadsheet: copy, cut,
// paste and empty. Each cell is one action of the user's, under the limits of its own, and the
// block one step to take back; what is refused is told in one note.
class GridClipboard {
 public:
  // All must outlive the clipboard.
  GridClipboard(GridControl& grid, EntryNote& note, QTableView& view);

  // Does what the key asks for; false where that is nothing.
  bool TakeKey(const QKeyEvent& key);

 private:
  CellRange SelectedCells() const;
  void Copy() const;
  void Paste();
  void Clear();

  GridControl& grid_;
  EntryNote& note_;
  QTableView& view_;
};

}  // namespace survey

#endif  // DESKTOP_GRID_CLIPBOARD_H_
