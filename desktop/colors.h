#ifndef DESKTOP_COLORS_H_
#define DESKTOP_COLORS_H_

#include <QColor>

#include "grid/color.h"

namespace survey {

// A colour of the survey's own, as Qt has it. kButtonFace is none: it stands for the desktop's.
inline QColor ToQColor(Color color) {
  return {static_cast<int>(color & 0xFFU), static_cast<int>((color >> 8U) & 0xFFU),
          static_cast<int>((color >> 16U) & 0xFFU)};
}

}  // namespace survey

#endif  // DESKTOP_COLORS_H_
