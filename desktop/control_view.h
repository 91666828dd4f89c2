#ifndef DESKTOP_CONTROL_VIEW_H_
#define DESKTOP_CONTROL_VIEW_H_

#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "forms/control_kinds.h"

class QButtonGroup;

namespace survey {

// Least width of a button, in pixels.
inline constexpr int kButtonWidth = 112;

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
  // A text of the form that says what this control is about, and is no part of its name.
  void AddAdvice(const Label& advice) { advice_.push_back(&advice); }
  // Brings the user to its first place to fill in, or to its last.
  virtual void Begin(bool at_end);

  Control& control() const { return control_; }
  // The parent widget owns it.
  QWidget* widget() const { return widget_; }

 protected:
  ControlView(Control& control, QWidget* widget);
  // What Refresh() does for the kind of control, beyond what all have.
  virtual void RefreshState() = 0;
  // What a screen reader says after the name: keys, and what else is to be seen.
  virtual QStringList Remarks() const { return {}; }

 private:
  void Describe();

  Control& control_;
  QWidget* widget_;
  std::vector<const Label*> advice_;
  QString described_;
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
