#include "forms/control_totals.h"

#include "support/page_test.h"

namespace survey::testing {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

struct ControlTotalsOfPages : PageTest {
  ControlTotalsOfPages() : PageTest("frmPage8", "gridNCV", 1) {}
  std::string ControlTotal() { return The<TextBox>("frmPage8", "txtL2").Text; }
  Color Total() { return Table().BackColor(14, 23); }
  std::string Note() { return Table().NoteOf(14, 23).sign + Table().NoteOf(14, 23).text; }
  // A record of table 2.5.
  void Register(const std::string& college_campus_code_year_quantity) {
    Store(
        "Insert into tbl_StudentRegistration(CollegeEmisNumber,CampusEmisNumber,"
        "ProgrammeRegistrationTypeCD,SurveyYear,Quantity)VALUES(" +
        college_campus_code_year_quantity + ")");
  }
};

TEST_F(ControlTotalsOfPages, EachLevelIsMeasuredAgainstItsRowsOfTable25) {
  host.Start("frmPage3");
  GridControl& registration = The<GridControl>("frmPage3", "gridEnrolment");
  const std::tuple<const char*, const char*, const char*, int, const char*> levels[] = {
      {"frmPage8", "txtL2", "gridNCV", 23, "31"},
      {"frmPage9", "txtL3", "gridNCV", 23, "35"},
      {"frmPage9_1", "txtL4", "gridPage8_2", 21, "39"}};
  for (const bool filled : {false, true}) {  // two empty tables agree
    for (int row = 15; row <= 20; ++row) registration.Type(4, row, std::to_string(filled * row));
    Click("frmPage3", "cmdSave");
    for (const auto& [page, text_box, grid, row, total] : levels) {
      host.Unload(host.Get(page));
      host.Start(page);
      EXPECT_EQ(The<TextBox>(page, text_box).Text, filled ? total : "0");
      const Color color = The<GridControl>(page, grid, 1).BackColor(14, row);
      EXPECT_EQ(color, filled ? Rgb(255, 0, 0) : Rgb(0, 255, 0)) << page;
    }
  }
}

TEST_F(ControlTotalsOfPages, TheColourStaysUntilTheSaveAndTheControlTotalUntilTheNextActivation) {
  Register("101,202,9,2012,5");
  Reopen();
  EXPECT_EQ(Note(), "\u22605 less than the control table (5).");
  Type(4, 4, "5");
  EXPECT_EQ(Total(), kRed);
  EXPECT_EQ(Note(), "") << "it spoke of other figures";
  Save();
  EXPECT_EQ(Total(), kGreen);
  EXPECT_EQ(Note(), "=Balances with the control table.");

  Type(4, 5, "3");
  Register("101,202,9,2012,3");
  Save();
  EXPECT_EQ(ControlTotal(), "5");
  EXPECT_EQ(Note(), "\u22603 more than the control table (5).");
  EXPECT_THAT(dialogs.seen, IsEmpty());
  // Another form comes over the page and goes.
  host.Dispatch(host.Get("frmPage8"), [this] { host.ShowModal("frmAbout"); });
  EXPECT_EQ(ControlTotal(), "8");
  EXPECT_EQ(Total(), kGreen);

  Type(4, 5, "4");
  RunScript("alter table tbl_StudentPopulationGroupNCV rename to gone");
  Save();
  EXPECT_THAT(dialogs.seen, SizeIs(1));
  EXPECT_EQ(Total(), kRed);  // a save that fails has painted already
  Reopen();                  // a load that fails has read the control total and compares nothing
  EXPECT_EQ(ControlTotal(), "8");
  EXPECT_EQ(Total(), kLockedGrey);
}

std::vector<std::pair<std::string, Reconciliation>> Reconciliations() {
  std::vector<std::pair<std::string, Reconciliation>> rows;
  for (const PageRow& page : SurveyPages()) {
    for (const Reconciliation& row : page.totals) rows.emplace_back(page.name, row);
  }
  return rows;
}

// Whatever the page: what is painted is a sum that the grid holds, and it is red at once where
// only table 2.5 is filled.
TEST_F(ControlTotalsOfPages, EveryReconciledCellIsATotalOfItsGrid) {
  for (const auto& [page, row] : Reconciliations()) {
    Register("101,202," + std::to_string(row.code) + ",2012,5");
    host.Unload(host.Get(page));
    host.Start(page);
    EXPECT_THAT(dialogs.seen, IsEmpty()) << page;
    const Grid& grid = The<GridControl>(page, row.grid, row.index);
    EXPECT_TRUE(grid.IsTotal(row.total.column, row.total.row)) << row.text_box;
    EXPECT_EQ(grid.BackColor(row.total.column, row.total.row), kRed) << row.text_box;
    TextBox& text_box = The<TextBox>(page, row.text_box);
    EXPECT_EQ(text_box.Text, "5") << row.text_box;
    text_box.Enter("6");
    EXPECT_EQ(text_box.Text, "5") << row.text_box;
  }
}

}  // namespace
}  // namespace survey::testing
