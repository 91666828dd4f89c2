#ifndef DESKTOP_KEYS_H_
#define DESKTOP_KEYS_H_

#include <QKeyEvent>
#include <QKeySequence>

#include "forms/control_kinds.h"

namespace survey {

// Either Enter key: that of the main block or that of the keypad.
bool IsEnter(const QKeyEvent& event);

// The key does nothing by itself but to change what others do.
bool IsModifier(const QKeyEvent& event);

// The key types a character, and is no command.
bool IsCharacter(const QKeyEvent& event);

// The key that presses the button of this role from anywhere on its form; empty for none.
QKeySequence KeyOf(ButtonRole role);

}  // namespace survey

#endif  // DESKTOP_KEYS_H_
