#ifndef TOOLS_DESKTOP_DRIVER_H_
#define TOOLS_DESKTOP_DRIVER_H_

#include <QWidget>
#include <chrono>
#include <deque>
#include <functional>
#include <stdexcept>
#include <string>

#include "desktop/desktop.h"
#include "desktop/grid_view.h"

class QMessageBox;
class QTimer;

namespace survey {

// What the driver found otherwise than it should be; what() says it in a line.
class Mismatch : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Chooses the PDF file that `file` names by then; while it names none the user is asked. `file`
// must outlive the choice.
PrinterChoice PrintInto(const QString& file);

// Works a Desktop as a user does: finds widgets by name in the window in front, and touches only
// what is visible and enabled. Whatever it cannot do throws Mismatch.
class DesktopDriver {
 public:
  explicit DesktopDriver(Desktop& desktop);
  ~DesktopDriver();
  DesktopDriver(const DesktopDriver&) = delete;
  DesktopDriver& operator=(const DesktopDriver&) = delete;

  // The next window that opens over the others is handed to the script; more than one wait in
  // line. A window that nobody waits for is a mismatch, and is closed.
  void OnDialog(std::function<void(QWidget& dialog)> script);
  // Reads the next message box, then answers it with the button of that text.
  void OnBox(std::function<void(QMessageBox& box)> read, const std::string& button);

  // The contents of the form in front, shown or shown modally.
  FormWidget& Front() const;
  void ExpectFront(const std::string& form) const;

  // A widget of the form in front, whether it can be used or not.
  QWidget& Find(const std::string& name) const;
  template <typename Kind>
  Kind& The(const std::string& name) const {
    auto* widget = dynamic_cast<Kind*>(&Find(name));
    if (widget == nullptr) throw Mismatch(name + " is of another kind");
    return *widget;
  }
  // The same, visible and enabled.
  QWidget& Usable(const std::string& name) const;

  // What keys go to.
  QWidget& Focus() const;

  void Click(const std::string& name);
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  // Key by key, into whatever has the focus.
  void Type(const std::string& text);
  void Type(const std::string& name, const std::string& text);
  // Opens the list of a combo box and clicks an entry.
  void Choose(const std::string& combo_box, const std::string& entry);
  void ClickCell(const std::string& grid, int column, int row);
  void ClickEntry(const std::string& list, const std::string& entry);
  std::string CellText(const std::string& grid, int column, int row) const;

  // Lets the program run until the condition holds; `what` names it in the mismatch.
  void WaitUntil(const std::function<bool()>& condition, const std::string& what) const;

 private:
  void AnswerDialog();
  void Settle();

  Desktop& desktop_;
  std::unique_ptr<QTimer> watch_;
  std::deque<std::function<void(QWidget&)>> scripts_;
  QWidget* answered_ = nullptr;  // the dialog that a script works on
  std::string failure_;          // what went wrong within a dialog's own event loop
};

}  // namespace survey

#endif  // TOOLS_DESKTOP_DRIVER_H_
