#ifndef PAGES_STUDENT_YEAR_OF_BIRTH_PAGE_H_
#define PAGES_STUDENT_YEAR_OF_BIRTH_PAGE_H_

#include <string>

#include "forms/survey_page.h"
#include "records/cell_table.h"

namespace survey {

// What a table of students by year of birth has of its own. Design and records outlive the page.
struct YearOfBirthTable {
  const GridDesign& design;
  const CellTable& records;
  CellRange highlighted;  // the cells that follow the cursor's row, from the first input cell on
};

// A large table with a row for each year of birth. The row in use is yellow, so that the user
// does not lose it; this yellow means nothing for saving.
class YearOfBirthPage : public SurveyPage {
 public:
  YearOfBirthPage(FormHost& host, const PageRow& page, const YearOfBirthTable& table);

  GridControl gridPage9_1;

 protected:
  Layout Body() override;
  void PlaceCursor() override;
  void GetPage() override;
  void SavePage() override;

 private:
  // Makes this row yellow and the row of a year that was it before white. A head or the totals
  // are painted like any row, but never back.
  void HighlightRow(int row);
  bool IsHighlighted(int row) const;
  void PaintRow(int row, Color color);

  const YearOfBirthTable table_;
};

}  // namespace survey

#endif  // PAGES_STUDENT_YEAR_OF_BIRTH_PAGE_H_
