#ifndef BASE_TEXT_H_
#define BASE_TEXT_H_

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace survey {

// The number that `text` gives from its start: blanks are passed over, reading stops at the first
// character that cannot belong to a decimal number ("12 A" is 12, "" and "A" are 0). The decimal
// mark is the point, whatever the user's locale.
double LeadingNumber(std::string_view text);

// The shortest plain decimal text that gives `number` back: no exponent, no decimal point for a
// whole number, "-0" never.
std::string NumberText(double number);

// `number` as a whole number, rounded half to even. Throws Overflow() when it does not fit 32
// bits (or 16 bits).
std::int32_t ToWholeNumber(double number);
std::int16_t ToSmallWholeNumber(double number);

// Number of characters (Unicode code points) of a UTF-8 text; lengths of cells are told in them.
int CharacterCount(std::string_view text);

// The first `count` characters of a UTF-8 text; all of it where it has fewer.
std::string FirstCharacters(std::string_view text, int count);

// The characters of a UTF-8 text for which `keep` holds.
std::string KeepCharacters(std::string_view text, const std::function<bool(char32_t)>& keep);

// No control character is in the text, and no line or paragraph separator.
bool IsOneLine(std::string_view text);

// `text` in capitals, accented letters included.
std::string UpperCase(std::string_view text);

// What texts that differ in the case of their letters alone have in common, accented letters
// included: "WÊRELD" and "Wêreld" give the same. One letter, however it is composed, is one.
std::string FoldCase(std::string_view text);

// The order in which lists show texts: without regard to case, an accented letter beside its plain
// one. Below 0 when `left` comes first; 0 only for texts that FoldCase makes the same.
int CompareTexts(std::string_view left, std::string_view right);

// Whether `text` begins with `beginning`, without regard to case.
bool BeginsWith(std::string_view text, std::string_view beginning);

// True for a text of plain letters, digits and signs: no accents, one byte a character.
bool IsAscii(std::string_view text);

// `text` without blanks at its ends.
std::string Trim(std::string_view text);

bool IsValidUtf8(std::string_view text);
// The same text where it is valid and holds no zero byte; else with a replacement character for
// what cannot be read.
std::string ToValidUtf8(std::string_view text);

// True when the two differ in the case of plain letters at most: names of tables and columns are
// spelled in any case.
bool EqualsIgnoringCase(std::string_view left, std::string_view right);

// The path that a UTF-8 text names, and back: paths are UTF-8 throughout the program.
std::filesystem::path ToPath(std::string_view text);
std::string Utf8(const std::filesystem::path& path);

}  // namespace survey

#endif  // BASE_TEXT_H_
