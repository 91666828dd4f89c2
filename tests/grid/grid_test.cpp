// The grid around its entries and totals: code's side, locks, colours, walking, rows.

#include "grid/grid.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "grid/test_designs.h"

namespace survey {
namespace {

// Column 1 labels, column 2 numbers, column 3 hidden numbers, columns 4 and 5 a text over both;
// row 4 is closed and ends in a total of column 2.
const GridDesign kForm{.columns = 5,
                       .rows = 4,
                       .column_widths = {900, 900, 0, 900, 900},
                       .heads = {"", "Number", "", "Name", ""},
                       .texts = {{1, 1, "1.1"}},
                       .rules = {{{2, 1, 3, 9}, Number(0, 9)},
                                 {{4, 1, 5, 3}, Text(20)},
                                 {{2, 4, 5, 4}, Number(0, 9), false}},
                       .totals = {{{5, 4}, {{2, 1, 2, 9}}}},
                       .spans = {{4, 1, 5, 1}, {4, 2, 5, 2}, {4, 3, 5, 3}},
                       .shades = {{{1, 1}, kGreen}}};

TEST(GridTest, CodeWritesAnythingInsideAndIsSilentOutside) {
  Grid grid(kForm);
  const auto heard = Listen(grid);
  grid.SetText(2, 4, "beyond any limit");
  EXPECT_EQ(grid.GetText(2, 4), "beyond any limit");
  grid.SetText(1, 2, 2.5);
  EXPECT_EQ(grid.GetInteger(1, 2), 2) << "half to even";
  EXPECT_EQ(grid.GetInteger(2, 3), 0);
  grid.SetText(1, 2, "4000000000");
  EXPECT_THROW(grid.GetInteger(1, 2), RunTimeError);
  for (const auto& [column, row] : {Cell{0, 1}, {1, 0}, {6, 1}, {1, 5}, {-1, -1}}) {
    grid.SetText(column, row, "x");
    grid.SetLock(column, row, false);
    grid.SetBackColor(column, row, kRed);
    grid.SetActiveCell(column, row);
    EXPECT_EQ(grid.GetText(column, row), "");
    EXPECT_TRUE(grid.IsLocked(column, row));
    EXPECT_FALSE(grid.Type(column, row, "1").taken);
  }
  EXPECT_EQ(Cell(grid.ActiveColumn(), grid.ActiveRow()), Cell(2, 1)) << "the first open one";
  EXPECT_TRUE(heard->empty());
}

TEST(GridTest, LocksAndColoursOfCodeOverrideTheDesign) {
  Grid grid(kForm);
  grid.SetLock(2, 1, true);
  EXPECT_EQ(grid.Type(2, 1, "5").reason, "This cell is locked.");
  EXPECT_FALSE(grid.MayBecome(2, 1, "5").taken);
  EXPECT_EQ(grid.BackColor(2, 1), kLockedGrey);
  EXPECT_FALSE(grid.Type(2, 4, "5").taken);
  grid.SetLock(2, 4, false);
  EXPECT_TRUE(grid.Type(2, 4, "5").taken);
  EXPECT_EQ(grid.BackColor(2, 4), kWhite);
  EXPECT_TRUE(grid.IsLocked(1, 2)) << "no rule names it";
  grid.SetLock(1, 2, false);
  EXPECT_FALSE(grid.Type(1, 2, "5").taken) << "a label takes nothing even then";
  EXPECT_EQ(grid.BackColor(1, 1), kGreen);
  grid.SetBackColor(1, 1, kYellow);
  grid.ClearRange(1, 1, 5, 4);
  EXPECT_TRUE(grid.IsLocked(2, 1)) << "locks and colours outlive the data";
  EXPECT_EQ(grid.BackColor(1, 1), kYellow);
}

TEST(GridTest, TheCursorWalksCellsThatAreOpenAndSeen) {
  Grid grid(kForm);
  EXPECT_FALSE(grid.Type(3, 1, "1").taken) << "a column without width";
  EXPECT_FALSE(grid.Type(5, 1, "x").taken) << "under a span";
  EXPECT_TRUE(grid.Type(4, 1, "x").taken);
  EXPECT_EQ(grid.SpanOf(5, 2), (CellRange{4, 2, 5, 2}));
  grid.SetRowHidden(2, true);
  EXPECT_FALSE(grid.Type(2, 2, "1").taken);
  grid.SetLock(2, 3, true);
  const std::vector<Cell> open{{2, 1}, {4, 1}, {4, 3}};
  std::vector<Cell> there;
  for (auto at = grid.NextOpenCell({0, 0}); at; at = grid.NextOpenCell(*at)) there.push_back(*at);
  EXPECT_EQ(there, open);
  EXPECT_EQ(grid.PreviousOpenCell({9, 9}), open[2]);
  EXPECT_EQ(grid.PreviousOpenCell(open[2]), open[1]);
}

TEST(GridTest, NotificationsComeOnceFromInsideAndMayCallBack) {
  Grid grid(kForm);
  const auto heard = Listen(grid);
  for (const int row : {2, 2, 9}) grid.MoveTo(2, row);
  for (const int row : {3, 3, 9}) grid.Click(1, row);
  for (const int column : {4, 9}) grid.Click(column, 0);
  EXPECT_EQ(*heard, (std::vector<std::string>{"cell 2,2", "cell 1,3", "click 1,3", "click 1,3",
                                              "click 4,0"}));
  EXPECT_EQ(grid.ActiveRow(), 3);
  grid.on_change = [&grid](int column, int row) {
    grid.SetMaxRows(row);
    grid.SetText(column, row, "");
  };
  EXPECT_TRUE(grid.Type(2, 2, "4").taken);
  EXPECT_EQ(grid.GetText(2, 2), "");
  EXPECT_EQ(grid.MaxRows(), 2);
}

TEST(GridTest, RowsComeEmptyUnderTheRulesAndGoFromTheEnd) {
  Grid grid(kForm);
  grid.SetText(2, 3, "5");
  grid.SetText(2, 1, "1");
  grid.SetActiveCell(2, 4);
  grid.SetMaxRows(6);
  EXPECT_TRUE(grid.Type(2, 6, "3").taken) << "a rule reaches further than the rows did";
  EXPECT_FALSE(grid.Type(4, 6, "x").taken);
  EXPECT_EQ(grid.GetText(5, 4), "9");
  grid.SetMaxRows(2);
  EXPECT_EQ(grid.ActiveRow(), 2);
  EXPECT_FALSE(grid.Has(1, 3));
  grid.SetMaxRows(4);
  EXPECT_EQ(grid.GetText(2, 3), "");
  EXPECT_EQ(grid.GetText(5, 4), "1") << "a total that came with its row";
}

TEST(GridTest, WhatTheUserDidIsTakenBackByStepsUntilCodeWrites) {
  EditHistory history;
  Grid grid(kForm, &history);
  grid.SetText(2, 1, "0123");
  const auto heard = Listen(grid);
  grid.Type(2, 1, "5");
  {
    const EditHistory::Block block(history);
    for (const Cell cell : {Cell{2, 2}, {4, 1}, {2, 2}}) grid.Type(cell.column, cell.row, "6");
    grid.Type(2, 2, "7");
  }
  const auto shown = [&] {
    return grid.GetText(2, 1) + "|" + grid.GetText(2, 2) + "|" + grid.GetText(4, 1);
  };
  EXPECT_EQ(history.Undo().cell, Cell(2, 2));
  EXPECT_EQ(shown(), "5||");
  EXPECT_EQ(grid.ActiveRow(), 2);
  history.Undo();
  EXPECT_EQ(shown(), "0123||") << "whatever it was";
  EXPECT_EQ(history.Undo().grid, nullptr);
  history.Redo();
  history.Redo();
  EXPECT_EQ(shown(), "5|7|6");
  EXPECT_EQ(heard->back(), "cell 2,2");
  grid.SetLock(4, 1, true);
  EXPECT_EQ(history.Undo().entry.reason, "This cell is locked.");
  EXPECT_EQ(shown(), "5|7|6") << "a step is taken back whole or not at all";
  grid.SetLock(4, 1, false);
  history.Undo();
  grid.SetText(2, 3, "");  // changes nothing
  EXPECT_EQ(history.Redo().grid, &grid);
  history.Undo();
  grid.Type(2, 2, "1");
  EXPECT_EQ(history.Redo().grid, nullptr);
  grid.on_change = [&grid](int, int) { grid.SetText(1, 1, "written"); };
  grid.Type(2, 2, "2");
  EXPECT_EQ(history.Undo().grid, nullptr);
}

}  // namespace
}  // namespace survey
