#include "random_user.h"

#include <algorithm>
#include <deque>
#include <exception>
#include <memory>
#include <random>
#include <vector>

#include "base/text.h"
#include "filled_site.h"
#include "forms/page_chain.h"
#include "pages/register_pages.h"
#include "shell/register_shell.h"
#include "twin.h"

namespace survey::testing {
namespace {

const std::string kWords[] = {"",
                              "0",
                              "00",
                              "1",
                              "2",
                              "3",
                              "7",
                              "10",
                              "31",
                              "007",
                              "-1",
                              "1.5",
                              "1,5",
                              ".5",
                              "5.",
                              "12 A",
                              " 8 ",
                              "9999",
                              "10000",
                              "99999",
                              "100000",
                              "9999999.99",
                              "1e3",
                              "+4",
                              "0.125",
                              "0.1255",
                              "99999999999999999999",
                              "abc",
                              "O'Brien",
                              "Söhne",
                              "20120229",
                              "2012/02/30",
                              "1980-01-04",
                              "19800104",
                              "8001015009087",
                              "x'; Delete * from lst_province; --",
                              "' or ''='",
                              "#1/1/2012#",
                              "a\tb",
                              "two\nlines",
                              "%_*",
                              "\"&-",
                              "St. John's Hostel",
                              "中文"};
const std::string kIds[] = {"8001015009087", "7505055009081", "A1", "p 77"};
const std::string kDatabases[] = {"North", "South Campus"};

class RandomUser {
 public:
  explicit RandomUser(std::uint32_t seed) : dice_(seed) {}

  RandomUserReport Run(int steps) {
    for (report_.steps = 1; report_.steps <= steps && report_.fault.empty(); ++report_.steps) {
      try {
        Step();
      } catch (const std::exception& error) {
        report_.fault = std::string("thrown out of the program: ") + error.what();
      }
    }
    --report_.steps;
    for (const std::string& action : actions_) report_.last_actions += action + "\n";
    return report_;
  }

 private:
  // ---- Dice ----------------------------------------------------------------------------------
  int Roll(int below) { return std::uniform_int_distribution(0, below - 1)(dice_); }
  bool Chance(int percent) { return Roll(100) < percent; }
  template <typename List>
  auto& Any(List& list) {
    return list[static_cast<std::size_t>(Roll(static_cast<int>(std::size(list))))];
  }
  std::string Word() {
    if (Chance(50)) return std::to_string(Roll(120));
    if (Chance(1)) return std::string(10'000, 'x');
    return Any(kWords);
  }

  void Note(const std::string& action) {
    actions_.push_back(action.substr(0, 160));
    if (actions_.size() > 40) actions_.pop_front();
  }

  // ---- A step --------------------------------------------------------------------------------
  void Step() {
    if (!world_ || world_->host.Ended()) Restart();
    Form& front = *world_->host.Front();
    ++report_.visits[front.name()];
    world_->dialogs.seen.clear();
    world_->dialogs.answers.clear();
    for (int i = 0; i < 4; ++i) {
      world_->dialogs.answers.push_back(Chance(60) ? kAnswerYes : kAnswerNo);
    }
    world_->dialogs.inputs = {Chance(95) ? std::string(Any(kIds)) : Word()};
    world_->printer.cancel = Chance(20);
    world_->printer.broken = Chance(5);
    world_->printer.operations.clear();
    world_->statements.clear();
    world_->modal_scripts = {[this](Form& form) { WorkOnModal(form); }};
    had_modal_ = false;
    if (front.name() == "frmSelectDatabase" || front.name() == "frmSelectCollege" ||
        front.name() == "frmMainMenu") {
      GoOn(front);
    } else {
      WorkOn(front);
    }
    Settle(front);
  }

  void Restart() {
    Note("starts the program");
    for (const std::string& page : SavedPages()) twin_.Closed(page);
    world_ = std::make_unique<World>();
    world_->program_folder.path = folder_.path();
    if (!std::filesystem::exists(folder_.path() / "CorvaleAnnualOstrel2012.mdb")) {
      std::filesystem::copy(TemplateFile(), folder_.path() / "CorvaleAnnualOstrel2012.mdb");
    }
    RegisterShell(world_->host);
    RegisterPages(world_->host);
    world_->host.Start("frmSelectDatabase");
    front_ = "frmSelectDatabase";
  }

  // What the twin has to hear of whatever was done, and whether the two agree.
  void Settle(Form& worked_on) {
    for (const MessageBox& box : world_->dialogs.seen) {
      const bool error = box.prompt.starts_with("Error Desc") || box.prompt.starts_with("Run-time");
      if (error) ++report_.boxes[box.prompt];
    }
    if (world_->host.Ended() || !report_.fault.empty()) return;
    const auto& shown = world_->host.shown();
    for (const std::string& page : SavedPages()) {
      if (std::ranges::find(shown, page, &Form::name) == shown.end()) twin_.Closed(page);
    }
    Form& front = *world_->host.Front();
    const bool is_page = std::ranges::count(SavedPages(), front.name()) > 0;
    if (is_page && !twin_.Knows(front.name())) twin_.Opened(front);
    if (is_page && (front.name() != front_ || had_modal_)) twin_.Activated(front);
    front_ = front.name();
    if (!is_page) return;
    const std::string difference = twin_.Compare(front);
    if (!difference.empty()) {
      report_.fault = front.name() + " after work on " + worked_on.name() + ": " + difference;
      for (const MessageBox& box : world_->dialogs.seen) report_.fault += "\n" + box.prompt;
    }
  }

  // ---- The first forms: somebody who mostly knows the way ------------------------------------
  void GoOn(Form& form) {
    if (Chance(10)) return ClickAny(form);
    if (form.name() == "frmSelectDatabase") {
      auto& list = form.Find<ListBox>("lstFiles");
      const bool existing = !list.items().empty() && Chance(80);
      auto& choice = form.Find<CheckBox>(existing ? "chkExisting" : "chkNew");
      if (!choice.Value()) choice.Click();
      if (existing) list.Choose(Roll(static_cast<int>(list.items().size())));
      Note(existing ? "chooses " + list.SelectedText() : "begins a database");
      form.Find<Button>("cmdContinue").Click();
    } else if (form.name() == "frmSelectCollege") {
      auto& grid = form.Find<GridControl>("gridcollege");
      grid.Click(1, 1 + Roll(3));
      const bool known = !grid.GetText(2, grid.ActiveRow()).empty() && Chance(85);
      Note(known ? "chooses site " + grid.GetText(4, grid.ActiveRow()) : "adds a site");
      form.Find<Button>(known ? "cmdContinue" : "cmdAdd").Click();
    } else if (form.EditMode == "Add" && form.Find<Frame>("Frame1").Visible) {
      Note("claims a site");
      form.Find<OptionButton>(Chance(30) ? "optHO" : "optCampus").Click();
      for (const char* name : {"cboProvince", "cboCollege", "cboCampus"}) {
        auto& combo = form.Find<ComboBox>(name);
        combo.DropDown();
        if (!combo.items().empty()) combo.Choose(Roll(static_cast<int>(combo.items().size())));
      }
      form.Find<Button>("cmdContinue").Click();
      form.EditMode = "Edit";
    } else {
      ClickAny(form);
    }
  }

  // ---- Any other form: anything --------------------------------------------------------------
  void WorkOn(Form& form) {
    std::vector<GridControl*> grids;
    std::vector<Control*> others;
    for (Control* control : form.controls()) {
      if (auto* grid = dynamic_cast<GridControl*>(control)) {
        grids.push_back(grid);
      } else if (dynamic_cast<TextBox*>(control) || dynamic_cast<ComboBox*>(control) ||
                 dynamic_cast<OptionButton*>(control) || dynamic_cast<CheckBox*>(control)) {
        others.push_back(control);
      }
    }
    if (!grids.empty() && Chance(75)) return WorkOnGrid(form, *Any(grids));
    if (!others.empty() && Chance(30)) {
      UseControl(*Any(others));
      if (std::ranges::count(SavedPages(), form.name()) > 0 && !Twin::IsModelled(form.name())) {
        if (form.loaded() && twin_.Knows(form.name())) twin_.Follow(form);
      }
      return;
    }
    ClickAny(form);
  }

  void WorkOnGrid(Form& form, GridControl& grid) {
    Cell cell{1 + Roll(grid.MaxColumns()), 1 + Roll(std::max(grid.MaxRows(), 1))};
    if (Chance(85)) cell = grid.NextOpenCell(cell).value_or(cell);
    const std::string place = form.name() + " " + grid.ObjectName() + " (" +
                              std::to_string(cell.column) + "," + std::to_string(cell.row) + ")";
    const std::string before = grid.GetText(cell.column, cell.row);
    const bool known = twin_.Knows(form.name());
    grid.MoveTo(cell.column, cell.row);
    std::string difference;
    if (Chance(8)) {
      Note("clicks " + place);
      grid.Click(cell.column, cell.row);
      if (known && form.loaded() && !Twin::IsModelled(form.name())) twin_.Follow(form);
    } else if (Chance(10)) {
      Note("ticks " + place);
      grid.Tick(cell.column, cell.row);
      if (known) difference = twin_.Ticked(form, grid, cell, before);
      if (known && form.name() == "frmHostels") twin_.Follow(form);
    } else {
      const std::string word = Word();
      Note("types " + word + " into " + place);
      const bool taken = grid.Type(cell.column, cell.row, word).taken;
      if (taken) ++report_.typed;
      if (known) difference = twin_.Typed(form, grid, cell, before, word, taken);
      if (known && form.name() == "frmHostels") twin_.Follow(form);
    }
    if (!difference.empty()) report_.fault = form.name() + ": " + difference;
  }

  void UseControl(Control& control) {
    Note("uses " + control.form().name() + " " + control.ObjectName());
    if (auto* text = dynamic_cast<TextBox*>(&control)) {
      text->KeyDown();
      text->Enter(Word());
    } else if (auto* box = dynamic_cast<CheckBox*>(&control)) {
      box->Click();
    } else if (auto* option = dynamic_cast<OptionButton*>(&control)) {
      option->Click();
    } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
      combo->GotFocus();
      if (Chance(30)) combo->KeyPress(static_cast<char32_t>('0' + Roll(75)));
      if (Chance(30)) combo->DropDown();
      combo->Choose(Roll(static_cast<int>(combo->items().size()) + 2) - 1);
    }
  }

  void ClickAny(Form& form) {
    std::vector<Button*> buttons;
    for (Control* control : form.controls()) {
      if (auto* button = dynamic_cast<Button*>(control)) buttons.push_back(button);
    }
    if (buttons.empty()) return;
    Button* button = Any(buttons);
    const bool leaves = button->name() == "cmdExit" || button->name() == "cmdList";
    if (leaves && !Chance(10)) return;
    if (Chance(20)) {
      for (Button* save : buttons) button = save->name() == "cmdSave" ? save : button;
    }
    Click(form, *button);
  }

  void Click(Form& form, Button& button) {
    const std::string name = form.name();
    const bool known = twin_.Knows(name);
    const bool marked = known && twin_.IsMarked(name);
    const bool yes = world_->dialogs.answers.front() != kAnswerNo;
    Note("clicks " + name + " " + button.ObjectName() +
         (yes ? ", would say Yes" : ", would say No"));
    if (Chance(1) && button.name() != "cmdSave") {
      Note("closes the window of " + name);
      return world_->host.CloseBox(form);
    }
    const bool input = button.Visible && button.Enabled;
    button.Click();
    if (button.name() == "cmdUpdateID" || button.name() == "cmdDelete") twin_.ForgetStaff();
    if (!known || !input || world_->host.Ended()) return;
    const Link* link = FindLink(name, button.name());
    if (link != nullptr && link->guard == Guard::kConfirmUnsaved) {
      const bool leaves = !marked || yes;
      const std::string front = world_->Front();
      if (front != (leaves ? std::string(link->target) : name)) {
        report_.fault = name + " " + button.name() + " leads to " + front;
      }
      if (marked != !world_->dialogs.seen.empty() && world_->LastBox().find("NOT saved") == 0) {
        report_.fault = name + " asked without need, or did not ask";
      }
    }
    if (!form.loaded()) return;
    if (!Twin::IsModelled(name)) {
      twin_.Follow(form);
    } else if (button.name() == "cmdSave") {
      ++report_.saved;
      twin_.Saved(form);
      if (Failed()) twin_.Forget(form);
    }
  }

  bool Failed() const {
    return std::ranges::any_of(
        world_->dialogs.seen, [](const MessageBox& box) { return box.title.starts_with("Error"); });
  }

  // Between its opening and its closing a modal form takes a few steps of its own.
  void WorkOnModal(Form& form) {
    had_modal_ = true;
    if (form.name() == "frmDatabase") {
      form.Find<TextBox>("txtDatabaseName")
          .Enter(Chance(90) ? std::string(Any(kDatabases)) : Word());
      form.Find<Button>("cmdOk").Click();
      return;
    }
    for (int i = Roll(12); i > 0 && form.loaded() && !world_->host.Ended(); --i) {
      ++report_.visits[form.name()];
      WorkOn(form);
    }
  }

  std::mt19937 dice_;
  TemporaryFolder folder_;
  std::unique_ptr<World> world_;
  Twin twin_;
  std::string front_;
  bool had_modal_ = false;
  std::deque<std::string> actions_;
  RandomUserReport report_;
};

}  // namespace

RandomUserReport RunRandomUser(std::uint32_t seed, int steps) {
  return RandomUser(seed).Run(steps);
}

}  // namespace survey::testing
