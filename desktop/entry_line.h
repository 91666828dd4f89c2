#ifndef DESKTOP_ENTRY_LINE_H_
#define DESKTOP_ENTRY_LINE_H_

#include <QLineEdit>

namespace survey {

// The line that a cell is typed into, in a red frame while what it holds is refused.
class EntryLine : public QLineEdit {
  Q_OBJECT

 public:
  using QLineEdit::QLineEdit;

  bool refused() const { return refused_; }
  void SetRefused(bool refused);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  bool refused_ = false;
};

}  // namespace survey

#endif  // DESKTOP_ENTRY_LINE_H_
