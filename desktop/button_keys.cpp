#include "desktop/button_keys.h"

#include <QStringList>

namespace survey {
namespace {

struct ButtonKey {
  QKeySequence key;
  QStringList captions;
};

// By captions, since a name does not tell where a button leads: on some pages cmdNext reads
// "Previous". No form has two buttons of one line.
const std::vector<ButtonKey>& ButtonKeys() {
  static const std::vector<ButtonKey> keys = {
      {Qt::CTRL | Qt::Key_S, {"Save", "Save Data", "SAVE Subject"}},
      {Qt::CTRL | Qt::Key_P, {"Print Page", "Print Staff List", "Print Campus Survey"}},
      {Qt::CTRL | Qt::Key_PageDown, {"Next Page", "Next"}},
      {Qt::CTRL | Qt::Key_PageUp, {"Previous Page", "Previous", "Previous Section"}},
      {Qt::CTRL | Qt::Key_M, {"Menu", "Main Menu", "Staff List"}},
  };
  return keys;
}

}  // namespace

QKeySequence KeyOfButton(const QString& caption) {
  for (const ButtonKey& row : ButtonKeys()) {
    if (row.captions.contains(caption)) return row.key;
  }
  return {};
}

}  // namespace survey
