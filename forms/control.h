#ifndef FORMS_CONTROL_H_
#define FORMS_CONTROL_H_

#include <functional>
#include <string>

namespace survey {

class Button;
class Form;

// Index of a control that is no element of a control array.
inline constexpr int kNoIndex = -1;

// A control of a form, named as on the form. It registers itself with the form, which must
// outlive it. Its fields are code's side; what a user does goes through the methods under "The
// user's side" of each kind, which run the form's handler as one user action (FormHost::Dispatch)
// and do nothing on a control that is hidden or disabled.
class Control {
 public:
  Control(Form& form, std::string name, int index);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& name() const { return name_; }
  int index() const { return index_; }
  // The name, with the index in brackets for an element of an array: "cmdLearner(7)".
  std::string ObjectName() const;
  Form& form() const { return form_; }

  // Back to the design's state, as when the form is loaded.
  virtual void Reset();

  bool Visible = true;
  bool Enabled = true;
  std::string ToolTip;
  // What a screen reader says where the control's own text does not do.
  std::string AccessibleName;
  // The button that goes on with what is entered or chosen here: ENTER in a text box presses it, a
  // double click on an entry of a list does. Null: none.
  Button* Default = nullptr;

 protected:
  bool TakesInput() const;
  // Runs the form's handler of an event, "Click".
  void Dispatch(const char* event, const std::function<void()>& handler) const;

 private:
  Form& form_;
  std::string name_;
  int index_;
};

}  // namespace survey

#endif  // FORMS_CONTROL_H_
