#include "forms/control.h"

#include "forms/form.h"

namespace survey {

Control::Control(Form& form, std::string name, int index)
    : form_(form), name_(std::move(name)), index_(index) {
  form.controls_.push_back(this);
}

std::string Control::ObjectName() const {
  return index_ == kNoIndex ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

void Control::Reset() {
  Visible = true;
  Enabled = true;
}

bool Control::TakesInput() const { return form_.loaded() && Visible && Enabled; }

void Control::Dispatch(const char* event, const std::function<void()>& handler) const {
  form_.host().Dispatch(form_, [&] {
    form_.routine_ = name_ + "_" + event;
    handler();
  });
}

}  // namespace survey
