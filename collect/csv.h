#ifndef COLLECT_CSV_H_
#define COLLECT_CSV_H_

#include <string>
#include <string_view>

#include "store/value.h"

namespace survey {

// A field of a CSV file (RFC 4180, UTF-8). A text stands in quotes, so that the empty text and a
// null, which is nothing at all, stay apart; a number stands as it is. What a text holds goes in as
// it is, whatever a spreadsheet may make of a "=" at its start; bytes that are no UTF-8 are
// replaced.
void AppendCsv(std::string& record, std::string_view text);
void AppendCsv(std::string& record, const Value& value);

inline constexpr std::string_view kCsvLineEnd = "\r\n";

}  // namespace survey

#endif  // COLLECT_CSV_H_
