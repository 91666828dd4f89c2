#include "store/dialect.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <chrono>
#include <cstddef>

#include "base/run_time_error.h"
#include "base/text.h"
#include "store/letters.h"

namespace survey {
namespace {

[[noreturn]] void Refuse(const std::string& reason) {
  constexpr double kStatementError = 1;  // the engine's number for a statement it cannot read
  throw RunTimeError(kStatementError, reason);
}

// Takes `digits` figures at most from the start of `text`; -1 where there is none.
int TakeNumber(std::string_view& text, std::size_t digits) {
  int number = -1;
  const char* end = text.data() + std::min(digits, text.size());
  const auto result = std::from_chars(text.data(), end, number);
  text.remove_prefix(static_cast<std::size_t>(result.ptr - text.data()));
  return number;
}

bool TakeSlash(std::string_view& text) {
  const bool taken = text.starts_with('/');
  if (taken) text.remove_prefix(1);
  return taken;
}

std::string Padded(int number, std::size_t width) {
  const std::string digits = std::to_string(number);
  return std::string(width - std::min(width, digits.size()), '0') + digits;
}

// A date as it is stored: year, month and day with zeros, so that dates sort as texts do.
std::string StoredDate(std::string_view date) {
  std::string_view rest = date;
  const int year = TakeNumber(rest, 4);
  bool complete = date.size() - rest.size() == 4 && TakeSlash(rest);
  const int month = TakeNumber(rest, 2);
  complete = complete && TakeSlash(rest);
  const int day = TakeNumber(rest, 2);
  const bool is_day = year >= 0 && month > 0 && day > 0 &&
                      std::chrono::year_month_day(std::chrono::year(year),
                                                  std::chrono::month(static_cast<unsigned>(month)),
                                                  std::chrono::day(static_cast<unsigned>(day)))
                          .ok();
  if (!complete || !is_day || !rest.empty()) {
    Refuse("\"" + std::string(date) + "\" is not a date of the form yyyy/mm/dd");
  }
  return Padded(year, 4) + "/" + Padded(month, 2) + "/" + Padded(day, 2);
}

// The quoted piece at the start of `text`, with both its quotes; a doubled quote stands for one
// inside it.
std::string_view QuotedPiece(std::string_view text, char closing) {
  auto end = text.find(closing, 1);
  while (end != std::string_view::npos && text.substr(end + 1).starts_with(closing)) {
    end = text.find(closing, end + 2);
  }
  if (end == std::string_view::npos) {
    Refuse(std::string("a ") + text.front() + " in the statement is not closed");
  }
  return text.substr(0, end + 1);
}

char ClosingQuote(char opening) { return opening == '[' ? ']' : opening; }

bool IsWordPart(char c) {
  return c == '_' || c == '.' || std::isalnum(static_cast<unsigned char>(c)) != 0;
}

// Turns one statement into the engine's, from its start to its end.
class Translation {
 public:
  explicit Translation(std::string_view statement) : rest_(statement) {
    sql_.reserve(statement.size() + 16);
  }

  std::string Run() {
    while (!rest_.empty()) {
      const std::string_view piece = NextPiece();
      Take(piece);
      rest_.remove_prefix(piece.size());
    }
    return std::move(sql_);
  }

 private:
  std::string_view NextPiece() const {
    const char c = rest_.front();
    if (std::string_view("'\"[`#").find(c) != std::string_view::npos) {
      return QuotedPiece(rest_, ClosingQuote(c));
    }
    const auto word_end = std::ranges::find_if_not(rest_, IsWordPart);
    return rest_.substr(0, std::max<std::size_t>(1, word_end - rest_.begin()));
  }

  void Take(std::string_view piece) {
    const char c = piece.front();
    if (c == '#') {
      sql_ += '\'' + StoredDate(piece.substr(1, piece.size() - 2)) + '\'';
    } else if (rest_.starts_with("--") || rest_.starts_with("/*")) {
      Refuse("a statement holds no comments");
    } else if (c == '&') {
      // Joining two operands gives a text that stands for true, whatever they are; a number that
      // is joined to a mark of its own differs from every number and from null, so this is true
      // as well, and binds as an equals sign in this place would.
      sql_ += " IS NOT '&' || ";
    } else if (c == '*' && EqualsIgnoringCase(Trim(sql_), "delete")) {
      // The engine deletes whole rows without being told.
    } else if (IsWordPart(c)) {
      TakeWord(piece);
    } else {
      const bool by_letters = c == '\'' && !IsAscii(piece) && Trim(sql_).ends_with('=');
      sql_ += piece;
      if (by_letters) sql_ += kByLetters;
      at_sorted_column_ = sorting_ && (c == ',' || (at_sorted_column_ && c == ' '));
      if (c == ')') sorting_ = false;
    }
  }

  // The columns behind an ORDER BY are sorted as texts sort; numbers sort as numbers all the same.
  void TakeWord(std::string_view word) {
    sql_ += word;
    const bool calls = rest_.substr(word.size()).starts_with('(');
    if (at_sorted_column_ && !calls) sql_ += kByLetters;
    at_sorted_column_ = EqualsIgnoringCase(last_word_, "order") && EqualsIgnoringCase(word, "by");
    sorting_ = sorting_ || at_sorted_column_;
    last_word_ = word;
  }

  static inline const std::string kByLetters = std::string(" COLLATE ") + kAnyCase;

  std::string_view rest_;
  std::string_view last_word_;
  std::string sql_;
  bool sorting_ = false;           // behind an ORDER BY
  bool at_sorted_column_ = false;  // where one of its columns may begin
};

}  // namespace

std::string SqlEscape(std::string_view text) {
  std::string escaped;
  for (const char c : text) escaped.append(c == '\'' ? 2 : 1, c);
  return escaped;
}

std::string ToEngineSql(std::string_view statement) { return Translation(statement).Run(); }

}  // namespace survey
