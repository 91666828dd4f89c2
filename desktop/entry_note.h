#ifndef DESKTOP_ENTRY_NOTE_H_
#define DESKTOP_ENTRY_NOTE_H_

#include <QLabel>
#include <QPointer>
#include <QTableView>
#include <QTimer>
#include <string>

#include "grid/cell.h"

namespace survey {

// Tells the user at a cell why an entry was refused. Unlike a tool tip it outlasts the click
// that caused it, until the user goes on. Screen readers say it.
class EntryNote {
 public:
  // `view`, a table, must outlive the note.
  explicit EntryNote(QTableView& view);
  ~EntryNote();

  enum class Stays { kForAWhile, kUntilHidden };
  // Shows the text at the cell; nothing for an empty one.
  void Show(Cell cell, const std::string& text, Stays stays = Stays::kForAWhile);
  void Hide();

 private:
  void FollowScrolling();
  void Place();
  void Describe(const QString& text);

  QTableView& view_;
  Cell cell_;               // of the note
  QPointer<QLabel> label_;  // a child of the view's window, which may end first
  QTimer timer_;
  QString usual_;  // what the view is described by without a note
};

}  // namespace survey

#endif  // DESKTOP_ENTRY_NOTE_H_
