#ifndef FORMS_FORM_HOST_H_
#define FORMS_FORM_HOST_H_

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "forms/message_boxes.h"
#include "forms/page_row.h"
#include "forms/platform.h"
#include "store/survey.h"

namespace survey {

class Button;
class Form;
class FormHost;
class RunTimeError;

// Who shows the forms: the desktop, or a test.
class FormsView {
 public:
  virtual ~FormsView() = default;

  // Called when a user action has ended: take over what changed. FormHost::shown() tells which
  // forms are to be seen.
  virtual void Refresh() = 0;

  // Shows a form over all others and lets the user work on it until it is not loaded any more.
  virtual void RunModal(Form& form) = 0;
};

// Thrown to leave a handler when the program has ended under it, as when a modal form's Exit
// was clicked. FormHost::Dispatch alone catches it.
struct ProgramEnded {};

// The host of the forms: makes them on first use, shows and unloads them, and runs what users do
// on them. All of it on the one interface thread.
class FormHost {
 public:
  using Factory = std::function<std::unique_ptr<Form>(FormHost&)>;

  // All arguments must outlive the host. set_view() before the first Dispatch.
  FormHost(Survey& survey, const Platform& platform);
  ~FormHost();
  void set_view(FormsView* view) { view_ = view; }

  // Makes a form known by its name; `Kind` is made from the host alone.
  template <typename Kind>
  void Register(const std::string& name) {
    Register(name, [](FormHost& host) { return std::make_unique<Kind>(host); });
  }
  void Register(const std::string& name, Factory factory);
  // Makes the survey's pages known. The rows must outlive the host.
  void RegisterPages(const std::vector<PageRow>& rows);
  // In survey order.
  const std::vector<PageRow>& pages() const { return *pages_; }
  // Throws std::out_of_range for a form that is no page of the survey.
  const PageRow& PageOf(std::string_view name) const;

  // The instance of that form, made if there is none; it may not be loaded. The host owns it.
  Form& Get(const std::string& name);

  // Loads the form if it is not, and brings it to the front. It is activated once the handler
  // that runs now has ended.
  void Show(const std::string& name);
  // Loads, activates and runs the form over the others; returns when it was unloaded. The form
  // beneath is then activated as if it had been shown. Throws ProgramEnded.
  void ShowModal(const std::string& name);
  // Nothing happens to a form that is not loaded.
  void Unload(Form& form);
  // Unloads every form, which ends the program.
  void UnloadAll();

  // Makes another instance of the form, loads it from its design without showing it, lets `work`
  // use it and drops it: nothing is left behind, and one that is on screen is not disturbed. What
  // the traps of any form would report meanwhile is thrown as a RunTimeError instead, so that the
  // caller's trap alone tells it; what they keep silent about stays silent.
  void RunOffScreen(const std::string& name, const std::function<void(Form&)>& work);
  bool IsOffScreenWork() const { return unseen_ > 0; }

  // Answers whether what `cmdSave` has not saved may be lost; asks where it is yellow.
  bool MayLose(const Button& cmdSave);
  // Answers whether the form may be left: unloads it at once when `cmdSave` is not yellow, else
  // asks first. After a No nothing has changed.
  bool ConfirmUnsaved(const Button& cmdSave, Form& form);

  // Runs one user action on a form: handler, commit, activation of the form that came to the
  // front, repaint. A failure that the handler does not trap goes to the form; memory that gives
  // out, and whatever else went wrong in the program itself, is one too.
  void Dispatch(Form& form, const std::function<void()>& handler);
  // The window's close box: unloads the form without a question.
  void CloseBox(Form& form);
  // Shows the first form of the program.
  void Start(const std::string& name);

  // The forms on screen, the one in front last.
  const std::vector<Form*>& shown() const { return shown_; }
  Form* Front() const { return shown_.empty() ? nullptr : shown_.back(); }
  bool IsModal(const Form& form) const;
  bool Ended() const { return ended_; }

  Survey& survey() const { return survey_; }
  const Platform& platform() const { return platform_; }
  MessageBoxes& boxes() { return boxes_; }

 private:
  void Guarded(Form& form, const std::function<void()>& handler);
  void Untrapped(Form& form, const RunTimeError& failure);
  void ActivateFront();

  Survey& survey_;
  Platform platform_;
  MessageBoxes boxes_;
  FormsView* view_ = nullptr;
  std::map<std::string, Factory> factories_;
  const std::vector<PageRow>* pages_;
  std::map<std::string, std::unique_ptr<Form>> forms_;
  std::vector<Form*> shown_;
  std::vector<Form*> modal_;
  Form* activated_ = nullptr;  // the front form that was activated last
  int depth_ = 0;              // of actions within actions
  int unseen_ = 0;             // depth of RunOffScreen
  bool ended_ = false;
};

}  // namespace survey

#endif  // FORMS_FORM_HOST_H_
