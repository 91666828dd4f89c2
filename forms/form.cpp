#include "forms/form.h"

#include <stdexcept>

#include "base/text.h"

namespace survey {

Form::Form(FormHost& host, std::string name, std::string caption)
    : Caption(caption), host_(host), name_(std::move(name)), design_caption_(std::move(caption)) {}

Control& Form::FindControl(std::string_view name, int index) const {
  for (Control* control : controls_) {
    if (control->name() == name && control->index() == index) return *control;
  }
  throw std::out_of_range(name_ + " has no control " + std::string(name));
}

Control* Form::TakeFocusRequest() {
  Control* control = focus_request_;
  focus_request_ = nullptr;
  return control;
}

void Form::Load() {
  for (Control* control : controls_) control->Reset();
  Caption = design_caption_;
  focus_request_ = nullptr;
  loaded_ = true;
  Form_Load();
}

void Form::OnUntrappedFailure(const RunTimeError& failure) {
  boxes().PlainBox("Run-time error '" + NumberText(failure.number()) + "':\n\n" + failure.what());
  host_.UnloadAll();
}

void Form::ReportUntrapped(const RunTimeError& failure) {
  boxes().ReportError(name_, failure.what(), routine_, failure.number());
}

void Form::FollowLink(const Link& link, const Button* cmdSave) {
  if (link.guard == Guard::kConfirmUnsaved && !host_.ConfirmUnsaved(*cmdSave, *this)) return;
  const std::string target(link.target);
  for (const std::string_view property : link.passes) {
    host_.Get(target).properties_.find(property)->second = properties_.find(property)->second;
  }
  const bool unload_first = link.leaving == Leaving::kUnloadThenShow;
  if (unload_first) host_.Unload(*this);
  if (link.leaving != Leaving::kUnloadOnly) host_.Show(target);
  if (!unload_first && link.leaving != Leaving::kStays) host_.Unload(*this);
}

void Form::SetFocus(GridControl& grid, Cell cell) {
  grid.SetActiveCell(cell.column, cell.row);
  SetFocus(grid);
}

void Form::ChoosePrinter(const std::string& what, const std::string& staff_id) {
  std::string job = Utf8(ToPath(survey().DatabasePath).stem()) + " " + what;
  if (!staff_id.empty()) job += " " + staff_id;
  host_.platform().printer.ShowPrinter(job);
}

bool Form::Trap(const ErrorName& name, const std::function<void()>& body) {
  try {
    body();
    survey().EndStatements();
    return true;
  } catch (const RunTimeError& failure) {
    // What was done before the failure stays done; if even that cannot be committed, the user
    // hears of it too.
    try {
      survey().EndStatements();
    } catch (const RunTimeError& commit_failure) {
      Report(name, commit_failure);
    }
    Report(name, failure);
    return false;
  }
}

bool Form::TrapPrint(const ErrorName& name, const std::function<void()>& body) {
  return Trap(name, [&] {
    body();
    host_.platform().printer.Finish();
  });
}

bool Form::TrapStatements(const ErrorName& name, const std::function<void()>& body) {
  try {
    body();
    return true;
  } catch (const CommitFailure&) {
    throw;
  } catch (const RunTimeError& failure) {
    Report(name, failure);
    return false;
  }
}

bool Form::TrapSilently(const std::function<void()>& body) {
  try {
    body();
    return true;
  } catch (const CommitFailure&) {
    throw;
  } catch (const RunTimeError&) {
    return false;
  }
}

void Form::Report(const ErrorName& name, const RunTimeError& failure) {
  if (host_.IsOffScreenWork()) throw RunTimeError(failure);
  boxes().ReportError(name.location, failure.what(), name.procedure, failure.number());
}

}  // namespace survey
