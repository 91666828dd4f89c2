// What holds of every row of the table of pages: its place on paper, and its links.

#include "pages/survey_pages.h"

#include <gtest/gtest.h>

#include <numeric>

#include "printing/page_print.h"
#include "support/headless_program.h"

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
class Paper : public HeadlessProgram, public ::testing::Test {
 protected:
  Paper() { RegisterPages(host); }

  void Put(std::string_view page, const std::vector<PrintedGrid>& grids) {
    for (const auto& [name, index, left, top] : grids) {
      SCOPED_TRACE(std::string(page) + " " + std::string(name) + " " + std::to_string(index));
      const GridDesign& design = The<GridControl>(std::string(page), name, index).design();
      EXPECT_LE(filled_to_, top);
      EXPECT_LE(left + WidthOf(design), right_);
      filled_to_ = top + HeightOf(design);
      EXPECT_LE(filled_to_, bottom_);
    }
  }
  void NextSheet() { filled_to_ = 0; }

  double right_ = kShortSide - kMargin;
  double bottom_ = kLongSide - kMargin;
  double filled_to_ = 0;
};

TEST_F(Paper, HoldsEveryTableOfThePages) {
  for (const PageRow& page : host.pages()) {
    if (page.paper.landscape) std::swap(right_, bottom_);
    Put(page.name, page.paper.grids);
    NextSheet();
    // The paper stays turned for what is printed later in a run, but not in another one.
    if (page.paper.landscape) right_ = bottom_ = kShortSide - kMargin;
  }
}

TEST_F(Paper, HoldsEveryTableOfAStaffMember) {
  for (const PageRow& page : host.pages()) {
    if (!page.staff_print) continue;
    Put(page.name, page.staff_print->grids);
    if (page.staff_print->ends_sheet) NextSheet();
  }
}

// Whoever goes on from a page must be able to come back to it.
TEST(SurveyPagesTest, NextLeadsThroughTheCampusAndPreviousBack) {
  const std::vector<PageRow>& pages = SurveyPages();
  for (std::size_t i = 0; pages[i].section == Section::kCampus; ++i) {
    const bool is_last = pages[i + 1].section != Section::kCampus;
    EXPECT_EQ(LinkOf(pages[i].links, "cmdNext").target,
              is_last ? "frmSelectEducator" : pages[i + 1].name);
    EXPECT_EQ(LinkOf(pages[i].links, "cmdPrevious").target,
              i == 0 ? "frmMainMenu" : pages[i - 1].name);
  }
}

}  // namespace
}  // namespace survey::testing
