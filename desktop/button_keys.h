#ifndef DESKTOP_BUTTON_KEYS_H_
#define DESKTOP_BUTTON_KEYS_H_

#include <QKeySequence>

namespace survey {

// The key that presses a button from anywhere on its form, by what the button reads; empty for a
// button that has none of its own.
QKeySequence KeyOfButton(const QString& caption);

}  // namespace survey

#endif  // DESKTOP_BUTTON_KEYS_H_
