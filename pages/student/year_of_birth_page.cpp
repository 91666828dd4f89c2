#include "pages/student/year_of_birth_page.h"

namespace survey {

YearOfBirthPage::YearOfBirthPage(FormHost& host, const PageRow& page, const YearOfBirthTable& table)
    : SurveyPage(host, page), gridPage9_1(*this, "gridPage9_1", table.design), table_(table) {
  gridPage9_1.on_cell = [this](int, int row) { HighlightRow(row); };
  gridPage9_1.on_click = gridPage9_1.on_cell;  // of the first cell, where the cursor is already
  gridPage9_1.on_change = [this](int, int) {
    MarkUnsaved();
    // The first cell is typed into without a move: the page has put the cursor there.
    HighlightRow(gridPage9_1.ActiveRow());
  };
}

Layout YearOfBirthPage::Body() { return Place(gridPage9_1); }

void YearOfBirthPage::PlaceCursor() {
  gridPage9_1.SetActiveCell(table_.highlighted.column, table_.highlighted.row);
}

void YearOfBirthPage::GetPage() { LoadCells(survey(), table_.records, gridPage9_1); }

void YearOfBirthPage::SavePage() { SaveCells(survey(), table_.records, gridPage9_1); }

void YearOfBirthPage::HighlightRow(int row) {
  // Only what changes is painted: a move must not repaint a table of five hundred cells.
  for (int other = table_.highlighted.row; other <= table_.highlighted.last_row; ++other) {
    if (other != row && IsHighlighted(other)) PaintRow(other, kWhite);
  }
  if (!IsHighlighted(row)) PaintRow(row, kYellow);
}

bool YearOfBirthPage::IsHighlighted(int row) const {
  return gridPage9_1.BackColor(table_.highlighted.column, row) == kYellow;
}

void YearOfBirthPage::PaintRow(int row, Color color) {
  const CellRange& cells = table_.highlighted;
  for (int column = cells.column; column <= cells.last_column; ++column) {
    gridPage9_1.SetBackColor(column, row, color);
  }
}

}  // namespace survey
