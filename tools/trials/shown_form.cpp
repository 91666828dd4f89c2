#include "shown_form.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

#include "desktop/form_widget.h"
#include "desktop/grid_names.h"
#include "desktop/grid_view.h"
#include "findings.h"
#include "forms/form.h"

namespace survey {
namespace {

using testing::Findings;

std::string Place(int column, int row) {
  return " (" + std::to_string(column) + "," + std::to_string(row) + ")";
}

void CheckText(Findings& findings, const QString& shown, const std::string& held) {
  findings.Require(shown == QString::fromStdString(held),
                   "shows \"" + shown.toStdString() + "\" for \"" + held + "\"");
}

void CheckEntries(Findings& findings, const QAbstractItemModel& model,
                  const std::vector<ListItem>& items) {
  findings.Require(model.rowCount() == static_cast<int>(items.size()), "number of entries");
  for (int row = 0; row < model.rowCount() && row < static_cast<int>(items.size()); ++row) {
    CheckText(findings, model.index(row, 0).data().toString(), items[row].text);
  }
}

void CheckGrid(Findings& findings, const GridView& view, const GridControl& grid) {
  const QAbstractItemModel& model = *view.model();
  findings.Require(model.rowCount() == grid.MaxRows(), "number of rows");
  const Cell current{view.currentIndex().column() + 1, view.currentIndex().row() + 1};
  const Cell active{grid.ActiveColumn(), grid.ActiveRow()};
  findings.Require(current == active || !grid.Has(active.column, active.row),
                   "the cursor is on" + Place(current.column, current.row) + ", the active cell" +
                       Place(active.column, active.row));
  for (const QModelIndex& chosen : view.selectionModel()->selectedIndexes()) {
    if (view.selectionBehavior() != QAbstractItemView::SelectRows) break;
    findings.Require(chosen.row() + 1 == active.row, "row " + std::to_string(chosen.row() + 1) +
                                                         " is chosen, the active one is " +
                                                         std::to_string(active.row));
  }
  for (int row = 1; row <= model.rowCount(); ++row) {
    findings.Require(!grid.IsRowHidden(row) || view.isRowHidden(row - 1),
                     "row " + std::to_string(row) + " is seen");
    for (int column = 1; column <= model.columnCount(); ++column) {
      const QModelIndex index = model.index(row - 1, column - 1);
      findings.Require(index.data().toString() == ShownText(grid, {column, row}),
                       "text of" + Place(column, row));
      findings.Require(!(index.flags() & Qt::ItemIsEditable) || grid.IsOpen(column, row),
                       "closed cell" + Place(column, row) + " takes typing");
    }
  }
}

void CheckCombo(Findings& findings, const QComboBox& widget, const ComboBox& box) {
  CheckEntries(findings, *widget.model(), box.items());
  findings.Require(widget.currentIndex() == box.ListIndex(), "chosen entry");
  if (widget.lineEdit() != nullptr) CheckText(findings, widget.lineEdit()->text(), box.Text());
}

void CheckList(Findings& findings, const QListView& widget, const ListBox& list) {
  CheckEntries(findings, *widget.model(), list.items());
  const QModelIndexList chosen = widget.selectionModel()->selectedIndexes();
  findings.Require((chosen.isEmpty() ? -1 : chosen.constFirst().row()) == list.ListIndex(),
                   "chosen entry");
}

void CheckButton(Findings& findings, const QAbstractButton& widget, const Button& button) {
  CheckText(findings, widget.text(), button.Caption);
  const bool yellow = widget.palette().color(QPalette::Button) == Qt::yellow;
  findings.Require(yellow == (button.BackColor == kYellow), "yellow, or not");
}

template <typename Kind>
const Kind& As(const QWidget& widget) {
  return dynamic_cast<const Kind&>(widget);
}

void CheckKind(Findings& findings, const QWidget& widget, const Control& control) {
  if (const auto* grid = dynamic_cast<const GridControl*>(&control)) {
    CheckGrid(findings, As<GridView>(widget), *grid);
  } else if (const auto* button = dynamic_cast<const Button*>(&control)) {
    CheckButton(findings, As<QPushButton>(widget), *button);
  } else if (const auto* label = dynamic_cast<const Label*>(&control)) {
    CheckText(findings, As<QLabel>(widget).text(), label->Caption);
  } else if (const auto* box = dynamic_cast<const CheckBox*>(&control)) {
    findings.Require(As<QAbstractButton>(widget).isChecked() == box->Value(), "tick");
  } else if (const auto* option = dynamic_cast<const OptionButton*>(&control)) {
    findings.Require(As<QAbstractButton>(widget).isChecked() == option->Value(), "choice");
  } else if (const auto* text = dynamic_cast<const TextBox*>(&control)) {
    CheckText(findings, As<QLineEdit>(widget).text(), text->Text);
    findings.Require(As<QLineEdit>(widget).isReadOnly() == text->Locked, "locked, or not");
  } else if (const auto* list = dynamic_cast<const ListBox*>(&control)) {
    CheckList(findings, As<QListView>(widget), *list);
  } else if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) {
    CheckCombo(findings, As<QComboBox>(widget), *combo);
  }
}

}  // namespace

std::string WhereShownDiffers(const FormWidget& shown) {
  for (const Control* control : shown.form().controls()) {
    const auto name = control->ObjectName();
    const auto* widget = shown.findChild<QWidget*>(QString::fromStdString(name));
    if (widget == nullptr) continue;  // a control that the layout leaves out
    Findings findings(shown.form().name() + " " + name);
    findings.Require(widget->isHidden() != control->Visible, "seen, or not");
    findings.Require(control->Enabled || !widget->isEnabled(), "enabled, or not");
    CheckKind(findings, *widget, *control);
    if (!findings.first().empty()) return findings.first();
  }
  return {};
}

}  // namespace survey
