#include "grid/cell_entry.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "base/text.h"

namespace survey {
namespace {

constexpr int kFirstYear = 1900;
constexpr int kLastYear = 2100;
constexpr int kMostDigits = 300;  // more may be beyond what a number can hold

bool IsDigit(char character) { return '0' <= character && character <= '9'; }

bool IsDigits(std::string_view text) { return std::ranges::all_of(text, IsDigit); }

// ---- Numbers -------------------------------------------------------------------------------

// How a plain decimal number is written, complete or half typed.
struct NumberShape {
  bool negative = false;
  bool point = false;
  int digits = 0;  // decimals included
  int decimals = 0;
};

// None where a character has no place in a number. A comma has none: read as a decimal mark or
// passed over, it would give another number than the one meant.
std::optional<NumberShape> ShapeOf(std::string_view text) {
  NumberShape shape;
  if (text.starts_with('-')) {
    shape.negative = true;
    text.remove_prefix(1);
  }
  for (const char character : text) {
    if (character == '.' && !shape.point) {
      shape.point = true;
    } else if (IsDigit(character)) {
      ++shape.digits;
      shape.decimals += shape.point ? 1 : 0;
    } else {
      return std::nullopt;
    }
  }
  if (shape.digits > kMostDigits) return std::nullopt;
  return shape;
}

bool TakesShape(const CellKind& kind, const std::optional<NumberShape>& shape) {
  return shape && (!shape->negative || kind.minimum < 0) && (!shape->point || kind.decimals > 0) &&
         shape->decimals <= kind.decimals;
}

std::optional<std::string> CanonicalNumber(const CellKind& kind, const std::string& text) {
  const auto shape = ShapeOf(text);
  if (!TakesShape(kind, shape) || shape->digits == 0) return std::nullopt;
  const double number = LeadingNumber(text);
  if (number < kind.minimum || number > kind.maximum) return std::nullopt;
  return NumberText(number);
}

// More digits take a number only further from 0: past the far limit it is lost, while short of
// the near one it may still grow.
bool NumberMayGrow(const CellKind& kind, const std::string& text) {
  const auto shape = ShapeOf(text);
  if (!TakesShape(kind, shape)) return false;
  if (shape->digits == 0) return true;
  const double number = LeadingNumber(text);
  return shape->negative ? number >= kind.minimum : number <= kind.maximum;
}

// A maximum may stand between two numbers that the kind can write: 9999.99 lets in 9999.
std::string LargestText(const CellKind& kind) {
  double largest = RoundedTo(kind.maximum, kind.decimals);
  if (largest > kind.maximum) largest -= std::pow(10.0, -kind.decimals);
  return NumberText(RoundedTo(largest, kind.decimals));
}

std::string RequestOfNumber(const CellKind& kind) {
  const std::string range = "number from " + NumberText(kind.minimum) + " to " + LargestText(kind);
  if (kind.decimals == 0) return "Enter a whole " + range + ".";
  return "Enter a " + range + ", with at most " + std::to_string(kind.decimals) +
         (kind.decimals == 1 ? " decimal" : " decimals") + " after a point.";
}

// ---- Dates ---------------------------------------------------------------------------------

// The digits of a date typed as yyyymmdd, yyyy/mm/dd or yyyy-mm-dd, or of its beginning.
std::optional<std::string> DateDigits(std::string_view text) {
  const bool separated = text.size() > 4 && (text[4] == '/' || text[4] == '-');
  std::string digits;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (separated && (i == 4 || i == 7)) {
      if (text[i] != text[4]) return std::nullopt;
    } else if (IsDigit(text[i])) {
      digits += text[i];
    } else {
      return std::nullopt;
    }
  }
  if (digits.size() > 8) return std::nullopt;
  return digits;
}

// Whether the part of a date, as far as it is typed, can end up within its limits.
bool PartFits(std::string_view digits, std::size_t start, std::size_t width, int low, int high) {
  const std::string part(digits.substr(std::min(start, digits.size()), width));
  const std::string rest(width - part.size(), '0');
  const std::string nines(width - part.size(), '9');
  return std::stoi(part + nines) >= low && std::stoi(part + rest) <= high;
}

int LastDay(std::string_view digits) {
  if (digits.size() < 6) return 31;
  const std::chrono::year year(std::stoi(std::string(digits.substr(0, 4))));
  const std::chrono::month month(
      static_cast<unsigned>(std::stoi(std::string(digits.substr(4, 2)))));
  return static_cast<int>(static_cast<unsigned>((year / month / std::chrono::last).day()));
}

bool DateMayGrow(std::string_view digits) {
  return PartFits(digits, 0, 4, kFirstYear, kLastYear) && PartFits(digits, 4, 2, 1, 12) &&
         PartFits(digits, 6, 2, 1, LastDay(digits));
}

std::optional<std::string> CanonicalDate(std::string_view text) {
  const auto digits = DateDigits(text);
  if (!digits || digits->size() != 8 || !DateMayGrow(*digits)) return std::nullopt;
  return digits->substr(0, 4) + "/" + digits->substr(4, 2) + "/" + digits->substr(6);
}

// ---- Texts ---------------------------------------------------------------------------------

std::optional<std::string> CanonicalText(const CellKind& kind, std::string_view text) {
  if (!IsOneLine(text)) return std::nullopt;  // as a cell is
  std::string held = kind.upper_case ? UpperCase(text) : std::string(text);
  // Counted last: a capital may take more characters than the letter did.
  if (CharacterCount(held) > kind.length) return std::nullopt;
  return held;
}

}  // namespace

std::optional<std::string> CanonicalEntry(const CellKind& kind, std::string_view text) {
  if (kind.type == CellKind::Type::kLabel) return std::nullopt;
  if (kind.type == CellKind::Type::kText) return CanonicalText(kind, text);

  const std::string trimmed = Trim(text);
  if (trimmed.empty()) return trimmed;
  if (kind.type == CellKind::Type::kNumber) return CanonicalNumber(kind, trimmed);
  if (kind.type == CellKind::Type::kDate) return CanonicalDate(trimmed);
  const bool fits = kind.type == CellKind::Type::kDigits
                        ? IsDigits(trimmed) && std::ssize(trimmed) <= kind.length
                        : trimmed == "0" || trimmed == "1";
  return fits ? std::optional(trimmed) : std::nullopt;
}

bool MayBecomeEntry(const CellKind& kind, std::string_view text) {
  if (kind.type == CellKind::Type::kNumber) return NumberMayGrow(kind, Trim(text));
  if (kind.type == CellKind::Type::kDate) {
    const auto digits = DateDigits(Trim(text));
    return digits && DateMayGrow(*digits);
  }
  return CanonicalEntry(kind, text).has_value();
}

std::string RequestOf(const CellKind& kind) {
  const std::string length = std::to_string(kind.length);
  switch (kind.type) {
    case CellKind::Type::kNumber:
      return RequestOfNumber(kind);
    case CellKind::Type::kText:
      return "Enter one line of at most " + length + " characters.";
    case CellKind::Type::kDigits:
      return "Enter digits only, at most " + length + ".";
    case CellKind::Type::kDate:
      return "Enter a date as yyyy/mm/dd, from " + std::to_string(kFirstYear) + "/01/01 to " +
             std::to_string(kLastYear) + "/12/31.";
    case CellKind::Type::kCheckBox:
      return "Enter 1 for a ticked box, 0 for one that is not.";
    case CellKind::Type::kLabel:
      break;
  }
  return std::string(kTakesNothing);
}

std::optional<double> NumberHeld(std::string_view text) {
  if (text.empty()) return std::nullopt;
  const std::string trimmed = Trim(text);
  const auto shape = ShapeOf(trimmed);
  if (!shape || shape->digits == 0) return std::nullopt;
  return LeadingNumber(trimmed);
}

double RoundedTo(double number, int decimals) {
  const double scale = std::pow(10.0, decimals);
  return std::round(number * scale) / scale;
}

}  // namespace survey
