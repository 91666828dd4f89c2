#ifndef PRINTING_STAFF_PRINT_H_
#define PRINTING_STAFF_PRINT_H_

#include <string>
#include <string_view>
#include <vector>

#include "printing/page_print.h"

namespace survey {

// What a page adds to the print of all pages of a staff member, which is one job for its caller
// to end.
struct StaffSheet {
  std::string_view page;
  bool has_head;  // prints the page's head line and title
  std::vector<PrintedGrid> grids;
  bool ends_sheet;  // what comes next stands on a new sheet
};

// In the order of printing.
const std::vector<StaffSheet>& StaffSheets();

// Throws RunTimeError when the printer fails.
void PrintSheet(Printer& printer, const StaffSheet& sheet, const std::string& head_line,
                const GridOf& grid_of);

}  // namespace survey

#endif  // PRINTING_STAFF_PRINT_H_
