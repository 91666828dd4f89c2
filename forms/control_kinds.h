#ifndef FORMS_CONTROL_KINDS_H_
#define FORMS_CONTROL_KINDS_H_

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "grid/color.h"
#include "grid/grid.h"

namespace survey {

// A fixed text.
class Label : public Control {
 public:
  Label(Form& form, std::string name, std::string caption, int index = kNoIndex);
  void Reset() override;

  std::string Caption;
  bool Heading = false;  // set off as the title of what follows

 private:
  std::string design_caption_;
};

// A titled border around other controls; hidden, it hides them all.
class Frame : public Control {
 public:
  Frame(Form& form, std::string name, std::string caption = {});
  void Reset() override;

  std::string Caption;

 private:
  std::string design_caption_;
};

// What a button is for, where forms have the like of it. No form has two of one role.
enum class ButtonRole { kNone, kSave, kPrint, kNext, kPrevious, kMenu, kCancel };

class Button : public Control {
 public:
  Button(Form& form, std::string name, std::string caption, ButtonRole role = ButtonRole::kNone,
         int index = kNoIndex);
  void Reset() override;

  ButtonRole role() const { return role_; }
  std::string Caption;  // an ampersand stands before the letter that works with Alt
  Color BackColor = kButtonFace;
  std::function<void()> on_click;
  // A key that goes down while the button has the focus.
  std::function<void()> on_key_down;

  // The user's side.
  void Click();
  void KeyDown();

 private:
  std::string design_caption_;
  ButtonRole role_;
};

// A box to tick. Code that changes it raises the click as the user does.
class CheckBox : public Control {
 public:
  CheckBox(Form& form, std::string name, std::string caption);
  void Reset() override;

  std::string Caption;
  bool Value() const { return value_; }
  void SetValue(bool value);
  std::function<void()> on_click;

  // The user's side.
  void Click();

 private:
  bool value_ = false;
};

// One of several; those of a form with the same group exclude each other. Choosing it, by code
// too, raises its click; losing the choice does not.
class OptionButton : public Control {
 public:
  OptionButton(Form& form, std::string name, std::string caption, std::string group,
               int index = kNoIndex);
  void Reset() override;

  std::string Caption;
  const std::string& group() const { return group_; }
  bool Value() const { return value_; }
  void SetValue(bool value);
  std::function<void()> on_click;

  // The user's side.
  void Click();

 private:
  std::string group_;
  bool value_ = false;
};

class TextBox : public Control {
 public:
  TextBox(Form& form, std::string name, std::string accessible_name);
  void Reset() override;

  std::string Text;
  // The design's, set where the form is made; a load leaves them as they are.
  bool Locked = false;  // shows, takes no typing
  bool Centered = false;
  // Whether a typed character is taken; all are where it is not set.
  std::function<bool(char32_t)> takes_key;
  std::function<void()> on_change;    // typing has changed the text
  std::function<void()> on_key_down;  // any key, before it does anything

  // The user's side: the whole text as it stands after typing or pasting; characters that the
  // box does not take are left out.
  void Enter(std::string_view text);
  void KeyDown();
};

struct ListItem {
  std::string text;
  std::int32_t item_data = 0;
};

// A list with at most one entry selected. Code that changes the selection raises the click.
class ListBox : public Control {
 public:
  ListBox(Form& form, std::string name, std::string accessible_name);
  void Reset() override;

  const std::vector<ListItem>& items() const { return items_; }
  void AddItem(std::string text);
  void Clear();
  int ListIndex() const { return list_index_; }  // -1: none
  void SetListIndex(int index);
  std::string SelectedText() const;  // "" for none
  std::function<void()> on_click;
  // Grows with every change of the entries.
  std::uint64_t revision() const { return revision_; }

  // The user's side.
  void Choose(int index);

 private:
  std::vector<ListItem> items_;
  int list_index_ = -1;
  std::uint64_t revision_ = 0;
};

// A drop-down list with a line of text above it. Code that changes the selection raises the
// click. The text may be one that is not in the list.
class ComboBox : public Control {
 public:
  ComboBox(Form& form, std::string name, std::string accessible_name);
  void Reset() override;

  const std::vector<ListItem>& items() const { return items_; }
  void AddItem(std::string text, std::int32_t item_data);
  void SetItemData(int index, std::int32_t item_data);
  void Clear();                                  // the text too
  int ListIndex() const { return list_index_; }  // -1: none
  void SetListIndex(int index);
  const std::string& Text() const { return text_; }
  // Selects the entry of exactly this text, or none; raises no click.
  void SetText(std::string text);
  // The selected part of the text, in characters; what a type-ahead has filled in.
  int SelectionStart = 0;
  int SelectionLength = 0;
  Color BackColor = kWhite;

  std::function<void()> on_click;
  std::function<void()> on_drop_down;
  std::function<void()> on_got_focus;
  // Sees each typed character and always keeps it from the box; where it is not set, the box
  // can only be chosen from.
  std::function<void(char32_t)> on_key_press;
  // Backspace, Delete, cut or paste in the line, which the control alone changes.
  std::function<void()> on_edit;
  bool DroppedDown = false;  // code asks to open the list; the view does, and sets it back
  std::uint64_t revision() const { return revision_; }

  // The user's side. A choice selects the whole text, so that what is typed then begins anew.
  void DropDown();
  void Choose(int index);
  void KeyPress(char32_t character);
  void Edit();
  void GotFocus();

 private:
  std::vector<ListItem> items_;
  int list_index_ = -1;
  std::string text_;
  std::uint64_t revision_ = 0;
};

// A survey table on a form. What the user does to it is an action of the form, whoever passes it
// on and through whatever reference.
class GridControl : public Control, public Grid {
 public:
  // `design` must outlive the control.
  GridControl(Form& form, std::string name, const GridDesign& design, int index = kNoIndex);
  void Reset() override;

 protected:
  void RunAction(Action action, const std::function<void()>& run) override;

 private:
  static const char* EventOf(Action action);  // as error reports name it
};

}  // namespace survey

#endif  // FORMS_CONTROL_KINDS_H_
