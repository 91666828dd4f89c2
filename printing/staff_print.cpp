#include "printing/staff_print.h"

namespace survey {
namespace {

constexpr double kHeadLineLeft = 140;

}  // namespace

// The teaching subjects stand below the second half of the qualifications, on one sheet.
const std::vector<StaffSheet>& StaffSheets() {
  // clang-format off
  static const std::vector<StaffSheet> sheets = {
      {"frmEducatorData", true,
       {{"gridgeneral", -1, 300, 1200}, {"gridTraining", -1, 300, 8000}}, true},
      {"frmLecQualifications1", false, {{"gridQual", -1, 300, 1200}}, true},
      {"frmLecQualifications2", false, {{"gridQual", -1, 300, 1200}}, false},
      {"frmEducatorTeaching1", false, {{"gridSubjects", -1, 300, 7500}}, true},
      {"frmEducatorTeaching", false,
       {{"gridmonths", -1, 300, 1200}, {"gridSubjects", -1, 300, 3000}}, true},
      {"frmEducatorTeaching2", false, {{"gridFields", -1, 300, 1200}}, false},
  };
  // clang-format on
  return sheets;
}

void PrintSheet(Printer& printer, const StaffSheet& sheet, const std::string& head_line,
                const GridOf& grid_of) {
  if (sheet.has_head) PrintHead(printer, head_line, kHeadLineLeft, PrintOf(sheet.page).title);
  DrawGrids(printer, sheet.grids, grid_of);
  if (sheet.ends_sheet) printer.NewPage();
}

}  // namespace survey
