#include "store/value.h"

#include <charconv>

#include "base/run_time_error.h"
#include "base/text.h"

namespace survey {

bool Value::IsEmpty() const {
  const auto* text = std::get_if<std::string>(&content_);
  return IsNull() || (text && text->empty());
}

std::string Value::Text() const {
  if (const auto* number = std::get_if<double>(&content_)) return NumberText(*number);
  if (const auto* text = std::get_if<std::string>(&content_)) return *text;
  return {};
}

double Value::Number() const {
  if (const auto* number = std::get_if<double>(&content_)) return *number;
  if (const auto* text = std::get_if<std::string>(&content_)) return LeadingNumber(*text);
  throw InvalidUseOfNull();
}

bool Value::Is(double code) const {
  if (const auto* number = std::get_if<double>(&content_)) return *number == code;
  const std::string text = Trim(Text());
  double number = 0;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  return result.ec == std::errc() && result.ptr == end && number == code;
}

}  // namespace survey
