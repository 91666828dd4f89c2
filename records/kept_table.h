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

// What a number in a column of the store means.
struct Code {
  std::string table;
  std::string column;
  int code;
  std::string meaning;
};

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
// One of `cells`, `load`, `form` and `staff` says so.
struct KeptTable {
  std::string_view number;  // "3.8"
  std::string_view grid;    // its control
  int index = -1;           // in the control array; -1 for none
  const GridDesign* design = nullptr;
  const CellTable* cells = nullptr;  // a record for each filled cell,
  std::optional<int> code = {};      // with this code where several tables share the records
  // Writes what is stored into a clean grid. Besides `cells` where their records come back in a way
  // of their own. Throws RunTimeError.
  std::function<void(const SiteRecords& site, Grid& grid)> load = {};
  std::optional<RecordForm> form = {};
  std::optional<StaffRecords> staff = {};
  std::vector<RequiredCell> required = {};
  std::vector<Code> (*codes)() = nullptr;  // of its columns, besides those of `cells`
};

// Writes what is stored into a clean grid, as the page does when it opens. Throws RunTimeError.
void LoadTable(const KeptTable& table, const SiteRecords& site, Grid& grid);

// The codes of all columns, those that the page passes last and without a meaning of their own.
std::vector<Code> CodesOf(const KeptTable& table);

}  // namespace survey

#endif  // RECORDS_KEPT_TABLE_H_
