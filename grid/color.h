#ifndef GRID_COLOR_H_
#define GRID_COLOR_H_

#include <cstdint>

namespace survey {

// A colour as the survey writes it: 0xBBGGRR, so that 65535 is yellow and 255 is red.
using Color = std::uint32_t;

constexpr Color Rgb(unsigned red, unsigned green, unsigned blue) {
  return red | (green << 8U) | (blue << 16U);
}

inline constexpr Color kYellow = 65535;    // unsaved mark; a cell that must be filled
inline constexpr Color kGreen = 65280;     // a total that balances
inline constexpr Color kRed = 255;         // a total that does not
inline constexpr Color kWhite = 16777215;  // an open cell
inline constexpr Color kLockedGrey = Rgb(223, 223, 223);
inline constexpr Color kButtonFace = 0x8000000F;  // the desktop's own button colour

}  // namespace survey

#endif  // GRID_COLOR_H_
