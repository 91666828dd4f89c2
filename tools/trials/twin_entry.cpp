#include "twin_entry.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace survey::testing {

bool IsNumber(const std::string& text) {
  int digits = 0, points = 0;
  for (std::size_t i = text.starts_with('-') ? 1 : 0; i < text.size(); ++i) {
    if (text[i] == '.') {
      ++points;
    } else if ('0' <= text[i] && text[i] <= '9') {
      ++digits;
    } else {
      return false;
    }
  }
  return digits > 0 && points <= 1;
}

std::string Plain(double number, int decimals) {
  const double scale = std::pow(10, decimals);
  number = std::round(number * scale) / scale;  // a half goes up, as in the totals
  char text[400];
  std::snprintf(text, sizeof text, "%.*f", decimals, number);
  std::string plain = text;
  if (decimals == 0) return plain == "-0" ? "0" : plain;
  while (plain.ends_with('0')) plain.pop_back();
  if (plain.ends_with('.')) plain.pop_back();
  return plain == "-0" ? "0" : plain;
}

std::string Shorn(std::string text) {
  while (text.ends_with(' ')) text.pop_back();
  while (text.starts_with(' ')) text.erase(0, 1);
  return text;
}

namespace {

bool TakesNumber(const CellKind& kind, const std::string& text) {
  if (!IsNumber(text)) return false;
  const auto point = text.find('.');
  if (point != text.npos && kind.decimals == 0) return false;
  if (point != text.npos && text.size() - point - 1 > static_cast<std::size_t>(kind.decimals)) {
    return false;
  }
  if (text.starts_with('-') && kind.minimum >= 0) return false;
  const double number = std::strtod(text.c_str(), nullptr);
  return kind.minimum <= number && number <= kind.maximum;
}

bool TakesText(const CellKind& kind, const std::string& text) {
  int letters = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte < 32 || byte == 127) return false;
    if ((byte & 0xC0) != 0x80) ++letters;
  }
  return letters <= kind.length;
}

bool TakesDate(const std::string& digits) {
  if (digits.size() != 8) return false;
  const int year = std::atoi(digits.substr(0, 4).c_str());
  const int month = std::atoi(digits.substr(4, 2).c_str());
  const int day = std::atoi(digits.substr(6).c_str());
  constexpr int kDays[] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (year < 1900 || year > 2100 || month < 1 || month > 12) return false;
  const bool leap = month == 2 && year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
  return day >= 1 && day <= kDays[month] + (leap ? 1 : 0);
}

bool AllDigits(const std::string& text) {
  return std::ranges::all_of(text, [](char c) { return '0' <= c && c <= '9'; });
}

}  // namespace

bool Takes(const CellKind& kind, const std::string& text, std::string& held) {
  const std::string shorn = Shorn(text);
  held = shorn;
  switch (kind.type) {
    case CellKind::Type::kLabel:
      return false;
    case CellKind::Type::kText:
      held = text;
      if (kind.upper_case) {
        for (char& c : held) c = static_cast<char>('a' <= c && c <= 'z' ? c - 32 : c);
      }
      return TakesText(kind, text);
    case CellKind::Type::kNumber:
      if (shorn.empty()) return true;
      if (!TakesNumber(kind, shorn)) return false;
      held = Plain(std::strtod(shorn.c_str(), nullptr));
      return true;
    case CellKind::Type::kDigits:
      return AllDigits(shorn) && shorn.size() <= static_cast<std::size_t>(kind.length);
    case CellKind::Type::kCheckBox:
      return shorn.empty() || shorn == "0" || shorn == "1";
    case CellKind::Type::kDate: {
      if (shorn.empty()) return true;
      std::string digits = shorn;
      if (digits.size() == 10 && (digits[4] == '/' || digits[4] == '-') && digits[7] == digits[4]) {
        digits.erase(7, 1).erase(4, 1);
      }
      if (!AllDigits(digits) || !TakesDate(digits)) return false;
      held = digits.substr(0, 4) + "/" + digits.substr(4, 2) + "/" + digits.substr(6);
      return true;
    }
  }
  return false;
}

}  // namespace survey::testing
