#ifndef STORE_DIALECT_H_
#define STORE_DIALECT_H_

#include <string>
#include <string_view>

namespace survey {

// `text` with every single quote doubled, ready to stand between single quotes in a statement.
std::string SqlEscape(std::string_view text);

// Turns one of the survey's statements into the engine's SQL, token by token and never inside
// quotes:
//   Delete * from t            ->  Delete from t
//   #2012/10/04#               ->  '2012/10/04', a day of the calendar, padded with zeros
//   college & 4                ->  a condition that always holds: the joined text is never false
//   order by surname           ->  order by surname COLLATE any_case (see letters.h)
//   code = 'é'                 ->  code = 'é' COLLATE any_case
// Throws RunTimeError for what the survey's statements never hold and a stray quote could bring
// in: a comment, a date that is none, a quote that is not closed.
std::string ToEngineSql(std::string_view statement);

}  // namespace survey

#endif  // STORE_DIALECT_H_
