#include "forms/form_host.h"

#include <algorithm>
#include <exception>
#include <new>

#include "forms/form.h"

namespace survey {
namespace {

// Counts something in, and out again however it ends.
class Nested {
 public:
  explicit Nested(int& depth) : depth_(depth) { ++depth_; }
  ~Nested() { --depth_; }
  Nested(const Nested&) = delete;
  Nested& operator=(const Nested&) = delete;

 private:
  int& depth_;
};

const std::vector<PageRow> kNoPages;

}  // namespace

FormHost::FormHost(Survey& survey, const Platform& platform)
    : survey_(survey), platform_(platform), boxes_(survey, platform.dialogs), pages_(&kNoPages) {
  survey_.set_error_reporter([this](std::string_view location, std::string_view description,
                                    std::string_view procedure, double number) {
    if (IsOffScreenWork()) throw RunTimeError(number, std::string(description));
    boxes_.ReportError(location, description, procedure, number);
  });
}

FormHost::~FormHost() { survey_.set_error_reporter({}); }

void FormHost::Register(const std::string& name, Factory factory) {
  factories_[name] = std::move(factory);
}

void FormHost::RegisterPages(const std::vector<PageRow>& rows) {
  pages_ = &rows;
  for (const PageRow& row : rows) {
    Register(std::string(row.name), [&row](FormHost& host) { return row.make(host, row); });
  }
}

const PageRow& FormHost::PageOf(std::string_view name) const {
  const auto row = std::ranges::find(*pages_, name, &PageRow::name);
  if (row == pages_->end()) throw std::out_of_range(std::string(name) + " is no page");
  return *row;
}

Form& FormHost::Get(const std::string& name) {
  std::unique_ptr<Form>& form = forms_[name];
  if (!form) form = factories_.at(name)(*this);
  return *form;
}

void FormHost::Show(const std::string& name) {
  Form& form = Get(name);
  if (!form.loaded()) form.Load();
  std::erase(shown_, &form);
  shown_.push_back(&form);
}

void FormHost::ShowModal(const std::string& name) {
  Form& form = Get(name);
  Show(name);
  modal_.push_back(&form);
  activated_ = &form;
  form.Form_Activate();
  if (view_ != nullptr) view_->Refresh();
  if (form.loaded() && view_ != nullptr) view_->RunModal(form);
  if (ended_) throw ProgramEnded();
}

void FormHost::Unload(Form& form) {
  if (!form.loaded()) return;
  form.Form_Unload();
  form.loaded_ = false;
  std::erase(shown_, &form);
  std::erase(modal_, &form);
  if (activated_ == &form) activated_ = nullptr;
}

void FormHost::UnloadAll() {
  ended_ = true;
  while (!shown_.empty()) Unload(*shown_.back());
}

void FormHost::RunOffScreen(const std::string& name, const std::function<void(Form&)>& work) {
  const std::unique_ptr<Form> form = factories_.at(name)(*this);
  const Nested nested(unseen_);
  form->Load();
  work(*form);
  form->Form_Unload();
}

bool FormHost::MayLose(const Button& cmdSave) {
  return cmdSave.BackColor != kYellow ||
         boxes_.ExtendedMsgBox(
             "You have NOT saved your data. Are you sure you want to exit without saving?",
             kYesNo + kSecondButtonDefault, "Data has NOT been Saved", Picture::kStop,
             "") != kAnswerNo;
}

bool FormHost::ConfirmUnsaved(const Button& cmdSave, Form& form) {
  if (!MayLose(cmdSave)) return false;
  Unload(form);
  return true;
}

void FormHost::Dispatch(Form& form, const std::function<void()>& handler) {
  {
    const Nested nested(depth_);
    Guarded(form, handler);
    if (depth_ == 1) {
      ActivateFront();
      if (shown_.empty()) ended_ = true;
    }
  }
  if (view_ != nullptr) view_->Refresh();
}

void FormHost::CloseBox(Form& form) {
  Dispatch(form, [&] { Unload(form); });
}

void FormHost::Start(const std::string& name) {
  Dispatch(Get(name), [&] { Show(name); });
}

bool FormHost::IsModal(const Form& form) const {
  return std::find(modal_.begin(), modal_.end(), &form) != modal_.end();
}

void FormHost::Guarded(Form& form, const std::function<void()>& handler) {
  try {
    handler();
    survey_.EndStatements();
  } catch (const ProgramEnded&) {
  } catch (const RunTimeError& failure) {
    Untrapped(form, failure);
  } catch (const std::bad_alloc&) {
    Untrapped(form, OutOfMemory());
  } catch (const std::exception& failure) {
    constexpr double kInternalError = 51;
    Untrapped(form, {kInternalError, failure.what()});
  }
}

void FormHost::Untrapped(Form& form, const RunTimeError& failure) {
  try {
    survey_.EndStatements();
  } catch (const RunTimeError&) {
    // Nothing is left to commit after this, and the first failure is the one to tell.
  }
  try {
    form.OnUntrappedFailure(failure);
  } catch (const ProgramEnded&) {
  }
}

void FormHost::ActivateFront() {
  while (!ended_ && Front() != nullptr && Front() != activated_) {
    Form& front = *Front();
    activated_ = &front;
    front.routine_ = "Form_Activate";
    Guarded(front, [&] { front.Form_Activate(); });
  }
}

}  // namespace survey
