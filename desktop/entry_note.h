#ifndef DESKTOP_ENTRY_NOTE_H_
#define DESKTOP_ENTRY_NOTE_H_

#include <QLabel>
#include <QPointer>
#include <QTimer>

namespace survey {

// A word to the user at a cell: why an entry was refused. Unlike a tool tip it outlasts the click
// that caused it, until the user goes on. Screen readers say it.
class EntryNote {
 public:
  // `view` must outlive the note.
  explicit EntryNote(QWidget& view);
  ~EntryNote();

  // Shows `text` below `place`, which is in coordinates of `on`.
  void Show(const QString& text, const QWidget& on, const QRect& place);
  void Hide();

 private:
  void Describe(const QString& text);

  QWidget& view_;
  QPointer<QLabel> label_;  // a child of the view's window, which may end first
  QTimer timer_;
};

}  // namespace survey

#endif  // DESKTOP_ENTRY_NOTE_H_
