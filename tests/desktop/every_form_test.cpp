// What holds on every form of the program, whatever stands on it.

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <set>

#include "desktop/grid_names.h"
#include "desktop_fixture.h"
#include "forms/page_chain.h"

namespace survey::testing {
namespace {

constexpr double kLeastContrast = 4.5;

// Of a colour, as eyes weigh it, from 0 to 1.
double Brightness(const QColor& color) {
  const auto part = [](double share) {
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
  const auto [low, high] = std::minmax({Brightness(a), Brightness(b)});
  return (high + 0.05) / (low + 0.05);
}

class EveryFormTest : public DesktopTest {
 protected:
  template <typename Visit>
  void ForEachForm(QSize window, Visit visit) {
    std::set<std::string> names = {"frmSelectDatabase",  "frmDatabase", "frmSelectCollege",
                                   "frmMainMenu",        "frmAbout",    "frmAddSubjects",
                                   "frmAddQualification"};
    for (const Link& link : PageChain()) names.emplace(link.page);
    if (!survey().DatabaseConnection) OpenSiteAt("frmMainMenu");
    for (const std::string& name : names) {
      SCOPED_TRACE(name);
      Form& form = desktop_->forms().Get(name);
      form.EducatorId = "8001015009087";
      form.FormMode = "New";
      desktop_->forms().Start(name);
      desktop_->view().window().resize(window);
      QCoreApplication::processEvents();
      ASSERT_EQ(Front(), name);
      visit(form, user_->Front());
      desktop_->forms().Unload(form);
    }
  }

  // Those on screen, tables' editors and the like left out.
  template <typename Visit>
  void ForEachShown(Form& form, Visit visit) {
    for (const Control* control : form.controls()) {
      auto* widget =
          user_->Front().findChild<QWidget*>(QString::fromStdString(control->ObjectName()));
      if (widget == nullptr || !widget->isVisible()) continue;
      SCOPED_TRACE(control->ObjectName());
      visit(*control, *widget);
    }
  }
};

// ---- Keys ----------------------------------------------------------------------------------

// Types a figure into every open cell, going on by ENTER alone, and fails where the cursor leaves
// the order of reading, rests on a closed cell or passes an open one by. The table has the focus.
void FillByEnter(GridControl& grid) {
  const auto active = [&] { return Cell{grid.ActiveColumn(), grid.ActiveRow()}; };
  const auto by_row = [](Cell a, Cell b) {
    return std::pair(a.row, a.column) < std::pair(b.row, b.column);
  };
  for (Cell last; last != active();) {
    last = active();
    ASSERT_TRUE(grid.IsOpen(last.column, last.row)) << CellName(grid, last).toStdString();
    const bool date = grid.Kind(last.column, last.row).type == CellKind::Type::kDate;
    const double least = grid.Kind(last.column, last.row).minimum;
    for (const char key : std::string(date ? "20120229" : least > 1 ? "5" : "1")) {
      QTest::keyClick(QApplication::focusWidget(), key);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    ASSERT_NE(grid.GetText(last.column, last.row), "") << CellName(grid, last).toStdString();
    ASSERT_TRUE(active() == last || by_row(last, active()));
    const int end = active() == last ? grid.MaxRows() : active().row;
    for (int row = last.row; row <= end; ++row) {
      for (int column = 1; column <= grid.MaxColumns(); ++column) {
        const Cell cell{column, row};
        const bool passed = by_row(last, cell) && (by_row(cell, active()) || active() == last);
        ASSERT_FALSE(passed && grid.IsOpen(column, row)) << CellName(grid, cell).toStdString();
      }
    }
  }
}

TEST_F(EveryFormTest, ATableIsFilledByFiguresAndEnterAlone) {
  int tables = 0;
  ForEachForm({640, 420}, [&](Form& form, FormWidget&) {
    ForEachShown(form, [&](const Control& control, QWidget& widget) {
      auto* grid = const_cast<GridControl*>(dynamic_cast<const GridControl*>(&control));
      if (grid == nullptr || !grid->NextOpenCell({0, 0})) return;
      ++tables;
      widget.setFocus();
      ASSERT_TRUE(user_->Focus().hasFocus());
      FillByEnter(*grid);
      user_->Press(Qt::Key_Tab);
      EXPECT_FALSE(widget.hasFocus());
      user_->Press(Qt::Key_Backtab, Qt::ShiftModifier);
      EXPECT_TRUE(widget.hasFocus());
    });
  });
  EXPECT_GT(tables, 30);
}

// Options that exclude each other are one stop, and arrows choose among them.
const void* StopOf(const Control& control, const QWidget& widget) {
  const auto* button = qobject_cast<const QAbstractButton*>(&widget);
  if (dynamic_cast<const OptionButton*>(&control) == nullptr) return &widget;
  return button->group();
}

TEST_F(EveryFormTest, TabReachesEveryControlAndNoKeyHasTwoButtons) {
  ForEachForm({1366, 700}, [&](Form& form, FormWidget& widget) {
    std::set<const QWidget*> reached;
    QWidget* first = &user_->Focus();
    EXPECT_TRUE(widget.isAncestorOf(first)) << "where the form begins";
    for (QWidget* focus = first; reached.insert(focus).second; focus = &user_->Focus()) {
      user_->Press(Qt::Key_Tab);
    }
    std::set<const void*> stops;
    std::set<QKeySequence> keys;
    ForEachShown(form, [&](const Control& control, const QWidget& shown) {
      if (reached.contains(&shown)) stops.insert(StopOf(control, shown));
    });
    ForEachShown(form, [&](const Control& control, const QWidget& shown) {
      const auto* box = qobject_cast<const QLineEdit*>(&shown);
      if (shown.focusPolicy() == Qt::NoFocus || !shown.isEnabled()) return;
      if (box == nullptr || !box->isReadOnly()) {
        EXPECT_TRUE(stops.contains(StopOf(control, shown)));
      }
      const auto* button = qobject_cast<const QAbstractButton*>(&shown);
      if (button == nullptr || button->shortcut().isEmpty()) return;
      EXPECT_TRUE(keys.insert(button->shortcut()).second);
      const QString key = button->shortcut().toString(QKeySequence::NativeText);
      EXPECT_TRUE(button->toolTip().contains(key) || button->text().contains('&'));
    });
    for (const char* name : {"cmdSave", "cmdPrintPage", "cmdNext", "cmdPrevious", "cmdMenu"}) {
      const auto* button = widget.findChild<QAbstractButton*>(name);
      EXPECT_TRUE(button == nullptr || !button->shortcut().isEmpty()) << name;
    }
  });
}

// ---- Eyes ----------------------------------------------------------------------------------

void ExpectNamed(QAccessibleInterface& spoken) {
  if (spoken.state().invisible || spoken.role() == QAccessible::Cell) return;
  static const std::set<QAccessible::Role> kControls = {
      QAccessible::PushButton,  QAccessible::CheckBox, QAccessible::RadioButton,
      QAccessible::ComboBox,    QAccessible::Table,    QAccessible::List,
      QAccessible::EditableText};
  const QWidget* widget = qobject_cast<QWidget*>(spoken.object());
  const bool is_part = widget != nullptr && qobject_cast<QComboBox*>(widget->parentWidget());
  if (kControls.contains(spoken.role()) && !is_part) {
    EXPECT_FALSE(spoken.text(QAccessible::Name).trimmed().isEmpty())
        << spoken.object()->objectName().toStdString();
  }
  if (spoken.tableInterface() != nullptr) return;
  for (int child = 0; child < spoken.childCount(); ++child) {
    if (QAccessibleInterface* part = spoken.child(child)) ExpectNamed(*part);
  }
}

void ExpectCellsNamed(const GridControl& grid, QWidget& widget) {
  QAccessibleTableInterface& table =
      *QAccessible::queryAccessibleInterface(&widget)->tableInterface();
  std::set<QString> names;
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    for (int column = 1; column <= grid.MaxColumns(); ++column) {
      if (!grid.IsOpen(column, row)) continue;
      const QString name = CellName(grid, {column, row});
      EXPECT_FALSE(name.contains("row ")) << name.toStdString();
      EXPECT_TRUE(names.insert(name).second) << "called twice: " << name.toStdString();
      const QString spoken = table.cellAt(row - 1, column - 1)->text(QAccessible::Name);
      EXPECT_TRUE(spoken.startsWith(TableName(grid) + ", " + name + ": ")) << spoken.toStdString();
    }
  }
}

TEST_F(EveryFormTest, ScreenReadersFindANameForEveryControlAndCell) {
  ForEachForm({1366, 700}, [&](Form& form, FormWidget& widget) {
    ExpectNamed(*QAccessible::queryAccessibleInterface(&widget));
    ForEachShown(form, [](const Control& control, QWidget& shown) {
      if (const auto* grid = dynamic_cast<const GridControl*>(&control)) {
        ExpectCellsNamed(*grid, shown);
      }
    });
  });
}

void ExpectWhole(const Control& control, QWidget& widget) {
  if (const auto* label = qobject_cast<QLabel*>(&widget)) {
    EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    EXPECT_TRUE(label->wordWrap() || label->width() >= label->sizeHint().width());
  } else if (const auto* grid = qobject_cast<GridView*>(&widget)) {
    EXPECT_GT(grid->viewport()->height(), 15) << "a row is seen below the heads";
    EXPECT_GT(grid->viewport()->width(), 60) << "and a cell beside the labels";
    const int beyond = grid->horizontalScrollBar()->maximum();
    EXPECT_TRUE(beyond == 0 || beyond > 5) << "a bar for nothing";
  } else if (qobject_cast<QAbstractButton*>(&widget) != nullptr) {
    EXPECT_GE(widget.width(), widget.sizeHint().width());
    EXPECT_GE(widget.height(), widget.sizeHint().height());
    EXPECT_TRUE(control.name() != "cmdSave" || !widget.visibleRegion().isEmpty())
        << "Save is in view however long the page is";
  } else if (qobject_cast<QGroupBox*>(&widget) == nullptr) {
    EXPECT_GE(widget.height(), widget.minimumSizeHint().height());
  }
}

QPalette DarkPalette() {
  QPalette palette(QColor(45, 45, 45));
  palette.setColor(QPalette::Base, QColor(25, 25, 25));
  return palette;
}

void ExpectReadable(const QWidget& widget) {
  if (!widget.isEnabled()) return;
  const bool is_push = widget.inherits("QPushButton");
  const bool is_field = widget.inherits("QLineEdit") || widget.inherits("QAbstractItemView");
  const QPalette& palette = widget.palette();
  const auto text = is_push    ? QPalette::ButtonText
                    : is_field ? QPalette::Text
                               : QPalette::WindowText;
  const auto ground = is_push ? QPalette::Button : is_field ? QPalette::Base : QPalette::Window;
  EXPECT_GE(Contrast(palette.color(text), palette.color(ground)), kLeastContrast);
}

// The fonts and screens that desktops offer; 960 x 540 is full HD at 200 %.
TEST_F(EveryFormTest, NothingIsCutOffAndAllCanBeRead) {
  const QFont usual = QApplication::font();
  const QPalette light = QApplication::palette();
  for (const auto& [points, window] : {std::pair(7, QSize(1366, 700)),
                                       {9, QSize(1366, 700)},
                                       {9, QSize(1092, 564)},
                                       {9, QSize(960, 490)},
                                       {18, QSize(1366, 700)}}) {
    SCOPED_TRACE(std::to_string(points) + " points, " + std::to_string(window.width()));
    QFont font = usual;
    font.setPointSize(points);
    QApplication::setFont(font);
    if (window.width() == 960) QApplication::setPalette(DarkPalette());
    ForEachForm(window, [&](Form& form, FormWidget& widget) {
      EXPECT_EQ(desktop_->view().window().size(), window) << "it wants a larger screen";
      EXPECT_EQ(widget.findChild<QScrollArea*>()->horizontalScrollBar()->maximum(), 0);
      ForEachShown(form, [](const Control& control, QWidget& shown) {
        ExpectWhole(control, shown);
        ExpectReadable(shown);
      });
    });
    QApplication::setPalette(light);
  }
  QApplication::setFont(usual);
  // The texts of a table are black under any theme.
  for (const Color color : {kWhite, kLockedGrey, kGreen, kRed, kYellow}) {
    const QColor ground(color & 0xFFU, (color >> 8U) & 0xFFU, (color >> 16U) & 0xFFU);
    EXPECT_GE(Contrast(Qt::black, ground), kLeastContrast) << ground.name().toStdString();
  }
}

}  // namespace
}  // namespace survey::testing
