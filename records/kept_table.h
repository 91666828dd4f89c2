#ifndef RECORDS_KEPT_TABLE_H_
#define RECORDS_KEPT_TABLE_H_

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "grid/grid.h"
#include "records/site_records.h"
#include "store/recordset.h"

namespace survey {

struct CellTable;

// When a compulsory cell counts as answered.
enum class Need {
  kNotEmpty,
  kNotBlank,
  kNotZero,    // its leading number is not 0
  kWholeDate,  // ten characters, yyyy/mm/dd
};

// A cell that must be answered before its page is saved.
struct RequiredCell {
  Cell cell;
  Need need = Need::kNotEmpty;
  const char* request = nullptr;  // what the page says where it asks for this one cell
};

bool IsMissing(const Grid& grid, const RequiredCell& required);

// Records that a page shows one at a time, each on the same grid.
struct RecordForm {
  Recordset (*records)(const SiteRecords& site);        // throws RunTimeError
  void (*show)(const Recordset& in_front, Grid& grid);  // overwrites the record before it
  const char* id_number = nullptr;                      // the field; null: no staff members
};

// Records of staff members, by the store's table.
struct StaffRecords {
  const char* table;
  const char* condition = "";  // which of them, " and ..."
  bool of_any_site = false;    // the page follows the person from site to site
};

// A numbered table of the survey: its place on its page, and how what is stored of it comes back.
// One of `load`, `form` and `staff` is there.
struct KeptTable {
  std::string_view number;  // "3.8"
  std::string_view grid;    // its control
  int index = -1;           // in the control array; -1 for none
  const GridDesign* design = nullptr;
  // Writes what is stored into a clean grid, as the page does when it opens. Throws RunTimeError.
  std::function<void(const SiteRecords& site, Grid& grid)> load = {};
  std::optional<RecordForm> form = {};
  std::optional<StaffRecords> staff = {};
  std::vector<RequiredCell> required = {};
};

// The `load` of a table that is kept cell by cell. The table must outlive it.
std::function<void(const SiteRecords&, Grid&)> CellsOf(const CellTable& table,
                                                       std::optional<int> code = {});

}  // namespace survey

#endif  // RECORDS_KEPT_TABLE_H_
