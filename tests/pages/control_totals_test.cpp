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

TEST_F(ControlTotalsOfPages, TheColourStaysUntilTheSaveAndTheControlTotalUntilTheNextActivation) {
  EXPECT_EQ(Total(), Rgb(0, 255, 0)) << "two empty tables agree";
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

// Whatever the page: what is painted is a sum that the grid holds, and the box is no answer.
TEST_F(ControlTotalsOfPages, EachIsMeasuredAgainstItsRecordsOfTable25) {
  for (int code = 1; code <= 16; ++code) {
    Register("101,202," + std::to_string(code) + ",2012," + std::to_string(code));
  }
  std::string measured;
  for (const PageRow& page : SurveyPages()) {
    const std::string name(page.name);
    for (const Reconciliation& row : page.totals) {
      host.Unload(host.Get(name));
      host.Start(name);
      const Grid& grid = The<GridControl>(name, row.grid, row.index);
      EXPECT_TRUE(grid.IsTotal(row.total.column, row.total.row)) << row.text_box;
      EXPECT_EQ(grid.BackColor(row.total.column, row.total.row), Rgb(255, 0, 0)) << row.text_box;
      TextBox& text_box = The<TextBox>(name, row.text_box);
      text_box.Enter("7");
      measured += name.substr(3) + " " + text_box.ObjectName() + "=" + text_box.Text + " ";
    }
  }
  EXPECT_EQ(measured,
            "Page6_1 txtN3=4 Page6_1 txtN4=5 Page6_1 txtN5=6 Page8 txtL2=9 Page9 txtL3=10 "
            "Page9_1 txtL4=11 OtherProgrammes txtL5=12 OtherProgrammes txtNSC=13 "
            "OtherProgrammes txtAET=15 Page12_2 txtOC=14 ");
  EXPECT_THAT(dialogs.seen, IsEmpty());
}

}  // namespace
}  // namespace survey::testing
