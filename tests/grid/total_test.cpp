// Sums that a grid holds by itself.

#include <gtest/gtest.h>

#include "grid/test_designs.h"

namespace survey {
namespace {

// A body of 3 x 3 from (2,2), with row totals in column 5, column totals in row 5 and their grand
// total, which adds the row totals.
GridDesign Totalled(CellKind kind) {
  return {.columns = 5,
          .rows = 5,
          .column_widths = std::vector<int>(5, 1000),
          .rules = {{{2, 2, 5, 5}, kind, false}, {{2, 2, 4, 4}, kind}, {{5, 3}, kind}},
          .totals = {{{5, 2, 5, 4}, {{2, 2, 4, 2}}},
                     {{2, 5, 4, 5}, {{2, 2, 2, 4}}},
                     {{5, 5}, {{5, 2, 5, 4}}}}};
}

const GridDesign kCounts = Totalled(Number(0, 99));

TEST(TotalTest, ATextOverATotalShowsUntilOneOfItsCellsIsWritten) {
  EditHistory history;
  Grid grid(kCounts, &history);
  grid.SetText(2, 2, "1");
  grid.SetText(5, 2, "50");
  EXPECT_EQ(grid.GetText(5, 5), "50") << "the grand total adds what the total shows";
  grid.SetText(5, 5, "7");
  EXPECT_EQ(grid.GetText(5, 5), "7");
  grid.SetText(3, 3, "2");  // computes the grand total, not the total of the other row
  EXPECT_EQ(grid.GetText(5, 2), "50");
  EXPECT_EQ(grid.GetText(5, 5), "52");
  grid.SetText(2, 2, "1");  // the same again, as when a page is read anew
  EXPECT_EQ(grid.GetText(5, 2), "1");
  grid.SetText(2, 2, "4");  // stale and not read yet,
  grid.SetText(5, 5, "7");  // written over,
  grid.SetText(2, 2, "6");  // and stale once more
  EXPECT_EQ(grid.GetText(5, 5), "8");
  EXPECT_EQ(grid.Type(5, 2, "9").reason,
            "This cell is a total, which the table adds up by itself.");
  EXPECT_TRUE(grid.Type(5, 3, "9").taken) << "an open one";
  EXPECT_EQ(grid.GetText(5, 5), "15");
  history.Undo();
  EXPECT_EQ(grid.GetText(5, 3), "2") << "its sum";
  history.Redo();
  EXPECT_EQ(grid.GetText(5, 3), "9");
  EXPECT_TRUE(grid.Type(5, 3, "").taken);
  EXPECT_EQ(grid.GetText(5, 5), "8") << "emptied, it shows its sum again";
}

TEST(TotalTest, AddsNumbersOnlyAndRoundsToItsDecimals) {
  const GridDesign design = Totalled(Number(-9999999.99, 9999999.99, 3));
  Grid grid(design);
  const std::pair<std::vector<std::string>, std::string> cases[] = {
      {{"0.1", "0.2", ""}, "0.3"},
      {{"1.235", "1.1", "1.005"}, "3.34"},
      {{"0.1", "0.2", "-0.3"}, "0"},
      {{" ", "", ""}, ""},  // a blank that the design stores
      {{"2D Design", "-4", std::string(400, '9')}, "-4"}};
  for (const auto& [texts, sum] : cases) {
    for (int i = 0; i < 3; ++i) grid.SetText(2 + i, 2, texts[i]);
    EXPECT_EQ(grid.GetText(5, 2), sum) << texts[0];
  }
}

}  // namespace
}  // namespace survey
