#ifndef TOOLS_FILLED_SURVEY_H_
#define TOOLS_FILLED_SURVEY_H_

#include <string>
#include <vector>

#include "forms/form_host.h"
#include "printing/page_print.h"

namespace survey::testing {

// The pages of a campus, in the order of the survey.
inline constexpr const char* kCampusPages[] = {
    "frmPage2",           "frmHostels",  "frmPage4",    "frmStudentTotal", "frmPage3",
    "frmPage5",           "frmPage6_1",  "frmPage8",    "frmPage9",        "frmPage9_1",
    "frmOtherProgrammes", "frmPage12_1", "frmPage12_2", "frmPage9_10",     "frmPage9_10_1",
    "frmPage14",          "frmPage13",
};
// The pages of a staff member.
inline constexpr const char* kStaffPages[] = {
    "frmEducatorData",      "frmLecQualifications1", "frmLecQualifications2",
    "frmEducatorTeaching1", "frmEducatorTeaching",   "frmEducatorTeaching2",
};

// Makes it the page of that staff member, where the form is one of the staff's; `mode` is the
// record's, "New" or "Edit".
void ChooseStaffMember(Form& form, const std::string& id, const char* mode = "Edit");

// Figures that all differ until the range is used up, in an order that looks like chance and is
// the same in every run.
class Figures {
 public:
  explicit Figures(int first = 1000, int last = 9999);
  int Next();

 private:
  int first_;
  int size_;
  int step_;
  int count_ = 0;
};

// A word that can be pronounced, another one for each number from 0 to 511,999.
std::string WordOf(int number);

// What a user has entered in a cell, as the cell shows it.
struct FilledCell {
  std::string grid;
  int index;  // in its control array; -1 for none
  int column;
  int row;
  std::string text;
};

struct FilledPage {
  std::string page;
  std::vector<FilledCell> cells;
};

// All of the following work as a user does, with any host of forms, World's or a Desktop's. Each
// open cell that is no total is answered: with a figure of its own where its limits allow, else
// with one within them; with words; with a tick. The page is saved at the end. Throws
// std::runtime_error where a cell does not take its answer.

// `page` is on screen. On frmHostels five hostels are entered, of which the cells told are those
// of the last; on frmPage12_1 and the pages of subjects each line gets a choice from the list; the
// dialogs frmAddQualification and frmAddSubjects add an entry to theirs.
FilledPage FillPage(Form& page, Figures& figures);

// The pages of the campus in the order of the survey, under the context's site and year; what is
// on screen stays beneath, the first page where that is nothing. The site must be one of the
// template's for frmPage2 to be stored.
std::vector<FilledPage> FillCampus(FormHost& host, Figures& figures);

// The six pages of a new staff member.
std::vector<FilledPage> FillStaffMember(FormHost& host, const std::string& id, Figures& figures);

// Reads a filled page anew from the store, unseen; `id` is the staff member's whom it tells of.
// Answers what these grids of it show: the texts that were entered, without ticks, and the totals.
// Throws std::runtime_error where a cell does not show what was entered in it, but for
// the answers that the survey has never shown again.
std::vector<std::string> ReadAgain(FormHost& host, const FilledPage& filled,
                                   const std::vector<PrintedGrid>& grids,
                                   const std::string& id = {});

// As many staff members, with IDs from "7001010001" on: the first entered on the pages, the others
// copied from him or her in the store under IDs and surnames of their own. Nothing may be unsaved.
void AddStaff(FormHost& host, int members, Figures& figures);

// As many other sites that hold what the context's site holds of its campus, copied in the store.
void AddSites(FormHost& host, int sites);

}  // namespace survey::testing

#endif  // TOOLS_FILLED_SURVEY_H_
