#include "records/kept_table.h"

#include <algorithm>
#include <iterator>

#include "base/text.h"
#include "records/cell_table.h"
#include "records/codes.h"

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

void LoadTable(const KeptTable& table, const SiteRecords& site, Grid& grid) {
  if (table.load) {
    table.load(site, grid);
  } else {
    LoadCells(site, *table.cells, grid, table.code);
  }
}

std::vector<Code> CodesOf(const KeptTable& table) {
  std::vector<Code> codes;
  if (table.codes != nullptr) codes = table.codes();
  if (table.cells != nullptr) {
    std::ranges::move(CodesOf(*table.cells, *table.design, table.code), std::back_inserter(codes));
  }
  return codes;
}

}  // namespace survey
