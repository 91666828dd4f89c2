#include "store/letters.h"

#define SQLITE_HAS_CODEC 1
#include <sqlite3.h>

#include <string_view>

#include "base/run_time_error.h"
#include "base/text.h"

namespace survey {
namespace {

int Compare(void*, int left_size, const void* left, int right_size, const void* right) {
  return CompareTexts({static_cast<const char*>(left), static_cast<std::size_t>(left_size)},
                      {static_cast<const char*>(right), static_cast<std::size_t>(right_size)});
}

std::size_t LetterSize(std::string_view text) {
  std::size_t size = 1;
  while (size < text.size() && (static_cast<unsigned char>(text[size]) & 0xC0U) == 0x80U) ++size;
  return size;
}

// Both folded. A % stands for any text and a _ for any letter, as ever. Where the text behind a %
// does not go on as the pattern does, that % takes a letter more; those before it need not.
bool IsLike(std::string_view text, std::string_view pattern) {
  std::string_view behind_any, text_at_any;
  bool any = false;
  while (!text.empty()) {
    if (pattern.starts_with('%')) {
      any = true;
      pattern.remove_prefix(1);
      behind_any = pattern;
      text_at_any = text;
    } else if (pattern.starts_with('_')) {
      pattern.remove_prefix(1);
      text.remove_prefix(LetterSize(text));
    } else if (!pattern.empty() && pattern.front() == text.front()) {
      pattern.remove_prefix(1);
      text.remove_prefix(1);
    } else if (any) {
      text_at_any.remove_prefix(LetterSize(text_at_any));
      text = text_at_any;
      pattern = behind_any;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('%') == std::string_view::npos;
}

std::string_view TextOf(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return {text, static_cast<std::size_t>(sqlite3_value_bytes(value))};
}

// `text like pattern`; the engine hands over the pattern first. Nothing is like null.
void Like(sqlite3_context* context, int, sqlite3_value** values) {
  if (sqlite3_value_type(values[0]) == SQLITE_NULL) return;
  if (sqlite3_value_type(values[1]) == SQLITE_NULL) return;
  const std::string pattern = FoldCase(TextOf(values[0]));
  sqlite3_result_int(context, IsLike(FoldCase(TextOf(values[1])), pattern) ? 1 : 0);
}

}  // namespace

void RegisterLetters(sqlite3* database) {
  const int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
  if (sqlite3_create_collation(database, kAnyCase, SQLITE_UTF8, nullptr, Compare) != SQLITE_OK ||
      sqlite3_create_function(database, "like", 2, flags, nullptr, Like, nullptr, nullptr) !=
          SQLITE_OK) {
    throw RunTimeError(sqlite3_errcode(database), sqlite3_errmsg(database));
  }
}

}  // namespace survey
