#include "twin.h"

#include <algorithm>
#include <cstdlib>

#include "base/text.h"
#include "filled_site.h"
#include "forms/control_totals.h"
#include "twin_entry.h"

namespace survey::testing {
namespace {

// The block of a grid that is kept a record a cell.
struct Kept {
  const char* page;
  const char* grid;
  CellRange cells;
  bool zeros = true;  // a typed 0 is kept
};

// clang-format off
const Kept kKept[] = {
    {"frmPage4", "gridPage4_2", {4, 4, 11, 9}},
    {"frmPage4", "gridLectureStaff", {3, 3, 6, 6}},
    {"frmStudentTotal", "gridEnrolment", {3, 4, 12, 4}},
    {"frmStudentTotal", "gridAgreements", {3, 4, 10, 6}},
    {"frmPage3", "gridEnrolment", {4, 3, 10, 30}},
    {"frmPage5", "gridFTE(0)", {4, 3, 6, 8}},
    {"frmPage5", "gridFTE(1)", {4, 3, 6, 5}},
    {"frmPage5", "gridFTE(2)", {4, 3, 6, 3}},
    {"frmPage5", "gridReport191(2)", {4, 4, 13, 6}},
    {"frmPage6_1", "gridPage6_2(0)", {4, 4, 13, 9}},
    {"frmPage6_1", "gridPage6_2(1)", {4, 4, 13, 9}},
    {"frmPage6_1", "grid191(0)", {4, 4, 13, 9}},
    {"frmPage8", "gridNCV(1)", {4, 4, 13, 22}},
    {"frmPage9", "gridNCV(1)", {4, 4, 13, 22}},
    {"frmPage9_1", "gridPage8_2(1)", {4, 4, 13, 22}},
    {"frmOtherProgrammes", "gridNSC", {4, 4, 13, 6}},
    {"frmOtherProgrammes", "gridAET", {4, 4, 13, 7}},
    {"frmPage12_2", "gridPage12_1(0)", {4, 4, 13, 15}},
    {"frmPage9_10", "gridPage9_1", {2, 3, 20, 28}},
    {"frmPage9_10_1", "gridPage9_1", {2, 4, 13, 29}},
    {"frmPage14", "gridPage9_1", {2, 4, 11, 19}, false},
};
// clang-format on

// Pages kept in a way of their own that the twin knows.
const std::set<std::string> kOwnWays = {"frmPage13", "frmLecQualifications1",
                                        "frmLecQualifications2", "frmEducatorTeaching2"};
const std::set<std::string> kStaffWays = {"frmLecQualifications1", "frmLecQualifications2",
                                          "frmEducatorTeaching2"};
// Typing there leaves the mark as it is.
const std::set<std::string> kUnmarked = {"gridReport191(2)", "grid191(0)", "gridQual"};

// Nor a tick there.
const std::set<std::string> kUnmarkedTicks = {"gridFields"};

std::vector<const GridControl*> GridsOf(const Form& page) {
  std::vector<const GridControl*> grids;
  for (const Control* control : page.controls()) {
    if (const auto* grid = dynamic_cast<const GridControl*>(control)) grids.push_back(grid);
  }
  return grids;
}

// The cells that a total adds; none for any other cell.
std::vector<Cell> AddedBy(const GridDesign& design, Cell cell) {
  std::vector<Cell> added;
  for (const Total& total : design.totals) {
    if (!total.cells.Contains(cell)) continue;
    added.clear();
    const int right = cell.column - total.cells.column;
    const int down = cell.row - total.cells.row;
    for (const CellRange& block : total.adds) {
      for (int row = block.row; row <= block.last_row; ++row) {
        for (int column = block.column; column <= block.last_column; ++column) {
          added.push_back({column + right, row + down});
        }
      }
    }
  }
  return added;
}

// Whether the cell goes into the total, directly or through another.
bool Adds(const GridDesign& design, Cell total, Cell cell) {
  const std::vector<Cell> added = AddedBy(design, total);
  return std::ranges::any_of(
      added, [&](const Cell& one) { return one == cell || Adds(design, one, cell); });
}

double NumberIn(const std::string& text) { return std::strtod(text.c_str(), nullptr); }

}  // namespace

bool Twin::IsModelled(const std::string& page) {
  return kOwnWays.contains(page) ||
         std::ranges::any_of(kKept, [&](const Kept& kept) { return kept.page == page; });
}

std::string Twin::KeyOf(const Form& page) const {
  const Survey& survey = page.host().survey();
  const std::string year = NumberText(survey.SurveyYear) + "|" + page.name();
  if (kStaffWays.contains(page.name())) {
    return survey.DatabasePath + "|id " + page.EducatorId + "|" + year;
  }
  return survey.DatabasePath + "|" + NumberText(survey.CollegeEmisNumber) + "|" +
         NumberText(survey.CampusEmisNumber) + "|" + year;
}

// ---- What happens ------------------------------------------------------------------------------

void Twin::Opened(Form& page) {
  Page& clean = pages_[page.name()] = {};
  for (const GridControl* grid : GridsOf(page)) {
    Cells& cells = clean.grids[grid->ObjectName()];
    for (const CellText& text : grid->design().texts) cells[{text.row, text.column}] = text.text;
  }
}

void Twin::Activated(Form& page) {
  const std::string key = KeyOf(page);
  Page& shown = pages_[page.name()];
  if (!IsModelled(page.name())) {
    Follow(page);
    return;
  }
  if (unknown_.erase(key) > 0) {
    Follow(page);
    saved_[key] = StoredPart(page);
  } else {
    for (const GridControl* grid : GridsOf(page)) {
      for (const auto& [cell, text] : saved_[key][grid->ObjectName()]) {
        Write(shown, *grid, {cell.second, cell.first}, text);
      }
    }
  }
  if (page.name() == "frmOtherProgrammes") {
    Cells& level5 = shown.grids["gridlevel5"];
    if (!level5[{4, 2}].empty() && saved_[key]["gridlevel5"].contains({4, 2})) level5[{1, 7}] = "1";
    if (level5[{1, 7}].empty()) level5[{1, 7}] = "2";
  }
  shown.control_totals.clear();
  for (const Reconciliation& row : Reconciliations()) {
    if (row.page != page.name()) continue;
    if (const auto total = ControlTotal(page, row.code)) {
      shown.control_totals[std::string(row.text_box)] = *total;
    }
  }
  CheckTotals(page);
}

std::string Twin::Typed(Form& page, const GridControl& grid, Cell cell, const std::string& before,
                        const std::string& text, bool taken) {
  Page& shown = pages_[page.name()];
  std::string held;
  bool takes = false;
  if (grid.IsOpen(cell.column, cell.row)) {
    const CellKind& kind = grid.Kind(cell.column, cell.row);
    takes = Takes(kind, text, held);
    // Letters that the twin has no capitals for, and those that take more room as capitals.
    if (kind.upper_case && takes && taken) held = grid.GetText(cell.column, cell.row);
    if (kind.upper_case && !std::ranges::all_of(text, [](char c) { return c > 0; })) takes = taken;
    if (text == before) takes = true, held = before;
  }
  if (takes != taken) {
    return grid.ObjectName() + (taken ? " has taken " : " has refused ") + text.substr(0, 60);
  }
  if (!taken || held == before) return "";
  Write(shown, grid, cell, held);
  const bool box = grid.Kind(cell.column, cell.row).type == CellKind::Type::kCheckBox;
  if (!(box ? kUnmarkedTicks : kUnmarked).contains(grid.ObjectName())) shown.yellow = true;
  return "";
}

std::string Twin::Ticked(Form& page, const GridControl& grid, Cell cell,
                         const std::string& before) {
  const bool open = grid.IsOpen(cell.column, cell.row) &&
                    grid.Kind(cell.column, cell.row).type == CellKind::Type::kCheckBox;
  if (open) {
    pages_[page.name()].grids[grid.ObjectName()][{cell.row, cell.column}] =
        before == "1" ? "0" : "1";
    if (!kUnmarkedTicks.contains(grid.ObjectName())) pages_[page.name()].yellow = true;
  }
  return "";
}

void Twin::Saved(Form& page) {
  Page& shown = pages_[page.name()];
  shown.yellow = false;
  if (!IsModelled(page.name())) return;
  saved_[KeyOf(page)] = StoredPart(page);
  unknown_.erase(KeyOf(page));
  if (page.name() == "frmOtherProgrammes") {
    Cells& level5 = shown.grids["gridlevel5"];
    if (saved_[KeyOf(page)]["gridlevel5"].contains({4, 2})) level5[{1, 7}] = "1";
    if (level5[{1, 7}].empty()) level5[{1, 7}] = "2";
  }
  CheckTotals(page);
}

void Twin::Follow(Form& page) {
  Page& shown = pages_[page.name()];
  for (const GridControl* grid : GridsOf(page)) {
    Cells& cells = shown.grids[grid->ObjectName()];
    cells.clear();
    shown.over[grid->ObjectName()].clear();
    for (int row = 1; row <= grid->MaxRows(); ++row) {
      for (int column = 1; column <= grid->MaxColumns(); ++column) {
        if (!grid->IsTotal(column, row)) cells[{row, column}] = grid->GetText(column, row);
      }
    }
  }
  shown.yellow = page.Find<Button>("cmdSave").BackColor == kYellow;
}

void Twin::Forget(Form& page) {
  unknown_.insert(KeyOf(page));
  saved_.erase(KeyOf(page));
}

void Twin::ForgetStaff() {
  for (auto& [key, grids] : saved_) {
    if (key.find("|id ") != key.npos) unknown_.insert(key);
  }
}

// What table 2.5 holds of a programme, of whatever year. Where there are several the program may
// take any, and the twin does not know which.
std::optional<double> Twin::ControlTotal(const Form& page, int code) const {
  const std::string key = KeyOf(page);
  const std::string site = key.substr(0, key.rfind('|', key.rfind('|') - 1) + 1);
  const int first = code <= 6 ? 1 + 2 * code : 2 * code - 3;
  std::optional<double> total;
  for (const char* year : {"2012", "2010"}) {
    const std::string table = site + year + "|frmPage3";
    if (unknown_.contains(table)) return std::nullopt;
    const auto saved = saved_.find(table);
    if (saved == saved_.end() || !saved->second.contains("gridEnrolment")) continue;
    std::optional<double> sum;
    for (const auto& [cell, text] : saved->second.at("gridEnrolment")) {
      if (cell.first == first || cell.first == first + 1) sum = sum.value_or(0) + NumberIn(text);
    }
    if (sum && total) return std::nullopt;
    if (sum) total = sum;
  }
  return total.value_or(0);
}

// ---- How the pages are kept --------------------------------------------------------------------

// What the cells on the page will be when they are read back.
Twin::Grids Twin::StoredPart(const Form& page) const {
  Grids stored;
  const auto found = pages_.find(page.name());
  const Grids& grids = found->second.grids;
  const auto at = [&](const std::string& grid, int column, int row) -> std::string {
    const auto& cells = grids.at(grid);
    const auto cell = cells.find({row, column});
    return cell == cells.end() ? "" : cell->second;
  };
  const auto figure = [&](const std::string& grid, int column, int row) {
    return Plain(NumberIn(at(grid, column, row)));
  };
  for (const Kept& kept : kKept) {
    if (kept.page != page.name()) continue;
    for (const auto& [cell, text] : grids.at(kept.grid)) {
      const bool inside = kept.cells.Contains({cell.second, cell.first});
      if (inside && !text.empty() && (kept.zeros || NumberIn(text) != 0)) {
        stored[kept.grid][cell] = text;
      }
    }
  }
  if (page.name() == "frmOtherProgrammes") {
    for (int row = 4, to = 4; row <= 8; ++row) {
      if (at("gridlevel5", 2, row).empty() || at("gridlevel5", 4, row).empty()) continue;
      for (const int column : {2, 4})
        stored["gridlevel5"][{to, column}] = at("gridlevel5", column, row);
      for (const int column : {3, 5, 6}) {
        stored["gridlevel5"][{to, column}] = figure("gridlevel5", column, row);
      }
      ++to;
    }
  }
  if (page.name() == "frmPage13") {
    const std::string grid = "gridPage13_1";
    int to = 13;
    for (int row = 3; row <= 22; ++row) {
      const bool country = row >= 13;
      if (row == 12 || (country && at(grid, 1, row).empty())) continue;
      if (!country && NumberIn(at(grid, 5, row)) == 0 && NumberIn(at(grid, 6, row)) == 0) continue;
      if (country) stored[grid][{to, 1}] = at(grid, 1, row);
      for (const int column : {5, 6}) {
        stored[grid][{country ? to : row, column}] = figure(grid, column, row);
      }
      if (country) ++to;
    }
  }
  if (page.name().starts_with("frmLecQualifications")) {
    bool any = false;
    for (const auto& [cell, text] : grids.at("gridQual")) {
      if (cell.second != 3 || text != "1" || (page.name().ends_with('2') && cell.first > 16))
        continue;
      stored["gridQual"][cell] = text;
      any = true;
    }
    if (any && page.name().ends_with('2')) {
      stored["gridQual"][{19, 2}] = at("gridQual", 2, 19);
      stored["gridQual"][{20, 3}] = figure("gridQual", 3, 20);
    }
  }
  if (page.name() == "frmEducatorTeaching2") {
    for (int row = 3; row <= 17; ++row) {
      const bool kept = row == 17 ? NumberIn(at("gridFields", 6, 17)) != 0
                                  : row <= 14 && at("gridFields", 4, row) == "1";
      if (!kept) continue;
      if (row < 17) stored["gridFields"][{row, 4}] = "1";
      for (const int column : {6, 8, 10}) {
        stored["gridFields"][{row, column}] = figure("gridFields", column, row);
      }
    }
  }
  return stored;
}

// ---- What must be seen -------------------------------------------------------------------------

// A cell as it must read: a total is the sum of what it adds, empty while all of that is.
std::string Twin::TextAt(const Page& page, const GridControl& grid, Cell cell) {
  const std::string name = grid.ObjectName();
  const auto typed = page.over.find(name);
  if (typed != page.over.end() && typed->second.contains({cell.row, cell.column})) {
    return typed->second.at({cell.row, cell.column});
  }
  const std::vector<Cell> added = AddedBy(grid.design(), cell);
  if (!added.empty()) {
    bool any = false;
    double sum = 0;
    for (const Cell& one : added) {
      const std::string text = Shorn(TextAt(page, grid, one));
      if (!IsNumber(text)) continue;
      any = true;
      sum += NumberIn(text);
    }
    return any ? Plain(sum, grid.Kind(cell.column, cell.row).decimals) : "";
  }
  const auto& cells = page.grids.at(name);
  const auto found = cells.find({cell.row, cell.column});
  return found == cells.end() ? "" : found->second;
}

void Twin::Write(Page& page, const GridControl& grid, Cell cell, const std::string& text) {
  Cells& over = page.over[grid.ObjectName()];
  std::erase_if(over, [&](const auto& total) {
    return Adds(grid.design(), {total.first.second, total.first.first}, cell);
  });
  const bool is_total = !AddedBy(grid.design(), cell).empty();
  (is_total ? over : page.grids[grid.ObjectName()])[{cell.row, cell.column}] = text;
}

// The colours are given when the page is filled and when it is saved, not while it is typed into.
void Twin::CheckTotals(const Form& page) {
  Page& shown = pages_[page.name()];
  for (const Reconciliation& row : Reconciliations()) {
    if (row.page != page.name()) continue;
    const std::string box(row.text_box);
    if (!shown.control_totals.contains(box)) continue;
    const auto& grid = page.Find<GridControl>(row.grid, row.index);
    const std::string total = TextAt(shown, grid, row.total);
    shown.balanced[box] = NumberIn(total) == shown.control_totals[box];
  }
}

std::string Twin::Compare(const Form& page) const {
  const Page& shown = pages_.at(page.name());
  for (const GridControl* grid : GridsOf(page)) {
    for (int row = 1; row <= grid->MaxRows(); ++row) {
      for (int column = 1; column <= grid->MaxColumns(); ++column) {
        const std::string wanted = TextAt(shown, *grid, {column, row});
        const std::string& seen = grid->GetText(column, row);
        if (seen == wanted) continue;
        return grid->ObjectName() + " (" + std::to_string(column) + "," + std::to_string(row) +
               ") shows \"" + seen.substr(0, 60) + "\", not \"" + wanted.substr(0, 60) + "\"";
      }
    }
  }
  if ((page.Find<Button>("cmdSave").BackColor == kYellow) != shown.yellow) {
    return std::string("the mark is ") + (shown.yellow ? "grey, not yellow" : "yellow, not grey");
  }
  for (const Reconciliation& row : Reconciliations()) {
    const std::string box(row.text_box);
    if (row.page != page.name() || !shown.control_totals.contains(box)) continue;
    if (page.Find<TextBox>(box).Text != Plain(shown.control_totals.at(box))) {
      return box + " shows " + page.Find<TextBox>(box).Text;
    }
    const Color color =
        page.Find<GridControl>(row.grid, row.index).BackColor(row.total.column, row.total.row);
    if (color != (shown.balanced.at(box) ? kGreen : kRed)) return box + " has the wrong colour";
  }
  return "";
}

}  // namespace survey::testing
