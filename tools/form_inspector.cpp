#include "form_inspector.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <cmath>
#include <set>

#include "desktop/grid_names.h"

namespace survey {
namespace {

constexpr double kLeastContrast = 4.5;

// Of a colour, as eyes weigh it, from 0 to 1.
double Brightness(const QColor& color) {
  const auto part = [](double share) {
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

bool IsReadable(const QWidget& widget) {
  const bool is_push = widget.inherits("QPushButton");
  const bool is_field = widget.inherits("QLineEdit") || widget.inherits("QAbstractItemView");
  const QPalette& palette = widget.palette();
  const auto text = is_push    ? QPalette::ButtonText
                    : is_field ? QPalette::Text
                               : QPalette::WindowText;
  const auto ground = is_push ? QPalette::Button : is_field ? QPalette::Base : QPalette::Window;
  return Contrast(palette.color(text), palette.color(ground)) >= kLeastContrast;
}

FormWidget* FormIn(const QWidget& window) {
  for (FormWidget* form : window.findChildren<FormWidget*>()) {
    if (form->isVisible()) return form;
  }
  return nullptr;
}

// The controls that are on screen, without tables' editors and the like.
template <typename Visit>
void ForEachShown(const FormWidget& form, Visit visit) {
  for (Control* control : form.form().controls()) {
    auto* widget = form.findChild<QWidget*>(QString::fromStdString(control->ObjectName()));
    if (widget != nullptr && widget->isVisible()) visit(*control, *widget);
  }
}

// Options that exclude each other are one stop, and arrows choose among them.
const void* StopOf(const QWidget& widget, const Control& control) {
  if (dynamic_cast<const OptionButton*>(&control) == nullptr) return &widget;
  return qobject_cast<const QAbstractButton*>(&widget)->group();
}

bool IsBefore(Cell a, Cell b) { return std::pair(a.row, a.column) < std::pair(b.row, b.column); }

}  // namespace

double Contrast(const QColor& a, const QColor& b) {
  const auto [low, high] = std::minmax({Brightness(a), Brightness(b)});
  return (high + 0.05) / (low + 0.05);
}

std::vector<std::string> FormInspector::TakeFaults() { return std::exchange(faults_, {}); }

void FormInspector::Require(bool holds, const QObject& where, const std::string& fault) {
  if (holds) return;
  const QObject* form = &where;
  while (form != nullptr && qobject_cast<const FormWidget*>(form) == nullptr) form = form->parent();
  const QString place = form == nullptr ? QString("box") : form->objectName();
  faults_.push_back((place + " " + where.objectName()).toStdString() + ": " + fault);
}

// ---- Eyes ----------------------------------------------------------------------------------

void FormInspector::Look(const QWidget& window) {
  if (const FormWidget* form = FormIn(window)) return LookAtForm(*form);
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    const bool has_text = widget->inherits("QLabel") || widget->inherits("QAbstractButton");
    if (has_text && widget->isVisible()) LookAt(*widget);
  }
}

void FormInspector::LookAtForm(const FormWidget& form) {
  const auto* scroll = form.findChild<QScrollArea*>();
  Require(scroll->horizontalScrollBar()->maximum() == 0, form, "is wider than its window");
  ForEachShown(form, [this](const Control& control, const QWidget& widget) {
    LookAt(widget);
    Require(control.name() != "cmdSave" || !widget.visibleRegion().isEmpty(), widget,
            "is not in view, long as the page is");
  });
}

void FormInspector::LookAt(const QWidget& widget) {
  const auto require_room = [&](bool whole) { Require(whole, widget, "is cut off"); };
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    require_room(label->height() >= label->heightForWidth(label->width()));
    require_room(label->wordWrap() || label->width() >= label->sizeHint().width());
  } else if (const auto* grid = qobject_cast<const GridView*>(&widget)) {
    LookAtTable(*grid);
  } else if (qobject_cast<const QAbstractButton*>(&widget) != nullptr) {
    require_room(widget.width() >= widget.minimumSizeHint().width());
    require_room(widget.height() >= widget.minimumSizeHint().height());
  } else if (qobject_cast<const QGroupBox*>(&widget) == nullptr) {
    require_room(widget.height() >= widget.minimumSizeHint().height());
  }
  Require(!widget.isEnabled() || IsReadable(widget), widget, "does not stand out from its ground");
}

void FormInspector::LookAtTable(const GridView& table) {
  Require(table.viewport()->height() > 15, table, "shows no row below its heads");
  Require(table.viewport()->width() > 60, table, "shows no cell beside its labels");
  const int beyond = table.horizontalScrollBar()->maximum();
  Require(beyond == 0 || beyond > 5, table, "has a bar for nothing");
}

// ---- Ears ----------------------------------------------------------------------------------

void FormInspector::Listen(QWidget& window) {
  ListenTo(*QAccessible::queryAccessibleInterface(&window));
  const FormWidget* form = FormIn(window);
  if (form == nullptr) return;
  ForEachShown(*form, [this](const Control& control, QWidget& widget) {
    if (const auto* grid = dynamic_cast<const Grid*>(&control)) ListenToCells(*grid, widget);
  });
}

void FormInspector::ListenTo(QAccessibleInterface& spoken) {
  if (spoken.state().invisible || spoken.role() == QAccessible::Cell) return;
  static const std::set<QAccessible::Role> kControls = {
      QAccessible::PushButton,  QAccessible::CheckBox, QAccessible::RadioButton,
      QAccessible::ComboBox,    QAccessible::Table,    QAccessible::List,
      QAccessible::EditableText};
  const auto* widget = qobject_cast<QWidget*>(spoken.object());
  const bool is_part = widget != nullptr && qobject_cast<QComboBox*>(widget->parentWidget());
  if (kControls.contains(spoken.role()) && !is_part) {
    Require(!spoken.text(QAccessible::Name).trimmed().isEmpty(), *spoken.object(), "has no name");
  }
  if (spoken.tableInterface() != nullptr) return;
  for (int child = 0; child < spoken.childCount(); ++child) {
    if (QAccessibleInterface* part = spoken.child(child)) ListenTo(*part);
  }
}

void FormInspector::ListenToCells(const Grid& grid, QWidget& widget) {
  QAccessibleTableInterface& table =
      *QAccessible::queryAccessibleInterface(&widget)->tableInterface();
  std::set<QString> names;
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    for (int column = 1; column <= grid.MaxColumns(); ++column) {
      if (!grid.IsToFill(column, row)) continue;
      const QString name = CellName(grid, {column, row});
      Require(!name.contains("row "), widget, name.toStdString() + " is a number alone");
      Require(names.insert(name).second, widget, "two cells are called " + name.toStdString());
      const QString spoken = table.cellAt(row - 1, column - 1)->text(QAccessible::Name);
      Require(spoken.startsWith(name + ": "), widget,
              name.toStdString() + " is spoken as " + spoken.toStdString());
    }
  }
}

// ---- Keys ----------------------------------------------------------------------------------

void FormInspector::WalkByTab() {
  const FormWidget& form = user_.Front();
  std::set<const QWidget*> reached;
  const QWidget* first = &user_.Focus();
  Require(form.isAncestorOf(first), form, "does not have the focus where it begins");
  for (const QWidget* focus = first; reached.insert(focus).second; focus = &user_.Focus()) {
    user_.Press(Qt::Key_Tab);
  }
  std::set<const void*> stops;
  ForEachShown(form, [&](const Control& control, const QWidget& shown) {
    if (reached.contains(&shown)) stops.insert(StopOf(shown, control));
  });
  ForEachShown(form, [&](const Control& control, const QWidget& shown) {
    if (shown.focusPolicy() == Qt::NoFocus || !shown.isEnabled()) return;
    const auto* box = qobject_cast<const QLineEdit*>(&shown);
    const bool is_closed = box != nullptr && box->isReadOnly();
    Require(is_closed || stops.contains(StopOf(shown, control)), shown, "is not reached by TAB");
  });
  CheckKeys(form);
}

void FormInspector::CheckKeys(const FormWidget& form) {
  std::set<QKeySequence> keys;
  ForEachShown(form, [&](const Control&, const QWidget& shown) {
    const auto* button = qobject_cast<const QAbstractButton*>(&shown);
    if (button == nullptr || !button->isEnabled() || button->shortcut().isEmpty()) return;
    Require(keys.insert(button->shortcut()).second, shown, "shares its key with another");
    const QString key = button->shortcut().toString(QKeySequence::NativeText);
    Require(button->toolTip().contains(key) || button->text().contains('&'), shown,
            "does not tell its key");
  });
  for (const char* name : {"cmdSave", "cmdPrintPage", "cmdNext", "cmdPrevious", "cmdMenu"}) {
    const auto* button = form.findChild<QAbstractButton*>(name);
    if (button != nullptr) Require(!button->shortcut().isEmpty(), *button, "has no key");
  }
}

void FormInspector::FillTables() {
  ForEachShown(user_.Front(), [this](Control& control, QWidget& widget) {
    auto* grid = dynamic_cast<GridControl*>(&control);
    if (grid == nullptr || !grid->NextOpenCell({0, 0})) return;
    ++tables_filled_;
    widget.setFocus();
    user_.Focus();
    Require(widget.hasFocus(), widget, "takes no focus");
    FillByEnter(*grid, widget);
    widget.setFocus();  // the last ENTER has run on
    user_.Press(Qt::Key_Tab);
    Require(!widget.hasFocus(), widget, "is not left by TAB");
    user_.Press(Qt::Key_Backtab, Qt::ShiftModifier);
    Require(widget.hasFocus(), widget, "is not found again by TAB");
  });
}

void FormInspector::FillByEnter(GridControl& grid, const QWidget& widget) {
  const auto active = [&] { return Cell{grid.ActiveColumn(), grid.ActiveRow()}; };
  for (Cell last; last != active();) {
    last = active();
    const std::string cell = CellName(grid, last).toStdString();
    if (!grid.IsOpen(last.column, last.row)) return Require(false, widget, cell + " is closed");
    const bool is_head =
        last.row <= grid.design().head_rows || last.column <= grid.design().label_columns;
    Require(!is_head, widget, cell + " is among the heads and labels that stay in view");
    const CellKind& kind = grid.Kind(last.column, last.row);
    const bool is_date = kind.type == CellKind::Type::kDate;
    for (const char key : std::string(is_date ? "20120229" : kind.minimum > 1 ? "5" : "1")) {
      QTest::keyClick(QApplication::focusWidget(), key);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    Require(!grid.GetText(last.column, last.row).empty(), widget, cell + " takes no figure");
    if (IsBefore(active(), last)) return Require(false, widget, cell + " leads back");
    ExpectNonePassed(grid, last, active(), widget);
  }
}

// Where the cursor stays there is no open cell behind it.
void FormInspector::ExpectNonePassed(const Grid& grid, Cell from, Cell to, const QWidget& widget) {
  const bool is_last = from == to;
  for (int row = from.row; row <= (is_last ? grid.MaxRows() : to.row); ++row) {
    for (int column = 1; column <= grid.MaxColumns(); ++column) {
      const Cell cell{column, row};
      const bool passed = IsBefore(from, cell) && (is_last || IsBefore(cell, to));
      Require(!passed || !grid.IsOpen(column, row), widget,
              CellName(grid, cell).toStdString() + " is passed by");
    }
  }
}

}  // namespace survey
