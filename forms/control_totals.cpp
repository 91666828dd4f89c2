#include "forms/control_totals.h"

#include <cmath>

#include "base/text.h"

namespace survey {
namespace {

constexpr char kAdvice[] =
    "Green totals balance with the control table. Red totals do not balance with the control table "
    "and will result in an audit query.";

void Paint(Grid& grid, Cell cell, double total, double control_total) {
  const double difference = total - control_total;
  if (difference == 0) {
    grid.SetBackColor(cell.column, cell.row, kGreen);
    grid.SetNote(cell.column, cell.row, {"=", "Balances with the control table."});
    return;
  }
  grid.SetBackColor(cell.column, cell.row, kRed);
  grid.SetNote(
      cell.column, cell.row,
      {"\u2260", NumberText(std::abs(difference)) + (difference > 0 ? " more than" : " less than") +
                     " the control table (" + NumberText(control_total) + ")."});
}

}  // namespace

ControlTotals::ControlTotals(SurveyPage& page, const char* advice_name)
    : page_(page), advice_(page, advice_name, kAdvice) {
  for (const Reconciliation& row : page.row().totals) {
    boxes_.push_back(
        {&row, std::make_unique<Label>(page, std::string(row.label_name), std::string(row.label)),
         std::make_unique<TextBox>(page, std::string(row.text_box), std::string(row.label))});
    boxes_.back().text_box->Locked = true;
    boxes_.back().text_box->Centered = true;
  }
}

void ControlTotals::Fill() {
  for (const Box& box : boxes_) {
    box.text_box->Text = NumberText(page_.host().survey().ControlTotal(box.row->code));
  }
}

void ControlTotals::Check() {
  for (const Box& box : boxes_) {
    Grid& grid = page_.Find<Grid>(box.row->grid, box.row->index);
    const Cell cell = box.row->total;
    Paint(grid, cell, LeadingNumber(grid.GetText(cell.column, cell.row)),
          LeadingNumber(box.text_box->Text));
  }
}

Layout ControlTotals::Arrange() {
  std::vector<Layout> totals;
  for (const Box& box : boxes_) {
    totals.push_back(Place(*box.label));
    totals.push_back(Place(*box.text_box));
  }
  totals.push_back(Space());
  return ColumnOf({RowOf(std::move(totals)), Place(advice_)});
}

}  // namespace survey
