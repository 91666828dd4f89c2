#include <gtest/gtest.h>

#include <numeric>
#include <set>

#include "forms/page_chain.h"
#include "pages/register_pages.h"
#include "printing/page_print.h"
#include "world.h"

namespace survey::testing {
namespace {

constexpr double kShortSide = 11906;  // A4, in twips
constexpr double kLongSide = 16838;
constexpr double kMargin = 300;
constexpr int kHeadLine = 540;  // two lines of a list's heads

double WidthOf(const GridDesign& design) {
  return std::accumulate(design.column_widths.begin(), design.column_widths.end(), 0);
}

double HeightOf(const GridDesign& design) {
  double height = design.heads.empty() ? 0 : kHeadLine;
  for (int row = 1; row <= design.rows; ++row) {
    const bool own = row <= std::ssize(design.row_heights);
    height += own ? design.row_heights[row - 1] : design.row_height;
  }
  return height;
}

// What does not fit is cut off or printed over the next table: no figure may be lost that way.
TEST(Paper, HoldsEveryTableInItsPlace) {
  World world;
  RegisterPages(world.forms);
  std::set<std::string_view> checked;
  double right = kShortSide - kMargin;
  double bottom = kLongSide - kMargin;
  for (const Link& link : PageChain()) {
    const std::string page(link.page);
    if (page == "frmSelectEducator" || !world.forms.IsBuilt(page)) continue;
    if (!checked.insert(link.page).second) continue;
    const PagePrint& print = PrintOf(page);
    if (print.landscape) std::swap(right, bottom);
    for (std::size_t i = 0; i < print.grids.size(); ++i) {
      const auto& [name, index, left, top] = print.grids[i];
      const GridDesign& design = world.The<GridControl>(page, name, index).design();
      const bool last = i + 1 == print.grids.size();
      EXPECT_LE(left + WidthOf(design), right) << page << " " << name << " " << index;
      EXPECT_LE(top + HeightOf(design), last ? bottom : print.grids[i + 1].top)
          << page << " " << name << " " << index;
    }
    // The paper stays turned for what is printed later in a run, but not in another one.
    if (print.landscape) right = bottom = kShortSide - kMargin;
  }
}

// Heads and labels that stay in view take no typing, so no open cell may be among them.
TEST(Screen, KeepsNoOpenCellInTheFrozenPart) {
  World world;
  RegisterPages(world.forms);
  for (const Link& link : PageChain()) {
    const std::string page(link.page);
    if (!world.forms.IsBuilt(page)) continue;
    for (Control* control : world.forms.Get(page).controls()) {
      const auto* grid = dynamic_cast<GridControl*>(control);
      if (grid == nullptr) continue;
      for (int row = 1; row <= grid->MaxRows(); ++row) {
        for (int column = 1; column <= grid->MaxColumns(); ++column) {
          const bool frozen =
              row <= grid->design().head_rows || column <= grid->design().label_columns;
          EXPECT_FALSE(frozen && grid->IsOpen(column, row))
              << page << " " << grid->ObjectName() << " (" << column << "," << row << ")";
        }
      }
    }
  }
}

}  // namespace
}  // namespace survey::testing
