#ifndef PLATFORM_DIALOGS_H_
#define PLATFORM_DIALOGS_H_

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace survey {

// The program's own pictures in its message boxes, by role.
enum class Picture { kNone, kMessage, kSaved, kStop, kQuestion, kError };

// Codes of a box's buttons, its default and its icon, added up into its type.
inline constexpr int kOkOnly = 0;
inline constexpr int kYesNo = 4;
inline constexpr int kSecondButtonDefault = 256;
inline constexpr int kIconMask = 0x30;
inline constexpr int kInformationIcon = 0x40;

// What a box answers.
inline constexpr int kAnswerOk = 1;
inline constexpr int kAnswerYes = 6;
inline constexpr int kAnswerNo = 7;

struct MessageBox {
  std::string prompt;
  int type = kOkOnly;
  std::string title;
  Picture picture = Picture::kNone;
  std::string cursor_path;  // of an animated cursor; handed on for whoever can show one
};

// Tells how far a long job has come, and lets the user stop it. The window is alive meanwhile. Gone
// from the screen when it is destroyed.
class Progress {
 public:
  virtual ~Progress() = default;

  // To be called before each step: `done` of `total` are behind, `what` comes next. False once the
  // user wants to stop.
  virtual bool Step(int done, int total, std::string_view what) = 0;
};

// The modal dialogs of the desktop. Each call returns when the user has answered.
class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // Answers with the code of the button; closing the box counts as No where there is one.
  virtual int ShowMessage(const MessageBox& box) = 0;

  // Lets the user pick a file, or type the name of one, which need not exist; "" after Cancel.
  // Begins in `folder`. `filter` reads "Database Files (*.mdb)|*.mdb".
  virtual std::string OpenFile(const std::string& filter, const std::filesystem::path& folder) = 0;

  // Asks for a line of text; "" after Cancel. An empty title stands for the program's name.
  virtual std::string InputBox(const std::string& prompt, const std::string& title) = 0;

  // Never null. A job that is soon done shows nothing.
  virtual std::unique_ptr<Progress> BeginProgress(const std::string& title) = 0;
};

}  // namespace survey

#endif  // PLATFORM_DIALOGS_H_
