#include "base/text.h"

#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>

#include "base/run_time_error.h"

namespace survey {
namespace {

icu::UnicodeString FromUtf8(std::string_view text) {
  return icu::UnicodeString::fromUTF8({text.data(), static_cast<std::int32_t>(text.size())});
}

// The characters at the start of `text` that make a decimal number, without blanks in between:
// figures are also typed as "12 500".
std::string LeadingDigits(std::string_view text) {
  std::string digits;
  bool has_point = false;
  for (const char c : text) {
    if (c == ' ' || c == '\t' || c == '\r' || c == '\n') continue;
    const bool sign = (c == '-' || c == '+') && digits.empty();
    const bool point = c == '.' && !has_point;
    if (!sign && !point && (c < '0' || c > '9')) break;
    has_point = has_point || point;
    digits += c;
  }
  return digits;
}

template <typename Whole>
Whole RoundTo(double number) {
  const double rounded = std::nearbyint(number);  // half to even, the mode every program starts in
  if (!(rounded >= std::numeric_limits<Whole>::min() &&
        rounded <= std::numeric_limits<Whole>::max())) {
    throw Overflow();
  }
  return static_cast<Whole>(rounded);
}

char LowerLetter(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

using Form = const icu::Normalizer2* (*)(UErrorCode&);

icu::UnicodeString Normalized(const icu::UnicodeString& text, Form form) {
  UErrorCode status = U_ZERO_ERROR;
  icu::UnicodeString normalized = form(status)->normalize(text, status);
  return U_SUCCESS(status) ? normalized : text;
}

// A folded text without the marks above and below its letters.
std::string WithoutMarks(std::string_view folded) {
  const icu::UnicodeString apart = Normalized(FromUtf8(folded), icu::Normalizer2::getNFDInstance);
  icu::UnicodeString letters;
  for (std::int32_t i = 0; i < apart.length(); i = apart.moveIndex32(i, 1)) {
    const UChar32 letter = apart.char32At(i);
    if (u_charType(letter) != U_NON_SPACING_MARK) letters += letter;
  }
  std::string plain;
  letters.toUTF8String(plain);
  return plain;
}

}  // namespace

double LeadingNumber(std::string_view text) {
  const std::string digits = LeadingDigits(text);
  const char* first = digits.data() + (digits.starts_with('+') ? 1 : 0);
  double number = 0;
  const auto result = std::from_chars(first, digits.data() + digits.size(), number);
  if (result.ec == std::errc::result_out_of_range) throw Overflow();
  return number;
}

std::string NumberText(double number) {
  if (number == 0) return "0";
  std::array<char, 1200> buffer;  // the smallest numbers have over a thousand digits written out
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed);
  return {buffer.data(), result.ptr};
}

std::int32_t ToWholeNumber(double number) { return RoundTo<std::int32_t>(number); }

std::int16_t ToSmallWholeNumber(double number) { return RoundTo<std::int16_t>(number); }

int CharacterCount(std::string_view text) { return FromUtf8(text).countChar32(); }

std::string FirstCharacters(std::string_view text, int count) {
  const icu::UnicodeString all = FromUtf8(text);
  std::string first;
  return all.tempSubString(0, all.moveIndex32(0, count)).toUTF8String(first);
}

std::string KeepCharacters(std::string_view text, const std::function<bool(char32_t)>& keep) {
  const icu::UnicodeString all = FromUtf8(text);
  icu::UnicodeString kept;
  for (int at = 0; at < all.length(); at = all.moveIndex32(at, 1)) {
    if (keep(static_cast<char32_t>(all.char32At(at)))) kept.append(all.char32At(at));
  }
  std::string result;
  return kept.toUTF8String(result);
}

bool IsOneLine(std::string_view text) {
  constexpr std::uint32_t kBreaks = U_GC_CC_MASK | U_GC_ZL_MASK | U_GC_ZP_MASK;
  const icu::UnicodeString all = FromUtf8(text);
  for (int at = 0; at < all.length(); at = all.moveIndex32(at, 1)) {
    if ((U_GET_GC_MASK(all.char32At(at)) & kBreaks) != 0) return false;
  }
  return true;
}

std::string UpperCase(std::string_view text) {
  std::string capitals;
  FromUtf8(text).toUpper(icu::Locale::getRoot()).toUTF8String(capitals);
  return capitals;
}

std::string FoldCase(std::string_view text) {
  std::string folded;
  if (IsAscii(text)) {
    std::ranges::transform(text, std::back_inserter(folded), LowerLetter);
  } else {
    Normalized(FromUtf8(text).foldCase(), icu::Normalizer2::getNFCInstance).toUTF8String(folded);
  }
  return folded;
}

int CompareTexts(std::string_view left, std::string_view right) {
  const std::string first = FoldCase(left);
  const std::string second = FoldCase(right);
  if (IsAscii(left) && IsAscii(right)) return first.compare(second);
  const int by_letter = WithoutMarks(first).compare(WithoutMarks(second));
  return by_letter != 0 ? by_letter : first.compare(second);
}

bool BeginsWith(std::string_view text, std::string_view beginning) {
  const std::string_view start = text.substr(0, beginning.size());
  if (IsAscii(start) && IsAscii(beginning)) return EqualsIgnoringCase(start, beginning);
  return FoldCase(text).starts_with(FoldCase(beginning));
}

bool IsAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<signed char>(c) >= 0; });
}

std::string Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

bool IsValidUtf8(std::string_view text) {
  std::string back;
  FromUtf8(text).toUTF8String(back);
  return back == text;  // what is not valid was replaced on the way
}

std::string ToValidUtf8(std::string_view text) {
  const bool readable_as_it_is = IsAscii(text) || IsValidUtf8(text);
  if (readable_as_it_is && text.find('\0') == text.npos) return std::string(text);
  icu::UnicodeString readable = FromUtf8(text);
  readable.findAndReplace(icu::UnicodeString(char16_t{0}), icu::UnicodeString(char16_t{0xFFFD}));
  std::string valid;
  return readable.toUTF8String(valid);
}

bool EqualsIgnoringCase(std::string_view left, std::string_view right) {
  return std::ranges::equal(left, right, {}, LowerLetter, LowerLetter);
}

std::filesystem::path ToPath(std::string_view text) {
  return std::u8string(text.begin(), text.end());
}

std::string Utf8(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace survey
