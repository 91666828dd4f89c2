#include "pages/institution/street.h"

#include <string>

#include "base/run_time_error.h"

namespace survey {

void ShowStreet(const Value& street, Cell number, Cell name, Grid& grid) {
  if (street.IsNull()) return;
  const std::string text = street.Text();
  const auto blank = text.find(' ');
  const bool has_blank = blank != std::string::npos;
  grid.SetText(name.column, name.row, has_blank ? text.substr(blank + 1) : text);
  if (!has_blank) throw InvalidProcedureCall();
  grid.SetText(number.column, number.row, text.substr(0, blank));
}

}  // namespace survey
