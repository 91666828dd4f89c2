#ifndef FORMS_MESSAGE_BOXES_H_
#define FORMS_MESSAGE_BOXES_H_

#include <string>
#include <string_view>

#include "platform/dialogs.h"
#include "store/survey.h"

namespace survey {

// What the error box names as the place of a failure. The texts outlive the program.
struct ErrorName {
  const char* location = "";
  const char* procedure = "";
};

// The message boxes of the program. What a handler has written is committed before a box is
// shown, so that no lock on the file waits for the user; a commit that fails throws instead.
class MessageBoxes {
 public:
  // Both must outlive the boxes.
  MessageBoxes(Survey& survey, Dialogs& dialogs);

  // The one modal box of the program; answers with the button's code. A box with a picture or a
  // cursor asks for the information icon, whatever `Type` asked for: it is what the picture
  // replaces.
  int ExtendedMsgBox(std::string_view Prompt, int Type, std::string_view Title, Picture Icon,
                     std::string_view CursorPath);

  void UserMessage(std::string_view Text);
  [[nodiscard]] bool UserQuestion(std::string_view Text);  // false for No
  [[nodiscard]] bool UserWarning(std::string_view Text);   // false for No
  void ReportError(std::string_view Location, std::string_view Description,
                   std::string_view Procedure, double Number);

  // A plain box of the desktop, without a picture, under the program's name.
  void PlainBox(std::string_view text);

 private:
  Survey& survey_;
  Dialogs& dialogs_;
};

// What the program calls itself where no title is given.
inline constexpr char kProgramName[] = "Corvale Annual Survey";

}  // namespace survey

#endif  // FORMS_MESSAGE_BOXES_H_
