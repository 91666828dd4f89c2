#include "forms/control_kinds.h"

#include <algorithm>

#include "base/text.h"
#include "forms/form.h"

namespace survey {
namespace {

void Call(const std::function<void()>& notification) {
  if (notification) notification();
}

}  // namespace

// ---- Label, Frame --------------------------------------------------------------------------

Label::Label(Form& form, std::string name, std::string caption, int index)
    : Control(form, std::move(name), index),
      Caption(caption),
      design_caption_(std::move(caption)) {}

void Label::Reset() {
  Control::Reset();
  Caption = design_caption_;
}

Frame::Frame(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name), kNoIndex),
      Caption(caption),
      design_caption_(std::move(caption)) {}

void Frame::Reset() {
  Control::Reset();
  Caption = design_caption_;
}

// ---- Button --------------------------------------------------------------------------------

Button::Button(Form& form, std::string name, std::string caption, ButtonRole role, int index)
    : Control(form, std::move(name), index),
      Caption(caption),
      design_caption_(std::move(caption)),
      role_(role) {}

void Button::Reset() {
  Control::Reset();
  Caption = design_caption_;
  BackColor = kButtonFace;
}

void Button::Click() {
  if (TakesInput()) Dispatch("Click", [this] { Call(on_click); });
}

void Button::KeyDown() {
  if (TakesInput() && on_key_down) Dispatch("KeyDown", [this] { on_key_down(); });
}

// ---- CheckBox, OptionButton ----------------------------------------------------------------

CheckBox::CheckBox(Form& form, std::string name, std::string caption)
    : Control(form, std::move(name), kNoIndex), Caption(std::move(caption)) {}

void CheckBox::Reset() {
  Control::Reset();
  value_ = false;
}

void CheckBox::SetValue(bool value) {
  if (value == value_) return;
  value_ = value;
  Call(on_click);
}

void CheckBox::Click() {
  if (TakesInput()) Dispatch("Click", [this] { SetValue(!value_); });
}

OptionButton::OptionButton(Form& form, std::string name, std::string caption, std::string group,
                           int index)
    : Control(form, std::move(name), index),
      Caption(std::move(caption)),
      group_(std::move(group)) {}

void OptionButton::Reset() {
  Control::Reset();
  value_ = false;
}

void OptionButton::SetValue(bool value) {
  if (value == value_) return;
  value_ = value;
  if (!value) return;
  for (Control* control : form().controls()) {
    auto* option = dynamic_cast<OptionButton*>(control);
    if (option != nullptr && option != this && option->group_ == group_) option->value_ = false;
  }
  Call(on_click);
}

void OptionButton::Click() {
  if (TakesInput()) Dispatch("Click", [this] { SetValue(true); });
}

// ---- TextBox -------------------------------------------------------------------------------

TextBox::TextBox(Form& form, std::string name, std::string accessible_name)
    : Control(form, std::move(name), kNoIndex) {
  AccessibleName = std::move(accessible_name);
}

void TextBox::Reset() {
  Control::Reset();
  Text.clear();
}

void TextBox::Enter(std::string_view text) {
  if (!TakesInput() || Locked) return;
  const std::string taken = takes_key ? KeepCharacters(text, takes_key) : std::string(text);
  if (taken == Text) return;
  Dispatch("Change", [&] {
    Text = taken;
    Call(on_change);
  });
}

void TextBox::KeyDown() {
  if (TakesInput() && on_key_down) Dispatch("KeyDown", [this] { on_key_down(); });
}

// ---- ListBox -------------------------------------------------------------------------------

ListBox::ListBox(Form& form, std::string name, std::string accessible_name)
    : Control(form, std::move(name), kNoIndex) {
  AccessibleName = std::move(accessible_name);
}

void ListBox::Reset() {
  Control::Reset();
  Clear();
}

void ListBox::AddItem(std::string text) {
  items_.push_back({std::move(text)});
  ++revision_;
}

void ListBox::Clear() {
  items_.clear();
  list_index_ = -1;
  ++revision_;
}

void ListBox::SetListIndex(int index) {
  if (index == list_index_) return;
  list_index_ = index;
  Call(on_click);
}

std::string ListBox::SelectedText() const {
  return list_index_ < 0 ? std::string() : items_.at(list_index_).text;
}

void ListBox::Choose(int index) {
  if (!TakesInput() || index < 0 || index >= static_cast<int>(items_.size())) return;
  Dispatch("Click", [&] {
    list_index_ = index;
    Call(on_click);
  });
}

// ---- ComboBox ------------------------------------------------------------------------------

ComboBox::ComboBox(Form& form, std::string name, std::string accessible_name)
    : Control(form, std::move(name), kNoIndex) {
  AccessibleName = std::move(accessible_name);
}

void ComboBox::Reset() {
  Control::Reset();
  Clear();
  BackColor = kWhite;
  DroppedDown = false;
}

void ComboBox::AddItem(std::string text, std::int32_t item_data) {
  items_.push_back({std::move(text), item_data});
  ++revision_;
}

void ComboBox::SetItemData(int index, std::int32_t item_data) {
  items_.at(index).item_data = item_data;
}

void ComboBox::Clear() {
  items_.clear();
  list_index_ = -1;
  text_.clear();
  SelectionStart = SelectionLength = 0;
  ++revision_;
}

void ComboBox::SetListIndex(int index) {
  list_index_ = index;
  text_ = index < 0 ? std::string() : items_.at(index).text;
  Call(on_click);
}

void ComboBox::SetText(std::string text) {
  text_ = std::move(text);
  const auto item = std::find_if(items_.begin(), items_.end(),
                                 [&](const ListItem& i) { return i.text == text_; });
  list_index_ = item == items_.end() ? -1 : static_cast<int>(item - items_.begin());
}

void ComboBox::DropDown() {
  if (TakesInput() && on_drop_down) Dispatch("DropDown", [this] { on_drop_down(); });
}

void ComboBox::Choose(int index) {
  if (!TakesInput() || index < 0 || index >= static_cast<int>(items_.size())) return;
  Dispatch("Click", [&] {
    SelectionStart = 0;
    SelectionLength = CharacterCount(items_[index].text);
    SetListIndex(index);
  });
}

void ComboBox::KeyPress(char32_t character) {
  if (TakesInput() && on_key_press) Dispatch("KeyPress", [&] { on_key_press(character); });
}

void ComboBox::Edit() {
  if (TakesInput() && on_edit) Dispatch("Change", [this] { on_edit(); });
}

void ComboBox::GotFocus() {
  if (TakesInput() && on_got_focus) Dispatch("GotFocus", [this] { on_got_focus(); });
}

// ---- GridControl ---------------------------------------------------------------------------

const char* GridControl::EventOf(Action action) {
  switch (action) {
    case Action::kType:
      return "Change";
    case Action::kTick:
      return "ButtonClicked";
    case Action::kMove:
      return "LeaveCell";
    case Action::kClick:
      break;
  }
  return "Click";
}

GridControl::GridControl(Form& form, std::string name, const GridDesign& design, int index)
    : Control(form, std::move(name), index), Grid(design, &form.history()) {
  AccessibleName = design.title;
}

void GridControl::Reset() {
  Control::Reset();
  ReturnToDesign();
}

void GridControl::RunAction(Action action, const std::function<void()>& run) {
  if (TakesInput()) Dispatch(EventOf(action), run);
}

}  // namespace survey
