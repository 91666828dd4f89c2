#include "records/kept_table.h"

#include "base/text.h"
#include "records/cell_table.h"

namespace survey {

bool IsMissing(const Grid& grid, const RequiredCell& required) {
  constexpr int kDateCharacters = 10;
  const std::string& text = grid.GetText(required.cell.column, required.cell.row);
  switch (required.need) {
    case Need::kNotEmpty:
      return text.empty();
    case Need::kNotBlank:
      return Trim(text).empty();
    case Need::kNotZero:
      return LeadingNumber(text) == 0;
    case Need::kWholeDate:
      return CharacterCount(text) != kDateCharacters;
  }
  return false;
}

std::function<void(const SiteRecords&, Grid&)> CellsOf(const CellTable& table,
                                                       std::optional<int> code) {
  return
      [&table, code](const SiteRecords& site, Grid& grid) { LoadCells(site, table, grid, code); };
}

}  // namespace survey
