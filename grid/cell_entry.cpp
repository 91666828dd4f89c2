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

// ---- Signs ---------------------------------------------------------------------------------

// `text` without blanks at its ends, its blanks and dashes those of a keyboard: texts from other
// programs bring the printer's.
std::string PlainSigns(std::string_view text) {
  struct Sign {
    std::string_view found;
    char plain;
  };
  static constexpr Sign kSigns[] = {
      {"\u00A0", ' '}, {"\u2009", ' '}, {"\u202F", ' '}, {"\u2010", '-'},
      {"\u2011", '-'}, {"\u2012", '-'}, {"\u2013", '-'}, {"\u2212", '-'},
  };
  std::string plain(text);
  for (const Sign& sign : kSigns) {
    for (std::size_t at = plain.find(sign.found); at != plain.npos; at = plain.find(sign.found)) {
      plain.replace(at, sign.found.size(), 1, sign.plain);
    }
  }
  return Trim(plain);
}

// ---- Numbers -------------------------------------------------------------------------------

constexpr int kNotGrouped = -1;
constexpr int kGroup = 3;  // digits between two blanks

// A number as it is written, complete or half typed.
struct WrittenNumber {
  std::string plain;  // without blanks, the decimal mark a point
  bool negative = false;
  bool point = false;
  int digits = 0;  // decimals included
  int decimals = 0;
  int group = kNotGrouped;  // digits since the last blank

  bool HasWholeGroups() const { return group == kNotGrouped || group == kGroup; }
};

// Whether a blank may follow what has been read, that is, begin the next group of three.
bool MayBeginGroup(const WrittenNumber& read) {
  const bool after_first = read.group == kNotGrouped && 0 < read.digits && read.digits <= kGroup;
  return !read.point && (after_first || read.group == kGroup);
}

// None where a character has no place in a number. The mark is a point, and where `comma` a comma
// just as well; nowhere does either stand between groups.
std::optional<WrittenNumber> ReadNumber(std::string_view text, bool comma) {
  WrittenNumber read;
  for (const char character : text) {
    if (character == '-' && read.plain.empty()) {
      read.negative = true;
      read.plain += '-';
    } else if (character == ' ' && MayBeginGroup(read)) {
      read.group = 0;
    } else if (character == '.' || (comma && character == ',')) {
      if (read.point || !read.HasWholeGroups()) return std::nullopt;
      read.point = true;
      read.plain += '.';
    } else if (IsDigit(character)) {
      const bool grouped = read.group != kNotGrouped && !read.point;
      if (grouped && ++read.group > kGroup) return std::nullopt;
      ++read.digits;
      read.decimals += read.point ? 1 : 0;
      read.plain += character;
    } else {
      return std::nullopt;
    }
  }
  if (read.digits > kMostDigits) return std::nullopt;
  return read;
}

// None where the kind does not take the sign, the mark or so many decimals either.
std::optional<WrittenNumber> ReadNumber(const CellKind& kind, std::string_view text) {
  auto read = ReadNumber(text, kind.decimals > 0);
  const bool taken = read && (!read->negative || kind.minimum < 0) &&
                     (!read->point || kind.decimals > 0) && read->decimals <= kind.decimals;
  return taken ? std::move(read) : std::nullopt;
}

std::optional<std::string> CanonicalNumber(const CellKind& kind, std::string_view text) {
  const auto read = ReadNumber(kind, text);
  if (!read || read->digits == 0 || !read->HasWholeGroups()) return std::nullopt;
  const double number = LeadingNumber(read->plain);
  if (number < kind.minimum || number > kind.maximum) return std::nullopt;
  return NumberText(number);
}

// Whether more digits can bring a number between the limits: each makes it ten times as large, and
// larger by less than its last place; after the point only the latter.
bool NumberMayGrow(const CellKind& kind, std::string_view text) {
  const auto read = ReadNumber(kind, text);
  if (!read) return false;
  if (read->digits == 0) return true;
  const double size = std::abs(LeadingNumber(read->plain));
  const double low = read->negative ? -kind.maximum : kind.minimum;
  const double high = read->negative ? -kind.minimum : kind.maximum;
  if (read->point) return size <= high && size + std::pow(10.0, -read->decimals) > low;
  double scale = read->HasWholeGroups() ? 1 : std::pow(10.0, kGroup - read->group);
  while (size * scale <= high && (size + 1) * scale <= low) scale *= 10;
  return size * scale <= high;
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

constexpr std::string_view kDateSeparators = "/-.";

// The digits of a date typed as yyyymmdd or yyyy/mm/dd, be it with another separator, or of its
// beginning. With the year first it cannot be misread.
std::optional<std::string> DateDigits(std::string_view text) {
  const bool separated = text.size() > 4 && kDateSeparators.find(text[4]) != kDateSeparators.npos;
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

// ---- Codes and telephone numbers -----------------------------------------------------------

// The digits of a code, or of its beginning. Blanks, hyphens and brackets only make them easier to
// read, but a hyphen before them all is the sign of a number.
std::optional<std::string> CodeDigits(std::string_view text) {
  if (text.starts_with('-')) return std::nullopt;
  std::string digits;
  for (const char character : text) {
    if (IsDigit(character)) {
      digits += character;
    } else if (std::string_view(" -()").find(character) == std::string_view::npos) {
      return std::nullopt;
    }
  }
  return digits;
}

std::optional<std::string> CanonicalCode(const CellKind& kind, std::string_view text) {
  const auto digits = CodeDigits(text);
  return digits && !digits->empty() && std::ssize(*digits) <= kind.length ? digits : std::nullopt;
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

  const std::string plain = PlainSigns(text);
  if (plain.empty()) return plain;
  if (kind.type == CellKind::Type::kNumber) return CanonicalNumber(kind, plain);
  if (kind.type == CellKind::Type::kDate) return CanonicalDate(plain);
  if (kind.type == CellKind::Type::kDigits) return CanonicalCode(kind, plain);
  return plain == "0" || plain == "1" ? std::optional(plain) : std::nullopt;
}

bool MayBecomeEntry(const CellKind& kind, std::string_view text) {
  const std::string plain = PlainSigns(text);
  if (kind.type == CellKind::Type::kNumber) return NumberMayGrow(kind, plain);
  if (kind.type == CellKind::Type::kDate) {
    const auto digits = DateDigits(plain);
    return digits && DateMayGrow(*digits);
  }
  if (kind.type == CellKind::Type::kDigits) {
    const auto digits = CodeDigits(plain);
    return digits && std::ssize(*digits) <= kind.length;
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

std::string LimitsOf(const CellKind& kind) {
  const std::string length = std::to_string(kind.length);
  switch (kind.type) {
    case CellKind::Type::kNumber: {
      const std::string range = NumberText(kind.minimum) + " to " + LargestText(kind);
      if (kind.decimals == 0) return range + ", whole number";
      return range + ", up to " + std::to_string(kind.decimals) +
             (kind.decimals == 1 ? " decimal" : " decimals");
    }
    case CellKind::Type::kText:
      return "text, up to " + length + " characters";
    case CellKind::Type::kDigits:
      return "digits only, up to " + length;
    case CellKind::Type::kDate:
      return "date, yyyy/mm/dd";
    case CellKind::Type::kCheckBox:
      return "box to tick, space bar";
    case CellKind::Type::kLabel:
      break;
  }
  return {};
}

std::optional<double> NumberHeld(std::string_view text) {
  if (text.empty()) return std::nullopt;
  const auto read = ReadNumber(Trim(text), false);
  if (!read || read->digits == 0 || read->group != kNotGrouped) return std::nullopt;
  return LeadingNumber(read->plain);
}

double RoundedTo(double number, int decimals) {
  const double scale = std::pow(10.0, decimals);
  return std::round(number * scale) / scale;
}

}  // namespace survey
