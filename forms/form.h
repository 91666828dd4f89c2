#ifndef FORMS_FORM_H_
#define FORMS_FORM_H_

#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/run_time_error.h"
#include "forms/control_kinds.h"
#include "forms/form_host.h"
#include "forms/layout.h"
#include "forms/link.h"

namespace survey {

// A window of the program. One instance a run, made on first use; it outlives its unloading, its
// public properties with it, while its controls return to their design at each load. Those that
// FormHost::RunOffScreen makes besides go with the work.
class Form {
 public:
  Form(FormHost& host, std::string name, std::string caption);
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& name() const { return name_; }
  bool loaded() const { return loaded_; }
  std::string Caption;

  // A property that others set before they show the form, by its name; `Kind` is std::string or
  // double. Null where the form has no such property.
  template <typename Kind>
  Kind* FindProperty(std::string_view name) {
    const auto property = properties_.find(name);
    return property == properties_.end() ? nullptr : std::get_if<Kind>(&property->second);
  }
  // The same of a form that is known to have it; throws std::out_of_range where it has not.
  template <typename Kind = std::string>
  Kind& Property(std::string_view name) {
    if (Kind* property = FindProperty<Kind>(name)) return *property;
    throw std::out_of_range(name_ + " has no property " + std::string(name));
  }

  const std::vector<Control*>& controls() const { return controls_; }
  // What the user has done in the form's tables since it was loaded.
  EditHistory& history() { return history_; }
  // The control (or grid) of that name and index; throws std::out_of_range where there is none,
  // std::bad_cast where it is of another kind.
  template <typename Kind>
  Kind& Find(std::string_view name, int index = kNoIndex) const {
    return dynamic_cast<Kind&>(FindControl(name, index));
  }
  // Arrangement of the controls; made anew at each call.
  virtual Layout Arrange() = 0;

  // Runs when the form has come to the front; printing calls it on a form that is not shown.
  virtual void Form_Activate() {}

  // The control that code gave the focus to since the view last asked; null for none.
  Control* TakeFocusRequest();

  FormHost& host() const { return host_; }

 protected:
  virtual void Form_Load() {}
  virtual void Form_Unload() {}
  // A failure that no handler of the form trapped. Tells it and ends the program, unless a form
  // knows better.
  virtual void OnUntrappedFailure(const RunTimeError& failure);
  // What a form does instead whose untrapped failures only end their handler: reports the failure
  // under the form's own name and its routine's, "cmdSave_Click" or "Form_Activate".
  void ReportUntrapped(const RunTimeError& failure);

  // Gives the form a property, empty or 0 at first.
  template <typename Kind = std::string>
  Kind& Declare(const char* name) {
    return properties_[name].emplace<Kind>();
  }

  Survey& survey() const { return host_.survey(); }
  MessageBoxes& boxes() const { return host_.boxes(); }

  // Runs `body` and commits what it wrote; a failure of either is reported under `name`, and
  // the handler goes on behind it. False after a failure. Throws it in FormHost::RunOffScreen.
  bool Trap(const ErrorName& name, const std::function<void()>& body);
  // Runs `body`, which begins with ChoosePrinter, and completes what it printed, under the same
  // trap.
  bool TrapPrint(const ErrorName& name, const std::function<void()>& body);
  // Runs a part of a handler whose statements may fail: a failure is reported under `name`, or
  // passed over without a word, and the handler goes on behind it. False after a failure. What the
  // part wrote is committed with the rest of the handler, and a commit that fails is the handler's
  // to tell, never silent: a CommitFailure is thrown.
  bool TrapStatements(const ErrorName& name, const std::function<void()>& body);
  bool TrapSilently(const std::function<void()>& body);
  // Goes where the link leads and hands on what it passes. `cmdSave` carries the unsaved mark
  // that a guarded link asks about.
  void FollowLink(const Link& link, const Button* cmdSave = nullptr);
  void SetFocus(Control& control) { focus_request_ = &control; }
  // Gives a table the focus, with its cursor in the cell that the user has been asked to answer.
  void SetFocus(GridControl& grid, Cell cell);
  // Lets the user choose the printer for `what`, "table 2.5". The job, and a file that it becomes,
  // is called so behind the name of the database; the answers of one staff member have the ID
  // number besides. Throws CancelWasSelected().
  void ChoosePrinter(const std::string& what, const std::string& staff_id = {});

 private:
  friend class Control;
  friend class FormHost;

  void Report(const ErrorName& name, const RunTimeError& failure);
  Control& FindControl(std::string_view name, int index) const;
  void Load();

  FormHost& host_;
  std::string name_;
  std::string design_caption_;
  std::vector<Control*> controls_;
  EditHistory history_;
  std::map<std::string, std::variant<std::string, double>, std::less<>> properties_;
  Control* focus_request_ = nullptr;
  std::string routine_;  // that the host or a control ran last
  bool loaded_ = false;
};

}  // namespace survey

#endif  // FORMS_FORM_H_
