#ifndef TOOLS_TRIALS_TWIN_ENTRY_H_
#define TOOLS_TRIALS_TWIN_ENTRY_H_

#include <string>

#include "grid/grid_design.h"

namespace survey::testing {

// What the cells of the twin take (twin.h), written a second time and as simply as can be.

// Digits with at most one point, perhaps behind a minus sign.
bool IsNumber(const std::string& text);

// A number as it is written into a cell.
std::string Plain(double number, int decimals = 3);

// The text without blanks at its ends.
std::string Shorn(std::string text);

// Whether the cell takes the text, and what it then holds.
bool Takes(const CellKind& kind, const std::string& text, std::string& held);

}  // namespace survey::testing

#endif  // TOOLS_TRIALS_TWIN_ENTRY_H_
