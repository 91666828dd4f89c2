// Looks and ways of a table on screen, blocks, boxes and lists.

#include <QAccessible>
#include <QWheelEvent>

#include "grid/test_designs.h"
#include "tables_fixture.h"

namespace survey::testing {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using GridViewTest = TablesTest;

TEST_F(GridViewTest, KeysOfAnEditor) {
  pairs().SetText(3, 3, "12");
  user_->Press(Qt::Key_F2);
  user_->Type("3");  // behind what stands there
  EXPECT_EQ(Editor()->text(), "123");
  user_->Press(Qt::Key_Left);  // stays in the text
  user_->Press(Qt::Key_Escape);
  EXPECT_EQ(Editor(), nullptr);
  EXPECT_EQ(At(3, 3), "12");
  user_->Type("5");
  EXPECT_EQ(At(3, 3), "12") << "not before it is taken";
  user_->Press(Qt::Key_Right);  // typed over: an arrow goes on
  EXPECT_EQ(At(3, 3), "5");
  EXPECT_EQ(Active(), (Cell{4, 3}));
  GoTo(6, 3);
  user_->Type("ab");
  EXPECT_EQ(Editor()->text(), "AB");
  user_->Press(Qt::Key_Tab);
  EXPECT_EQ(At(6, 3), "AB");
  EXPECT_EQ(&user_->Focus(), &Table("list"));
  user_->Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(&user_->Focus(), &Table("pairs"));
  user_->Press(Qt::Key_Delete);
  EXPECT_EQ(At(6, 3), "");
  const auto heard = Listen(pairs());
  GoTo(4, 4);
  user_->Type("1");
  EXPECT_EQ(Note(), "This cell is locked.");
  user_->Press(Qt::Key_Delete);
  EXPECT_THAT(*heard, IsEmpty());
}

TEST_F(GridViewTest, PastesABlockThroughTheLimits) {
  pairs().SetText(4, 4, "8");
  pairs().SetText(3, 5, "55");
  // Female is locked at (4,4); the last line end is no row; an empty value empties.
  Paste("1\t 2 \t3\r\n4\t9\t1000\r\n\t\"6\"\t7,5\r\n");
  EXPECT_THAT(Row(3), ElementsAre("1", "2", "3", "", "6"));
  EXPECT_THAT(Row(4), ElementsAre("4", "8", "", "", "12"));
  EXPECT_THAT(Row(5), ElementsAre("", "6", "", "", "6"));
  EXPECT_THAT(Note(), AllOf(HasSubstr("3 values were not taken:"),
                            HasSubstr("7.1 Female, Second: \"9\" This cell is locked."),
                            HasSubstr("7.1 Female, Third: \"1000\" Enter a whole number"),
                            HasSubstr("Third: \"7,5\"")));
}

TEST_F(GridViewTest, PastesWhatFitsAndSaysWhatDoesNot) {
  pairs().SetRowHidden(19, true);
  GoTo(6, 18);
  Paste("1\t\n1\t5\tz\n0\n");  // row 19 is passed over, the total and column 8 take nothing
  EXPECT_EQ(At(6, 18) + "/" + At(6, 19) + "/" + At(6, 20), "1//1");
  EXPECT_THAT(Note(), AllOf(HasSubstr("2 values did not fit into the table."), HasSubstr("total")));
  GoTo(6, 3);
  Paste("\"two\nlines\"");
  EXPECT_THAT(Note(), HasSubstr("one line"));
  Paste("\"\"\"a\"\"\"");
  EXPECT_EQ(At(6, 3), "\"A\"");
  EXPECT_EQ(Note(), "");
  Paste("\"a\"05\t7\n");  // begins with a quote, and is not in quotes
  EXPECT_EQ(At(6, 3), "\"A\"05") << "and the 0 stays";
  EXPECT_THAT(Note(), HasSubstr("\"7\""));
}

TEST_F(GridViewTest, CopiesCutsAndFillsASelection) {
  pairs().SetText(3, 3, "1");
  pairs().SetText(4, 4, "8");
  user_->Press(Qt::Key_Down, Qt::ShiftModifier);
  user_->Press(Qt::Key_Right, Qt::ShiftModifier);
  user_->Press(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "1\t\n\t8");
  EXPECT_EQ(At(3, 3) + "/" + At(4, 4), "/8");
  Paste("5\n");
  EXPECT_THAT(Row(3), ElementsAre("5", "5", "", "", "10"));
  EXPECT_EQ(At(4, 4), "8");
}

TEST_F(GridViewTest, TicksBoxes) {
  GridView& view = Table("pairs");
  const auto heard = Listen(pairs());
  user_->ClickCell("pairs", 6, 13);
  EXPECT_EQ(At(6, 13), "1");
  user_->ClickCell("pairs", 6, 13);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                    Place(view, 6, 13).topLeft() + QPoint(3, 3));  // beside the box
  EXPECT_EQ(At(6, 13), "0");
  EXPECT_THAT(*heard, ElementsAre("cell 6,13", "click 6,13", "check 6,13", "click 6,13",
                                  "check 6,13", "click 6,13"));
}

TEST_F(GridViewTest, HeadsAndLabelsStayInView) {
  GridView& view = Table("pairs");
  view.setFixedWidth(300);
  QCoreApplication::processEvents();
  QHeaderView& heads = *view.horizontalHeader();
  QHeaderView& labels = *view.verticalHeader();
  const QImage heads_before = heads.grab().toImage();
  const QImage labels_before = labels.grab().toImage();
  GoTo(7, 20);
  EXPECT_GT(view.verticalScrollBar()->value(), 0);
  const QImage heads_after = heads.grab().toImage();
  const int title = 400 * view.logicalDpiY() / 1440;
  const QRect title_row(0, 0, heads_after.width(), title - 1);
  EXPECT_EQ(heads_before.copy(title_row), heads_after.copy(title_row)) << "the title stays";
  const QRect head_row(0, title, heads_after.width(), heads_after.height() - title);
  EXPECT_NE(heads_before.copy(head_row), heads_after.copy(head_row)) << "the heads go along";
  EXPECT_NE(labels_before, labels.grab().toImage());

  QWheelEvent wheel({5, 5}, labels.mapToGlobal(QPointF(5, 5)), {}, {0, 1200}, {}, {},
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(labels.viewport(), &wheel);
  EXPECT_LT(view.verticalScrollBar()->value(), view.verticalScrollBar()->maximum());
  EXPECT_EQ(Active(), (Cell{7, 20})) << "the wheel only scrolls";
  user_->Press(Qt::Key_Home, Qt::ControlModifier);
  user_->Press(Qt::Key_Up);
  user_->Press(Qt::Key_Left);
  EXPECT_EQ(Active(), (Cell{3, 3})) << "the first cell behind what stays in view";
}

TEST_F(GridViewTest, FollowsTheGrid) {
  GridView& view = Table("pairs");
  const auto heard = Listen(pairs());
  pairs().SetRowHidden(5, true);
  pairs().SetMaxRows(25);
  GoTo(3, 24);
  EXPECT_EQ(Current(), (Cell{3, 24}));
  EXPECT_TRUE(view.isRowHidden(4));
  EXPECT_EQ(view.model()->rowCount(), 25);
  pairs().SetMaxRows(10);
  view.Refresh();
  EXPECT_EQ(view.model()->rowCount(), 10);
  EXPECT_EQ(Current(), (Cell{3, 10}));
  EXPECT_THAT(*heard, IsEmpty());
}

TEST_F(GridViewTest, ListChoosesRows) {
  GridView& list = Table("list");
  std::vector<std::string> clicks;
  form().list.on_click = [&](int column, int row) {
    clicks.push_back(std::to_string(column) + "," + std::to_string(row));
  };
  list.setFocus();
  EXPECT_FALSE(list.selectionModel()->hasSelection()) << "nobody has chosen yet";
  user_->Press(Qt::Key_Down);  // enters the list at its top
  user_->Press(Qt::Key_Down);
  EXPECT_TRUE(list.selectionModel()->isRowSelected(1));
  user_->ClickCell("list", 2, 4);
  QHeaderView& heads = *list.horizontalHeader();
  QTest::mouseClick(heads.viewport(), Qt::LeftButton, {},
                    {heads.sectionViewportPosition(1) + 5, 5});
  user_->Press(Qt::Key_Left);
  user_->Press(Qt::Key_Return, Qt::ControlModifier);  // the head, without a mouse
  EXPECT_THAT(clicks, ElementsAre("1,1", "1,2", "2,4", "2,0", "1,4", "1,0"));
  form().list.SetActiveCell(1, 9);
  list.Refresh();
  EXPECT_FALSE(list.selectionModel()->isRowSelected(8)) << "code chose no row";
  QTest::mousePress(list.viewport(), Qt::LeftButton, {}, Place(list, 2, 6).center());
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, Place(list, 2, 7).center());
  EXPECT_TRUE(list.selectionModel()->isRowSelected(3)) << "neither did what was no click";
  form().list.SetChosenRow(0);
  list.Refresh();
  EXPECT_FALSE(list.selectionModel()->hasSelection()) << "the form has forgotten the choice";
}

TEST_F(GridViewTest, SaysWhatItShows) {
  GridView& view = Table("pairs");
  pairs().SetText(3, 4, "5");
  pairs().SetNote(7, 4, {"=", "Balances."});
  for (const auto& [column, row, text] : {std::tuple{3, 4, "Table 7, 7.1 Female, First block: 5"},
                                          {4, 4, "Table 7, 7.1 Female, Second: empty, locked"},
                                          {7, 4, "Table 7, 7.1 Female, Total: 5, total, Balances."},
                                          {6, 12, "Table 7, row 12, Remark: not ticked"}}) {
    const QModelIndex cell = view.model()->index(row - 1, column - 1);
    EXPECT_EQ(cell.data(Qt::AccessibleTextRole).toString(), text);
  }
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&view);
  EXPECT_EQ(accessible->text(QAccessible::Name), "Table 7");
  EXPECT_EQ(accessible->tableInterface()->columnDescription(2), "First block");
}

}  // namespace
}  // namespace survey::testing
