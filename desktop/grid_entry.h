#ifndef DESKTOP_GRID_ENTRY_H_
#define DESKTOP_GRID_ENTRY_H_

#include <QPointer>
#include <QStyledItemDelegate>
#include <QTableView>
#include <optional>

#include "desktop/entry_line.h"
#include "desktop/entry_note.h"
#include "forms/control_kinds.h"

namespace survey {

// What the user types into one cell of a table. As the table's delegate it makes the line that is
// typed into, which takes any key: a key left out would make another figure of the rest. From the
// first key that makes an entry impossible the line has a red frame, and a note says why. The grid
// gets the text when the user leaves the cell, and takes all of it or nothing; what it refuses
// keeps the user at the cell until it is put right, or Esc gives back what the cell held.
class GridEntry : public QStyledItemDelegate {
  Q_OBJECT

 public:
  // All must outlive the entry; `view` owns it.
  GridEntry(GridControl& grid, QFont font, EntryNote& note, QTableView& view);

  // Of what is typed from now on.
  void SetFont(const QFont& font) { font_ = font; }
  // Something is being typed.
  bool IsOpen() const { return line_ != nullptr; }
  // To be called when the view has opened the line. `over`: by a character that takes the place of
  // what the cell held, so that the arrow keys leave the cell.
  void Begin(bool over);
  // Whether `key` was to begin an entry where none is typed: in a closed cell, of which it then
  // says why, or a box, which it ticks.
  bool TakesInstead(const QKeyEvent& key);
  // Makes an entry of what is being typed. False when it is refused: the line then stays open with
  // all of it selected, with a sound, and the note says why.
  bool Commit();
  // Gives the typing up.
  void Close();
  // Gives it up where the cell has been closed under it.
  void Refresh();
  // Lets go of the line: its end is not to be noticed any more, since the view is ending.
  void Abandon();

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model,
                    const QModelIndex& index) const override;
  void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const override;
  void destroyEditor(QWidget* editor, const QModelIndex& index) const override;

 Q_SIGNALS:
  // The entry was taken; `key` ended it, and goes on from its cell.
  void Ended(QKeyEvent* key);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

 private:
  bool TakeKey(QKeyEvent& event);
  void Leave(Qt::FocusReason reason);
  bool KeepsMouse(QObject* watched, const QEvent& event);
  Entry Submit() const;
  void Judge() const;
  void Show(const Entry& entry) const;

  GridControl& grid_;
  QFont font_;
  EntryNote& note_;
  QTableView& view_;
  bool over_ = false;
  bool kept_press_ = false;  // of the mouse, whose release is kept too
  // Qt makes the line, and has it submitted, in const functions.
  mutable bool submitting_ = false;        // or closing: nothing else is to be done with the line
  mutable QPointer<EntryLine> line_;       // null while nothing is typed; the view owns it
  mutable Cell cell_;                      // that it types into
  mutable std::optional<QString> before_;  // what it held when typing began
};

}  // namespace survey

#endif  // DESKTOP_GRID_ENTRY_H_
