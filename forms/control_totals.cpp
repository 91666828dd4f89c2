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

// clang-format off
const std::vector<Reconciliation>& Reconciliations() {
  static const std::vector<Reconciliation> rows = {
      {"frmPage6_1", "gridPage6_2", 1, {14, 10}, "txtN3", 4,
       "lblN3", "Control Total:Table 2.5.4:N4"},
      {"frmPage6_1", "gridPage6_2", 0, {14, 10}, "txtN4", 5,
       "lblN4", "Control Total:Table 2.5.5:N5"},
      {"frmPage6_1", "grid191", 0, {14, 10}, "txtN5", 6,
       "lblN5", "Control Total: Table 2.5.6: N6"},
      {"frmPage8", "gridNCV", 1, {14, 23}, "txtL2", 9,
       "Label2", "Control Total: Table 2.5.9: Level 2"},
      {"frmPage9", "gridNCV", 1, {14, 23}, "txtL3", 10,
       "Label2", "Control Total: Table 2.5.10: Level 3"},
      // The row of "Transport and Logistics", not the grand total.
      {"frmPage9_1", "gridPage8_2", 1, {14, 21}, "txtL4", 11,
       "Label2", "Control Total: Table 2.5.11: Level 4"},
      {"frmOtherProgrammes", "gridlevel5", kNoIndex, {7, 9}, "txtL5", 12,
       "Label1", "Control Total: Table 2.5.10: Level 5 and higher Programmes"},
      {"frmOtherProgrammes", "gridNSC", kNoIndex, {14, 7}, "txtNSC", 13,
       "Label2", "Control Total: Table 2.5.11: NSC"},
      {"frmOtherProgrammes", "gridAET", kNoIndex, {14, 8}, "txtAET", 15,
       "Label3", "Control Total: Table 2.5.13: Adult Education and Training"},
      {"frmPage12_2", "gridPage12_1", 0, {14, 16}, "txtOC", 14,
       "Label3", "Control Total: Table 2.5.14"},
  };
  return rows;
}
// clang-format on

ControlTotals::ControlTotals(Form& page, const char* advice_name)
    : page_(page), advice_(page, advice_name, kAdvice) {
  for (const Reconciliation& row : Reconciliations()) {
    if (row.page != page.name()) continue;
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
