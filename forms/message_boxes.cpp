#include "forms/message_boxes.h"

#include "base/text.h"

namespace survey {
namespace {

constexpr int kYesNoDefaultNo = kYesNo + kSecondButtonDefault;

}  // namespace

MessageBoxes::MessageBoxes(Survey& survey, Dialogs& dialogs) : survey_(survey), dialogs_(dialogs) {}

int MessageBoxes::ExtendedMsgBox(std::string_view Prompt, int Type, std::string_view Title,
                                 Picture Icon, std::string_view CursorPath) {
  survey_.EndStatements();
  if (!CursorPath.empty() || Icon != Picture::kNone) Type = (Type & ~kIconMask) | kInformationIcon;
  return dialogs_.ShowMessage({.prompt = std::string(Prompt),
                               .type = Type,
                               .title = std::string(Title),
                               .picture = Icon,
                               .cursor_path = std::string(CursorPath)});
}

void MessageBoxes::UserMessage(std::string_view Text) {
  ExtendedMsgBox(Text, kOkOnly, "User Message", Picture::kMessage, "");
}

bool MessageBoxes::UserQuestion(std::string_view Text) {
  return ExtendedMsgBox(Text, kYesNoDefaultNo, "User Question?", Picture::kQuestion, "") !=
         kAnswerNo;
}

bool MessageBoxes::UserWarning(std::string_view Text) {
  return ExtendedMsgBox(Text, kYesNoDefaultNo, "User Warning", Picture::kStop, "") != kAnswerNo;
}

void MessageBoxes::ReportError(std::string_view Location, std::string_view Description,
                               std::string_view Procedure, double Number) {
  std::string message = "Error Description: ";
  message.append(Description).append("\r\nLocation: ").append(Location);
  message.append("\r\nProcedure: ").append(Procedure);
  ExtendedMsgBox(message, kOkOnly, "Error : " + NumberText(Number), Picture::kError, "");
}

void MessageBoxes::PlainBox(std::string_view text) {
  ExtendedMsgBox(text, kOkOnly, kProgramName, Picture::kNone, "");
}

}  // namespace survey
