#include "store/dialect.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstddef>

#include "base/run_time_error.h"
#include "base/text.h"

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

// The quoted piece at the start of `text`, with both its quotes. A doubled quote needs no care: it
// ends one piece and begins the next.
std::string_view QuotedPiece(std::string_view text, char closing) {
  const auto end = text.find(closing, 1);
  if (end == std::string_view::npos) {
    Refuse(std::string("a ") + text.front() + " in the statement is not closed");
  }
  return text.substr(0, end + 1);
}

char ClosingQuote(char opening) { return opening == '[' ? ']' : opening; }

}  // namespace

std::string SqlEscape(std::string_view text) {
  std::string escaped;
  for (const char c : text) escaped.append(c == '\'' ? 2 : 1, c);
  return escaped;
}

std::string ToEngineSql(std::string_view statement) {
  std::string sql;
  sql.reserve(statement.size() + 16);
  while (!statement.empty()) {
    const char c = statement.front();
    std::string_view piece = statement.substr(0, 1);
    if (c == '\'' || c == '"' || c == '[' || c == '`') {
      piece = QuotedPiece(statement, ClosingQuote(c));
      sql += piece;
    } else if (c == '#') {
      piece = QuotedPiece(statement, '#');
      sql += '\'' + StoredDate(piece.substr(1, piece.size() - 2)) + '\'';
    } else if (statement.starts_with("--") || statement.starts_with("/*")) {
      Refuse("a statement holds no comments");
    } else if (c == '&') {
      // Joining two operands gives a text that stands for true, whatever they are; a number that
      // is joined to a mark of its own differs from every number and from null, so this is true
      // as well, and binds as an equals sign in this place would.
      sql += " IS NOT '&' || ";
    } else if (c == '*' && EqualsIgnoringCase(Trim(sql), "delete")) {
      // The engine deletes whole rows without being told.
    } else {
      sql += c;
    }
    statement.remove_prefix(piece.size());
  }
  return sql;
}

}  // namespace survey
