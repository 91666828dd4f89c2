#ifndef DESKTOP_SYSTEM_HABITS_H_
#define DESKTOP_SYSTEM_HABITS_H_

#include "platform/dialogs.h"

namespace survey {

// What differs between the desktops of Windows and of Linux, all in one place.

// Whether the print dialog can print to a file. The one of Windows serves printers alone: what it
// writes into a file is in the printer's language, and nobody could open it.
extern const bool kPrintDialogServesFiles;

// Whether the job that just failed to begin was given up by the user: some printers of Windows
// write files, and ask for the name in a dialog of their own. To be asked at once.
bool IsJobGivenUp();

// Has all texts drawn by DirectWrite, where the system's older way loses small letters.
void UseSharpFonts();

// The system's sound for a box with that picture, where boxes sound.
void SoundBox(Picture picture);

}  // namespace survey

#endif  // DESKTOP_SYSTEM_HABITS_H_
