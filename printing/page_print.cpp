#include "printing/page_print.h"

#include <algorithm>
#include <stdexcept>

#include "base/text.h"

namespace survey {
namespace {

constexpr double kLeft = 500;

// clang-format off
const std::vector<PagePrint> kPagePrints = {
    {"frmPage2", Head::kEmis, " General Information",
     {{"gridPage2_1", -1, 600, 1200}, {"gridGeneralInfo", -1, 600, 3500}}},
    {"frmHostels", Head::kEmis, " Hostel and SETA Information",
     {{"gridhostels", -1, 600, 1200}, {"gridSETA", -1, 600, 3500}}},
    {"frmPage4", Head::kCampusEmis, " Staff Count Information ",
     {{"gridPage4_2", -1, 300, 3000}, {"gridLectureStaff", -1, 300, 8000}}},
    {"frmStudentTotal", Head::kCampusEmis, " Student Enrolment Information ",
     {{"gridEnrolment", -1, 300, 1200}, {"gridAgreements", -1, 300, 5000}}},
    {"frmPage3", Head::kCampusEmis, " Student Registration",
     {{"gridEnrolment", -1, 300, 1200}}},
    {"frmPage5", Head::kCampusEmis, " Student Information",
     {{"gridFTE", 1, 300, 1200}, {"gridFTE", 2, 300, 3500}, {"gridFTE", 0, 300, 7000},
      {"gridReport191", 2, 300, 12000}}},
    {"frmPage6_1", Head::kCampusEmis, " Student Information",
     {{"gridPage6_2", 1, 300, 1200}, {"gridPage6_2", 0, 300, 4500}, {"grid191", 0, 300, 8000}}},
    {"frmPage8", Head::kCampusEmis, " Student Information", {{"gridNCV", 1, 300, 1200}}},
    {"frmPage9", Head::kCampusEmis, "  Student Information", {{"gridNCV", 1, 300, 1200}}},
    {"frmPage9_1", Head::kCampusEmis, "  Student Information", {{"gridPage8_2", 1, 300, 1200}}},
    {"frmOtherProgrammes", Head::kCampusEmis, " Student Enrolment Information",
     {{"gridlevel5", -1, 300, 1200}, {"gridNSC", -1, 300, 5200}, {"gridAET", -1, 300, 9200}}},
    {"frmPage12_1", Head::kCampusEmis, " Student Enrolment Information",
     {{"gridPage12_2", -1, 300, 1200}}},
    {"frmPage12_2", Head::kCampusEmis, " Student Enrolment Information",
     {{"gridPage12_1", 0, 300, 1200}}},
    {"frmPage9_10", Head::kCampusEmis, "  Student Information",
     {{"gridPage9_1", -1, 300, 1200}}, true},
    {"frmPage9_10_1", Head::kCampusEmis, "  Student Information",
     {{"gridPage9_1", -1, 300, 1200}}},
    {"frmPage14", Head::kCampusEmis, " Student SNE Information", {{"gridPage9_1", -1, 300, 1200}}},
    {"frmPage13", Head::kCampusEmis, "Student Boarder Information",
     {{"gridPage13_1", -1, 300, 1200}}},
    {"frmEducatorData", Head::kEmisAndStaff, " Personnel Details",
     {{"gridgeneral", -1, 300, 1200}, {"gridTraining", -1, 300, 8000}}},
    {"frmLecQualifications1", Head::kStaffDetails, "", {{"gridQual", -1, 300, 1200}}},
    {"frmLecQualifications2", Head::kStaffDetails, "", {{"gridQual", -1, 300, 1200}}},
    {"frmEducatorTeaching1", Head::kCampusEmisAndStaff, " Lecturer Teaching Details",
     {{"gridSubjects", -1, 300, 1200}}},
    {"frmEducatorTeaching", Head::kCampusEmisAndStaff, " Lecturer Teaching Details",
     {{"gridmonths", -1, 300, 1200}, {"gridSubjects", -1, 300, 3000}}},
    {"frmEducatorTeaching2", Head::kCampusEmisAndStaff, "  Lecturer Teaching Information",
     {{"gridFields", -1, 300, 1200}}},
};
// clang-format on

}  // namespace

const PagePrint& PrintOf(std::string_view page) {
  const auto print = std::find_if(kPagePrints.begin(), kPagePrints.end(),
                                  [&](const PagePrint& row) { return row.page == page; });
  if (print == kPagePrints.end()) throw std::out_of_range(std::string(page) + " is not printed");
  return *print;
}

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

void PrintHead(Printer& printer, const std::string& head_line, double left,
               std::string_view title) {
  printer.SetFont("Times New Roman", 12, true);
  printer.SetCurrentX(left);
  printer.SetCurrentY(130);
  printer.Print(head_line);
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

void PrintPage(Printer& printer, const PagePrint& page, const std::string& head_line,
               const GridOf& grid_of) {
  if (page.landscape) printer.SetOrientation(Orientation::kLandscape);
  PrintHead(printer, head_line, kLeft, page.title);
  DrawGrids(printer, page.grids, grid_of);
  printer.EndDoc();
}

}  // namespace survey
