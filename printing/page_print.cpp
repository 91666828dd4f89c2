#include "printing/page_print.h"

#include "base/text.h"

namespace survey {
namespace {

constexpr double kLeft = 500;

void PrintHead(Printer& printer, const std::string& head_line, double left,
               std::string_view title) {
  BeginHead(printer, left, head_line);
  printer.Print("");
  if (!title.empty()) {
    printer.SetCurrentX(kLeft);
    printer.Print(title);
    printer.Print("");
  }
  printer.SetFontBold(false);
}

void DrawGrids(Printer& printer, const std::vector<PrintedGrid>& grids, const GridOf& grid_of) {
  for (const PrintedGrid& grid : grids) {
    printer.OwnerPrintDraw(grid_of(grid.name, grid.index), grid.left, grid.top, printer.Width(),
                           printer.Height(), 1);
  }
}

}  // namespace

std::string HeadLine(Head head, double campus_emis_number, const std::string& staff_id) {
  const std::string campus = NumberText(campus_emis_number);
  switch (head) {
    case Head::kEmis:
      return " EMIS NUMBER: " + campus;
    case Head::kCampusEmis:
      return " Campus EMIS NUMBER: " + campus;
    case Head::kEmisAndStaff:
      return " EMIS NUMBER: " + campus + " Staff ID: " + staff_id;
    case Head::kCampusEmisAndStaff:
      return " Campus EMIS NUMBER: " + campus + " Staff ID: " + staff_id;
    case Head::kStaffDetails:
      return " Staff Details:  " + staff_id;
  }
  return {};
}

void BeginHead(Printer& printer, double left, std::string_view line) {
  printer.SetFont("Times New Roman", 12, true);
  printer.SetCurrentX(left);
  printer.SetCurrentY(130);
  printer.Print(line);
}

void PrintPage(Printer& printer, const PagePrint& page, const std::string& head_line,
               const GridOf& grid_of) {
  if (page.landscape) printer.SetOrientation(Orientation::kLandscape);
  PrintHead(printer, head_line, kLeft, page.title);
  DrawGrids(printer, page.grids, grid_of);
  printer.EndDoc();
}

void PrintSheet(Printer& printer, const PagePrint& page, const StaffSheet& sheet,
                const std::string& head_line, const GridOf& grid_of) {
  if (sheet.has_head) PrintHead(printer, head_line, kSheetHeadLeft, page.title);
  DrawGrids(printer, sheet.grids, grid_of);
  if (sheet.ends_sheet) printer.NewPage();
}

}  // namespace survey
