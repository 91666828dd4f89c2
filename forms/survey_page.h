#ifndef FORMS_SURVEY_PAGE_H_
#define FORMS_SURVEY_PAGE_H_

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/page_row.h"

namespace survey {

// What a button of a page reads, and what it is for, which its name does not always tell.
struct PageButton {
  const char* caption;  // null: the page has no such button
  ButtonRole role = ButtonRole::kNone;
};

// The buttons that lead from a page, where they are not the usual ones.
struct PageButtons {
  PageButton next = {"Next Page", ButtonRole::kNext};
  PageButton previous = {"Previous Page", ButtonRole::kPrevious};
  PageButton menu = {"Menu", ButtonRole::kMenu};
};
inline constexpr PageButton kNoButton = {nullptr};
inline constexpr PageButton kToMainMenu = {"Main Menu", ButtonRole::kMenu};
inline constexpr PageButton kToStaffList = {"Staff List", ButtonRole::kMenu};

// What all pages of the survey share: the buttons, the unsaved mark (the yellow of Save, and
// nothing besides), and the way a page opens, saves, prints and is left. What a page does
// otherwise stands in its own file.
class SurveyPage : public Form {
 public:
  // `row` must outlive the page.
  SurveyPage(FormHost& host, const PageRow& row, const PageButtons& buttons = {});

  const PageRow& row() const { return row_; }
  // The first line on paper.
  std::string PrintedHead() const;

  // Fills the page from the store, under the page's trap.
  void Form_Activate() override;

  // Prints what is on screen, saved or not, as one job. Throws RunTimeError.
  virtual void Printpage();

  Layout Arrange() override;

  Button cmdSave{*this, "cmdSave", "Save", ButtonRole::kSave};
  Button cmdPrintPage{*this, "cmdPrintPage", "Print Page", ButtonRole::kPrint};
  Button cmdNext;
  std::optional<Button> cmdPrevious;
  std::optional<Button> cmdMenu;
  Label lblEnter{*this, "lblEnter", "ENTER to move between cells on grids"};
  Label lblTab{*this, "lblTab", "TAB button to move between controls"};
  Frame Frame1{*this, "Frame1"};
  Frame Frame2{*this, "Frame2"};

 protected:
  // Caption and connection.
  void Form_Load() override;

  // The part of the page above its buttons.
  virtual Layout Body() = 0;
  // Places the cursor on the first input cell.
  virtual void PlaceCursor() {}
  virtual void GetPage() = 0;
  virtual void SavePage() = 0;
  // Tests that stand before the save; says itself what is missing. After false nothing is saved
  // and the mark stays.
  virtual bool MaySave() { return true; }

  // What a page has shown of its stored records that passes over a failed reading without a word.
  struct ShownRecords {
    std::set<std::string> keys;  // of the records, as the page tells them apart
    bool complete = false;       // that was all there was
  };
  // Whether a save may replace the stored records, whose keys `stored` reads: not while the store
  // holds some that the page never showed, for they would be gone without anybody having seen them.
  // Says so in a box. Asks the store only where `shown` is not complete, and completes it. Throws
  // what `stored` throws.
  bool MayReplace(ShownRecords& shown, const std::function<std::vector<std::string>()>& stored);

  // Adds a button that leads where the page chain says to the page's row of buttons.
  void AddLink(Button& button);
  void MarkUnsaved() { cmdSave.BackColor = kYellow; }
  // The ID number of the staff member whose page it is; "" on a page of the campus.
  virtual std::string StaffId() const { return {}; }
  // A change of the user's in this grid sets the unsaved mark.
  void MarkChangesOf(GridControl& grid);
  // Goes where the page's row says this button leads.
  void FollowLink(const Button& button);

 private:
  void Save();

  const PageRow& row_;
  std::vector<Button*> links_;  // that lead from the page
};

}  // namespace survey

#endif  // FORMS_SURVEY_PAGE_H_
