#include "collect/csv.h"

#include "base/text.h"

namespace survey {

void AppendCsv(std::string& record, std::string_view text) {
  record += '"';
  for (const char c : ToValidUtf8(text)) {
    if (c == '"') record += '"';
    record += c;
  }
  record += '"';
}

void AppendCsv(std::string& record, const Value& value) {
  if (value.IsNull()) return;
  if (value.IsNumber()) {
    record += value.Text();
  } else {
    AppendCsv(record, value.Text());
  }
}

}  // namespace survey
