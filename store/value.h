#ifndef STORE_VALUE_H_
#define STORE_VALUE_H_

#include <string>
#include <variant>

namespace survey {

// A field of a record: null, a number or a text (UTF-8).
class Value {
 public:
  Value() = default;  // null
  explicit Value(double number) : content_(number) {}
  explicit Value(std::string text) : content_(std::move(text)) {}

  bool IsNull() const { return std::holds_alternative<std::monostate>(content_); }

  bool IsNumber() const { return std::holds_alternative<double>(content_); }

  // True for null and for the empty text.
  bool IsEmpty() const;

  // The field as text: "" for null, a number in its plain shortest form.
  std::string Text() const;

  // The field as a number: a text gives its leading number. Throws InvalidUseOfNull() for null,
  // because a null is not 0.
  double Number() const;

  // True when the field is a number (or a text that reads as one) equal to `code`; false for null.
  bool Is(double code) const;

 private:
  std::variant<std::monostate, double, std::string> content_;
};

}  // namespace survey

#endif  // STORE_VALUE_H_
