#ifndef GRID_CELL_ENTRY_H_
#define GRID_CELL_ENTRY_H_

#include <optional>
#include <string>
#include <string_view>

#include "grid/grid_design.h"

namespace survey {

// What a cell of `kind` holds once the user has entered `text`, typed or pasted: numbers without
// blanks and leading zeros, their decimal mark a point; codes as their digits alone; capitals;
// dates as yyyy/mm/dd. "" empties a cell of any kind but a label. None when the kind does not take
// the text as a whole: no part of it is ever taken alone, nor read otherwise than it was meant.
//
// Read as meant are blanks between groups of three digits ("1 234"), a comma for the point where
// the kind has decimals, and blanks, hyphens and brackets in a code. The user's locale does not
// matter.
std::optional<std::string> CanonicalEntry(const CellKind& kind, std::string_view text);

// Whether more characters after `text` could still make it an entry of `kind`, or it is one. Never
// no where one is taken.
bool MayBecomeEntry(const CellKind& kind, std::string_view text);

// What is said of a label.
inline constexpr std::string_view kTakesNothing = "This cell takes no entry.";

// What the kind takes, as a request to the user: "Enter a whole number from 0 to 99999."
std::string RequestOf(const CellKind& kind);

// The same in a few words, "0 to 99999, whole number"; "" of a label.
std::string LimitsOf(const CellKind& kind);

// The number that a sum finds in a cell: none in an empty cell and in words, even where these
// begin with a digit.
std::optional<double> NumberHeld(std::string_view text);

// `number` with at most so many decimals.
double RoundedTo(double number, int decimals);

}  // namespace survey

#endif  // GRID_CELL_ENTRY_H_
