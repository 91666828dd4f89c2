#include "desktop/keys.h"

namespace survey {

bool IsEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool IsModifier(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
      return true;
    default:
      return false;
  }
}

bool IsCharacter(const QKeyEvent& event) {
  const bool command =
      (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
  return !command && !event.text().isEmpty() && event.text().at(0).isPrint();
}

QKeySequence KeyOf(ButtonRole role) {
  switch (role) {
    case ButtonRole::kSave:
      return Qt::CTRL | Qt::Key_S;
    case ButtonRole::kPrint:
      return Qt::CTRL | Qt::Key_P;
    case ButtonRole::kNext:
      return Qt::CTRL | Qt::Key_PageDown;
    case ButtonRole::kPrevious:
      return Qt::CTRL | Qt::Key_PageUp;
    case ButtonRole::kMenu:
      return Qt::CTRL | Qt::Key_M;
    case ButtonRole::kCancel:
      return Qt::Key_Escape;
    case ButtonRole::kNone:
      break;
  }
  return {};
}

}  // namespace survey
