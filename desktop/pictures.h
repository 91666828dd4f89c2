#ifndef DESKTOP_PICTURES_H_
#define DESKTOP_PICTURES_H_

#include <QIcon>
#include <QPixmap>

#include "platform/dialogs.h"

namespace survey {

// The program's own pictures, which desktop/pictures holds as drawings.

// Picture of a message box; null for Picture::kNone. `size` is the side in logical pixels,
// `pixel_ratio` that of the screen it is for.
QPixmap BoxPicture(Picture picture, int size, qreal pixel_ratio);

// Icon of the program's windows.
QIcon ProgramIcon();

}  // namespace survey

#endif  // DESKTOP_PICTURES_H_
