#include "desktop/system_habits.h"

#include <QApplication>
#include <QFont>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace survey {

#ifdef Q_OS_WIN

const bool kPrintDialogServesFiles = false;

bool IsJobGivenUp() {
  const DWORD error = GetLastError();
  return error == ERROR_CANCELLED || error == ERROR_PRINT_CANCELLED;
}

void UseSharpFonts() {
  QFont font = QApplication::font();
  font.setHintingPreference(QFont::PreferVerticalHinting);
  QApplication::setFont(font);
}

void SoundBox(Picture picture) {
  switch (picture) {
    case Picture::kQuestion:
      MessageBeep(MB_ICONQUESTION);
      break;
    case Picture::kStop:
    case Picture::kError:
      MessageBeep(MB_ICONERROR);
      break;
    case Picture::kMessage:
    case Picture::kSaved:
      MessageBeep(MB_ICONINFORMATION);
      break;
    case Picture::kNone:
      MessageBeep(MB_OK);
  }
}

#else

const bool kPrintDialogServesFiles = true;

bool IsJobGivenUp() { return false; }

void UseSharpFonts() {}

void SoundBox(Picture) {}

#endif

}  // namespace survey
