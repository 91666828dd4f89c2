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

struct PagePrint {
  std::string_view page;
  Head head;
  std::string_view title;  // its blanks are part of it; empty for no title line
  std::vector<PrintedGrid> grids;
  bool landscape = false;  // turns the paper, for all that is printed after it too
};

// What a page prints; throws std::out_of_range for a form that prints no page.
const PagePrint& PrintOf(std::string_view page);

// The head line of a page of this campus and, on staff pages, this staff member.
std::string HeadLine(Head head, double campus_emis_number, const std::string& staff_id);

// Gives a page's grid of a name and index.
using GridOf = std::function<const Grid&(std::string_view name, int index)>;

// Prints a page as one job on one sheet. Throws RunTimeError when the printer fails.
void PrintPage(Printer& printer, const PagePrint& page, const std::string& head_line,
               const GridOf& grid_of);

// The parts of it. The head line begins at `left` twips; an empty title prints no line.
void PrintHead(Printer& printer, const std::string& head_line, double left, std::string_view title);
void DrawGrids(Printer& printer, const std::vector<PrintedGrid>& grids, const GridOf& grid_of);

}  // namespace survey

#endif  // PRINTING_PAGE_PRINT_H_
