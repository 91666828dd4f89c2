#ifndef TESTS_DESKTOP_TABLES_FIXTURE_H_
#define TESTS_DESKTOP_TABLES_FIXTURE_H_

#include <gmock/gmock.h>

#include <QCheckBox>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

#include "desktop/grid_view.h"
#include "desktop_fixture.h"

namespace survey::testing {

// Pairs of rows as in the survey's own tables: a title over all, labels of the pair, a total.
inline const GridDesign kPairsDesign = {
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

inline const GridDesign kListDesign = {.columns = 2,
                                       .rows = 30,
                                       .column_widths = {2000, 2000},
                                       .heads = {"Name", "Number"},
                                       .title = "Names"};

// A whole number, a decimal one, a telephone number, capitals, a date, words.
constexpr int kKinds = 6;
inline const GridDesign kKindsDesign = {.columns = 2,
                                        .rows = kKinds,
                                        .column_widths = {1500, 3000},
                                        .label_columns = 1,
                                        .rules = {{{2, 1}, Number(0, 99999)},
                                                  {{2, 2}, Number(-9999999.99, 9999999.99, 3)},
                                                  {{2, 3}, Digits(10)},
                                                  {{2, 4}, Capitals(12)},
                                                  {{2, 5}, Date()},
                                                  {{2, 6}, Text(12)}}};

// Two rows of figures, boxes and a total; what stands in the last column has only a label.
inline const GridDesign kCountsDesign = {.columns = 4,
                                         .rows = 3,
                                         .column_widths = {900, 900, 900, 900},
                                         .head_rows = 1,
                                         .texts = {{1, 1, "Men"}, {2, 1, "Women"}, {3, 1, "Box"}},
                                         .rules = {{{1, 2, 2, 3}, Number(0, 99)},
                                                   {{3, 2, 3, 3}, CheckBoxCell()},
                                                   {{4, 2, 4, 3}, Number(0, 999), false}},
                                         .totals = {{{4, 2, 4, 3}, {{1, 2, 2, 2}}}}};

class TablesForm : public Form {
 public:
  explicit TablesForm(FormHost& host) : Form(host, "frmTables", "Tables") {
    const auto mark = [this](int, int) { cmdSave.BackColor = kYellow; };
    kinds.on_change = counts.on_change = counts.on_check = mark;
    cmdSave.on_click = [this] { ++saves; };
    cmdSave.on_key_down = [this] { ++keys; };
    chkOther.on_click = [this] { ++saves; };
  }
  Layout Arrange() override {
    return ColumnOf({Place(pairs), Place(list), Place(kinds), Place(chkOther), Place(txtOther),
                     Place(counts), FootOf(RowOf({Place(cmdSave), Place(cmdNext)}))});
  }

  GridControl pairs{*this, "pairs", kPairsDesign};
  GridControl list{*this, "list", kListDesign};
  GridControl kinds{*this, "kinds", kKindsDesign};
  CheckBox chkOther{*this, "chkOther", "Other"};
  TextBox txtOther{*this, "txtOther", "Other"};
  GridControl counts{*this, "counts", kCountsDesign};
  Button cmdSave{*this, "cmdSave", "Save", ButtonRole::kSave};
  Button cmdNext{*this, "cmdNext", "Next"};
  int saves = 0;
  int keys = 0;
};

// The table of pairs has the focus in its first open cell.
class TablesTest : public DesktopTest {
 protected:
  TablesTest() {
    desktop_->host().Register<TablesForm>("frmTables");
    desktop_->host().Start("frmTables");
    GoTo(3, 3);
  }
  TablesForm& form() { return dynamic_cast<TablesForm&>(desktop_->host().Get("frmTables")); }
  GridControl& pairs() { return form().pairs; }
  GridView& Table(const std::string& name) { return user_->The<GridView>(name); }
  const std::string& At(int column, int row) { return pairs().GetText(column, row); }
  const std::string& At(int row) { return form().kinds.GetText(2, row); }
  // As code does it.
  void GoTo(GridControl& grid, int column, int row) {
    grid.SetActiveCell(column, row);
    GridView& view = Table(grid.ObjectName());
    view.Refresh();
    view.setFocus();
  }
  void GoTo(int column, int row) { GoTo(pairs(), column, row); }
  void Go(int row, const char* text) {
    form().kinds.SetText(2, row, text);
    GoTo(form().kinds, 2, row);
  }
  // A closed one may wait a little for its end.
  template <typename Widget>
  Widget* Shown(const char* name) {
    for (Widget* widget : desktop_->view().window().findChildren<Widget*>(name)) {
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
  bool IsRed() { return Editor()->grab().toImage().pixelColor(0, 0) == QColor(192, 0, 0); }
  void Paste(const char* text) {
    QApplication::clipboard()->setText(text);
    user_->Press(Qt::Key_V, Qt::ControlModifier);
  }
  void Undo() { user_->Press(Qt::Key_Z, Qt::ControlModifier); }
  void Redo() { user_->Press(Qt::Key_Y, Qt::ControlModifier); }
  static QRect Place(const GridView& view, int column, int row) {
    return view.visualRect(view.model()->index(row - 1, column - 1));
  }
  // What the pairs and the total of a row show.
  std::vector<std::string> Row(int row) {
    return {At(3, row), At(4, row), At(5, row), At(6, row), At(7, row)};
  }
  Cell Active() { return {pairs().ActiveColumn(), pairs().ActiveRow()}; }
  Cell Current() {
    const QModelIndex current = Table("pairs").currentIndex();
    return {current.column() + 1, current.row() + 1};
  }
  // The figures, boxes and totals of both rows.
  std::string Counts() {
    std::string texts;
    for (int row = 2; row <= 3; ++row) {
      for (int column = 1; column <= 4; ++column) {
        texts += form().counts.GetText(column, row) + (column < 4 ? "," : ";");
      }
    }
    return texts;
  }
};

}  // namespace survey::testing

#endif  // TESTS_DESKTOP_TABLES_FIXTURE_H_
