#include "desktop/grid_view.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "desktop/grid_accessible.h"
#include "support/headless_program.h"

namespace survey::testing {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// Pairs of rows as in the survey's own tables: a title over all, labels of the pair, a total.
const GridDesign kTableDesign = {
    .columns = 7,
    .rows = 20,
    .column_widths = {600, 1500, 900, 900, 900, 1500, 900},
    .row_heights = {400},
    .head_rows = 2,
    .label_columns = 2,
    .texts = {{2, 1, "Students per block"},
              {3, 2, "First\nblock"},
              {4, 2, "Second"},
              {5, 2, "Third"},
              {6, 2, "Remark"},
              {7, 2, "Total"},
              {1, 3, "7.1"},
              {2, 4, "Female"}},
    .rules = {{{3, 3, 5, 20}, Number(0, 999)},
              {{4, 4}, Number(0, 999), false},
              {{6, 3, 6, 10}, Capitals(5)},
              {{6, 11, 6, 20}, CheckBoxCell()},
              {{7, 3, 7, 20}, Number(0, 9999), false}},
    .totals = {{{7, 3, 7, 20}, {{3, 3, 5, 3}}}},
    .spans = {{2, 1, 7, 1}, {1, 3, 1, 4}, {6, 5, 6, 6}},
    .title = "Table 7",
};

const GridDesign kListDesign = {.columns = 2,
                                .rows = 30,
                                .column_widths = {2000, 2000},
                                .heads = {"Name", "Number"},
                                .title = "Names"};

class TablesForm : public Form {
 public:
  explicit TablesForm(FormHost& host) : Form(host, "frmTables", "Tables") {
    const auto tell = [this](const char* what) {
      return [this, what](int column, int row) {
        heard.push_back(what + (" " + std::to_string(column)) + "," + std::to_string(row));
      };
    };
    for (GridControl* grid : {&table, &list}) {
      grid->on_change = tell("change");
      grid->on_check = tell("check");
      grid->on_click = tell("click");
    }
  }
  Layout Arrange() override { return Space(); }

  GridControl table{*this, "table", kTableDesign};
  GridControl list{*this, "list", kListDesign};
  std::vector<std::string> heard;
};

// A window with the two tables and a button, and the user's hands.
class GridViewTest : public ::testing::Test, public FormsView {
 protected:
  GridViewTest() {
    world_.host.set_view(this);
    world_.host.Register("frmTables",
                         [](FormHost& host) { return std::make_unique<TablesForm>(host); });
    world_.host.Start("frmTables");
    auto* layout = new QVBoxLayout(&window_);
    view_ = new GridView(form().table);
    list_ = new GridView(form().list);
    button_ = new QPushButton("Save");
    layout->addWidget(view_);
    layout->addWidget(list_);
    layout->addWidget(button_);
    window_.resize(420, 500);
    window_.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window_));
    view_->setFocus();
    Go(3, 3);
  }

  void Refresh() override {
    if (view_ == nullptr) return;
    view_->Refresh();
    list_->Refresh();
  }
  void RunModal(Form&) override {}

  TablesForm& form() { return static_cast<TablesForm&>(world_.host.Get("frmTables")); }
  GridControl& table() { return form().table; }
  const std::string& At(int column, int row) { return table().GetText(column, row); }
  // As code does it.
  void Go(int column, int row) {
    table().SetActiveCell(column, row);
    view_->Refresh();
  }
  // Each key goes to whatever has the focus by then.
  void Keys(const char* text) {
    for (const char* key = text; *key != '\0'; ++key) {
      QTest::keyClick(QApplication::focusWidget(), *key);
    }
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }
  QRect Place(GridView& view, int column, int row) {
    return view.visualRect(view.model()->index(row - 1, column - 1));
  }
  void ClickAt(GridView& view, int column, int row) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, Place(view, column, row).center());
  }
  void Paste(const char* text) {
    QApplication::clipboard()->setText(text);
    Key(Qt::Key_V, Qt::ControlModifier);
  }
  // A closed one may wait a little for its end.
  template <typename Widget>
  Widget* Shown(const char* name) {
    for (Widget* widget : window_.findChildren<Widget*>(name)) {
      if (widget->isVisible()) return widget;
    }
    return nullptr;
  }
  QLineEdit* Editor() { return Shown<QLineEdit>("cellEditor"); }
  // What the user is told at the cell.
  std::string Note() {
    const auto* note = Shown<QLabel>("entryNote");
    return note != nullptr ? note->text().toStdString() : "";
  }
  std::vector<std::string> Row(int row) {
    std::vector<std::string> texts;
    for (int column = 3; column <= 7; ++column) texts.push_back(table().GetText(column, row));
    return texts;
  }
  Cell Active() { return {table().ActiveColumn(), table().ActiveRow()}; }
  Cell Current() { return {view_->currentIndex().column() + 1, view_->currentIndex().row() + 1}; }

  HeadlessProgram world_;
  QWidget window_;
  GridView* view_ = nullptr;
  GridView* list_ = nullptr;
  QPushButton* button_ = nullptr;
};

TEST_F(GridViewTest, EnterTakesAnEntryAndWalksTheOpenCells) {
  Keys("12");
  EXPECT_EQ(At(3, 3), "");  // not before it is taken
  Key(Qt::Key_Return);
  Keys("30");
  Key(Qt::Key_Enter);  // of the keypad
  Keys("4");
  Key(Qt::Key_Down);  // an arrow takes it too
  EXPECT_THAT(Row(3), ElementsAre("12", "30", "4", "", "46"));
  EXPECT_EQ(Active(), (Cell{5, 4}));
  Key(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(Active(), (Cell{3, 4})) << "(4,4) is locked";
  EXPECT_EQ(Current(), Active());
  EXPECT_THAT(form().heard, ElementsAre("change 3,3", "change 4,3", "change 5,3"));
}

TEST_F(GridViewTest, KeysOfAnEditor) {
  table().SetText(3, 3, "12");
  Key(Qt::Key_F2);
  Keys("3");  // behind what stands there
  EXPECT_EQ(Editor()->text(), "123");
  Key(Qt::Key_Left);  // stays in the text
  Key(Qt::Key_Escape);
  EXPECT_EQ(Editor(), nullptr);
  EXPECT_EQ(At(3, 3), "12");
  Keys("5");
  Key(Qt::Key_Right);  // typed over: an arrow goes on
  EXPECT_EQ(At(3, 3), "5");
  EXPECT_EQ(Active(), (Cell{4, 3}));
  Go(6, 3);
  Keys("ab");
  EXPECT_EQ(Editor()->text(), "AB");
  Key(Qt::Key_Tab);
  EXPECT_EQ(At(6, 3), "AB");
  EXPECT_EQ(QApplication::focusWidget(), list_);
  Key(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget(), view_);
  Key(Qt::Key_Delete);
  EXPECT_EQ(At(6, 3), "");
  form().heard.clear();
  Go(4, 4);
  Keys("1");
  EXPECT_EQ(Note(), "This cell is locked.");
  Key(Qt::Key_Delete);
  EXPECT_THAT(form().heard, IsEmpty());
}

TEST_F(GridViewTest, CommitsWhenTheUserWorksElsewhere) {
  Keys("5");
  ClickAt(*view_, 3, 5);
  EXPECT_EQ(At(3, 3), "5");
  Keys("6");
  list_->setFocus(Qt::MouseFocusReason);
  EXPECT_EQ(At(3, 5), "6");
}

TEST_F(GridViewTest, PastesABlockThroughTheLimits) {
  table().SetText(4, 4, "8");
  table().SetText(3, 5, "55");
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
  table().SetRowHidden(19, true);
  Go(6, 18);
  Paste("1\t\n1\t5\tz\n0\n");  // row 19 is passed over, the total and column 8 take nothing
  EXPECT_EQ(At(6, 18) + "/" + At(6, 19) + "/" + At(6, 20), "1//1");
  EXPECT_THAT(Note(), AllOf(HasSubstr("2 values did not fit into the table."), HasSubstr("total")));
  Go(6, 3);
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
  table().SetText(3, 3, "1");
  table().SetText(4, 4, "8");
  Key(Qt::Key_Down, Qt::ShiftModifier);
  Key(Qt::Key_Right, Qt::ShiftModifier);
  Key(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "1\t\n\t8");
  EXPECT_EQ(At(3, 3) + "/" + At(4, 4), "/8");
  Paste("5\n");
  EXPECT_THAT(Row(3), ElementsAre("5", "5", "", "", "10"));
  EXPECT_EQ(At(4, 4), "8");
}

TEST_F(GridViewTest, TicksBoxes) {
  Go(6, 12);
  Key(Qt::Key_Space);
  view_->scrollTo(view_->model()->index(12, 5));
  ClickAt(*view_, 6, 13);
  ClickAt(*view_, 6, 13);
  EXPECT_EQ(At(6, 12) + "/" + At(6, 13), "1/0");
  QTest::mouseClick(view_->viewport(), Qt::LeftButton, {},
                    Place(*view_, 6, 13).topLeft() + QPoint(3, 3));  // beside the box
  EXPECT_THAT(form().heard, ElementsAre("check 6,12", "click 6,13", "check 6,13", "click 6,13",
                                        "check 6,13", "click 6,13"));
}

TEST_F(GridViewTest, HeadsAndLabelsStayInView) {
  QHeaderView& heads = *view_->horizontalHeader();
  QHeaderView& labels = *view_->verticalHeader();
  const QImage heads_before = heads.grab().toImage();
  const QImage labels_before = labels.grab().toImage();
  Go(7, 20);
  EXPECT_GT(view_->verticalScrollBar()->value(), 0);
  const QImage heads_after = heads.grab().toImage();
  const int title = 400 * view_->logicalDpiY() / 1440;
  const QRect title_row(0, 0, heads_after.width(), title - 1);
  EXPECT_EQ(heads_before.copy(title_row), heads_after.copy(title_row)) << "the title stays";
  const QRect head_row(0, title, heads_after.width(), heads_after.height() - title);
  EXPECT_NE(heads_before.copy(head_row), heads_after.copy(head_row)) << "the heads go along";
  EXPECT_NE(labels_before, labels.grab().toImage());

  QWheelEvent wheel({5, 5}, labels.mapToGlobal(QPointF(5, 5)), {}, {0, 1200}, {}, {},
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(labels.viewport(), &wheel);
  EXPECT_LT(view_->verticalScrollBar()->value(), view_->verticalScrollBar()->maximum());
  EXPECT_EQ(Active(), (Cell{7, 20})) << "the wheel only scrolls";
  Key(Qt::Key_Home, Qt::ControlModifier);
  Key(Qt::Key_Up);
  Key(Qt::Key_Left);
  EXPECT_EQ(Active(), (Cell{3, 3})) << "the first cell behind what stays in view";
}

TEST_F(GridViewTest, FollowsTheGrid) {
  table().SetRowHidden(5, true);
  table().SetMaxRows(25);
  Go(3, 24);
  EXPECT_EQ(Current(), (Cell{3, 24}));
  EXPECT_TRUE(view_->isRowHidden(4));
  EXPECT_EQ(view_->model()->rowCount(), 25);
  table().SetMaxRows(10);
  view_->Refresh();
  EXPECT_EQ(view_->model()->rowCount(), 10);
  EXPECT_EQ(Current(), (Cell{3, 10}));
  EXPECT_THAT(form().heard, IsEmpty());
}

TEST_F(GridViewTest, ListChoosesRows) {
  list_->setFocus();
  EXPECT_FALSE(list_->selectionModel()->hasSelection()) << "nobody has chosen yet";
  Key(Qt::Key_Down);  // enters the list at its top
  Key(Qt::Key_Down);
  EXPECT_TRUE(list_->selectionModel()->isRowSelected(1));
  ClickAt(*list_, 2, 4);
  QHeaderView& heads = *list_->horizontalHeader();
  QTest::mouseClick(heads.viewport(), Qt::LeftButton, {},
                    {heads.sectionViewportPosition(1) + 5, 5});
  Key(Qt::Key_Left);
  Key(Qt::Key_Return, Qt::ControlModifier);  // the head, without a mouse
  EXPECT_THAT(form().heard, ElementsAre("click 1,1", "click 1,2", "click 2,4", "click 2,0",
                                        "click 1,4", "click 1,0"));
  form().list.SetActiveCell(1, 9);
  list_->Refresh();
  EXPECT_FALSE(list_->selectionModel()->isRowSelected(8)) << "code chose no row";
  QTest::mousePress(list_->viewport(), Qt::LeftButton, {}, Place(*list_, 2, 6).center());
  QTest::mouseRelease(list_->viewport(), Qt::LeftButton, {}, Place(*list_, 2, 7).center());
  EXPECT_TRUE(list_->selectionModel()->isRowSelected(3)) << "neither did what was no click";
  form().list.SetChosenRow(0);
  list_->Refresh();
  EXPECT_FALSE(list_->selectionModel()->hasSelection()) << "the form has forgotten the choice";
}

// What screen readers were told, as "event: name".
std::vector<std::string> told;

void NoteTold(QAccessibleEvent* event) {
  QAccessibleInterface* source = event->accessibleInterface();
  if (source == nullptr || source->role() != QAccessible::Cell) return;
  const char* kind = event->type() == QAccessible::NameChanged    ? "name: "
                     : event->type() == QAccessible::StateChanged ? "state: "
                     : event->type() == QAccessible::Focus        ? "focus: "
                                                                  : nullptr;
  if (kind != nullptr) told.push_back(kind + source->text(QAccessible::Name).toStdString());
}

TEST_F(GridViewTest, SaysWhatItShowsAndWhatChanges) {
  table().SetText(3, 4, "5");
  table().SetNote(7, 4, {"=", "Balances."});
  QAccessibleInterface& accessible = *QAccessible::queryAccessibleInterface(view_);
  EXPECT_EQ(accessible.text(QAccessible::Name), "Table 7");
  EXPECT_EQ(accessible.tableInterface()->columnDescription(2), "First block");
  const auto cell = [&](int column, int row) {
    return accessible.tableInterface()->cellAt(row - 1, column - 1);
  };
  for (const auto& [column, row, text] : {std::tuple{3, 4, "7.1 Female, First block: 5"},
                                          {4, 4, "7.1 Female, Second: empty, locked"},
                                          {7, 4, "7.1 Female, Total: 5, total, Balances."},
                                          {6, 12, "row 12, Remark: not ticked"}}) {
    EXPECT_EQ(cell(column, row)->text(QAccessible::Name), text);
  }
  EXPECT_EQ(accessible.indexOfChild(cell(3, 4)), 4 * 8 + 3) << "as the toolkit counts in events";
  QAccessible::setActive(true);
  const auto before = QAccessible::installUpdateHandler(NoteTold);
  view_->Refresh();
  told.clear();
  Go(3, 3);
  Keys("7");
  Key(Qt::Key_Return);
  EXPECT_THAT(told,
              ::testing::IsSupersetOf({"name: 7.1, First block: 7", "name: 7.1, Total: 7, total"}));
  told.clear();
  Go(3, 3);
  Key(Qt::Key_Delete);
  EXPECT_THAT(told, ::testing::Contains("name: 7.1, Total: empty, total"));
  told.clear();
  cell(6, 12)->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(At(6, 12), "1");
  EXPECT_EQ(form().heard.back(), "check 6,12") << "as after a click on the box";
  EXPECT_THAT(told, ::testing::IsSupersetOf(
                        {"state: row 12, Remark: ticked", "name: row 12, Remark: ticked"}));
  QAccessibleInterface& names = *QAccessible::queryAccessibleInterface(list_);
  CellAccessibleOf(names, 2, 4)->actionInterface()->doAction("Press");
  EXPECT_EQ(form().heard.back(), "click 2,4");
  CellAccessibleOf(names, 2, 0)->actionInterface()->doAction("Press");
  EXPECT_EQ(form().heard.back(), "click 2,0") << "the head, by which a list is sorted";
  QAccessible::installUpdateHandler(before);
  QAccessible::setActive(false);
}

TEST_F(GridViewTest, TakesTheRoomThereIsAndCanBeZoomed) {
  window_.resize(1300, 500);
  QCoreApplication::processEvents();
  const QRect wide = Place(*view_, 7, 3);
  EXPECT_GT(wide.right() + view_->verticalHeader()->width(), view_->width() - 40);
  view_->SetZoom(200);
  EXPECT_NEAR(Place(*view_, 7, 3).height(), 2 * wide.height(), 2);
  Go(3, 3);
  Keys("1");
  EXPECT_GT(Editor()->fontInfo().pixelSize(), 20) << "what is typed is as large";
}

}  // namespace
}  // namespace survey::testing
