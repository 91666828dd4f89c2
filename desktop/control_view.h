#ifndef DESKTOP_CONTROL_VIEW_H_
#define DESKTOP_CONTROL_VIEW_H_

#include <QWidget>
#include <functional>
#include <memory>

#include "forms/control_kinds.h"

class QButtonGroup;

namespace survey {

// The widget of one control. It keeps nothing of the control's state: what the user does goes to
// the control's user side, and Refresh() shows what the control holds after it.
class ControlView {
 public:
  virtual ~ControlView() = default;

  // Shows the control's state as it is now, without raising its user side; cheap when nothing
  // changed.
  void Refresh();
  // False when something typed here is refused and would be lost.
  virtual bool CommitEntry() { return true; }
  // Whether this is where the user of a form that has come up begins: a table with an open cell.
  virtual bool IsOpenForEntry() const { return false; }
  // Brings the user to its first place to fill in, or to its last.
  virtual void Begin(bool at_end);

  Control& control() const { return control_; }
  // The parent widget owns it.
  QWidget* widget() const { return widget_; }

 protected:
  ControlView(Control& control, QWidget* widget);
  // What Refresh() does for the kind of control, beyond what all have.
  virtual void RefreshState() = 0;

 private:
  Control& control_;
  QWidget* widget_;
};

// What the views of one form share.
struct FormContext {
  QWidget* parent = nullptr;
  // Makes entries of all that is being typed; false when one is refused.
  std::function<bool()> commit_entries;
  // ENTER leaves a control for the next one to be filled in, Shift+ENTER for the one before.
  std::function<void(const Control& from, bool back)> run_on;
  // The options that exclude each other.
  std::function<QButtonGroup*(const std::string& group)> option_group;
};

// The view of a control of any kind. Whoever asks for that of a Frame gives it its layout.
std::unique_ptr<ControlView> MakeControlView(Control& control, const FormContext& context);

// Paints a widget in the control's colour; in the style's own where that is `standard`.
void ShowBackColor(QWidget& widget, Color color, Color standard);

}  // namespace survey

#endif  // DESKTOP_CONTROL_VIEW_H_
