#ifndef PRINTING_PAGE_PRINT_H_
#define PRINTING_PAGE_PRINT_H_

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "grid/grid.h"
#include "printing/printer.h"

namespace survey {

// The line over a page's title. The numbers and the staff text are filled in.
enum class Head {
  kEmis,                // " EMIS NUMBER: " and the campus number
  kCampusEmis,          // " Campus EMIS NUMBER: " and the campus number
  kEmisAndStaff,        // the first, and " Staff ID: " and the staff member's ID
  kCampusEmisAndStaff,  // the second, and " Staff ID: " and the staff member's ID
  kStaffDetails,        // " Staff Details:  " and the staff member's ID
};

// Where a grid of the page stands on paper, in twips.
struct PrintedGrid {
  std::string_view name;
  int index;  // in its control array; -1 for none
  double left;
  double top;
};

// What a page prints as a job of its own.
struct PagePrint {
  Head head;
  std::string_view title;  // its blanks are part of it; empty for no title line
  std::vector<PrintedGrid> grids;
  bool landscape = false;  // turns the paper, for all that is printed after it too
};

// What a page adds to the print of all pages of a staff member, which is one job for its caller
// to end.
struct StaffSheet {
  bool has_head;  // prints the page's head line and title
  std::vector<PrintedGrid> grids;
  bool ends_sheet;  // what comes next stands on a new sheet
};

// The head line of a page of this campus and, on staff pages, this staff member.
std::string HeadLine(Head head, double campus_emis_number, const std::string& staff_id);

// Gives a page's grid of a name and index.
using GridOf = std::function<const Grid&(std::string_view name, int index)>;

// Prints a page as one job on one sheet. Throws RunTimeError when the printer fails.
void PrintPage(Printer& printer, const PagePrint& page, const std::string& head_line,
               const GridOf& grid_of);

inline constexpr double kSheetHeadLeft = 140;  // twips, of the head line of a staff sheet

// The font of all heads and their first line, which begins at `left` twips. Throws RunTimeError
// when the printer fails.
void BeginHead(Printer& printer, double left, std::string_view line);

// Prints what `page` adds as `sheet`. Throws RunTimeError when the printer fails.
void PrintSheet(Printer& printer, const PagePrint& page, const StaffSheet& sheet,
                const std::string& head_line, const GridOf& grid_of);

}  // namespace survey

#endif  // PRINTING_PAGE_PRINT_H_
