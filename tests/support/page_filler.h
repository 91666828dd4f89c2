#ifndef TESTS_SUPPORT_PAGE_FILLER_H_
#define TESTS_SUPPORT_PAGE_FILLER_H_

#include <functional>
#include <string>
#include <vector>

#include "forms/control_kinds.h"
#include "forms/form_host.h"
#include "printing/page_print.h"

namespace survey::testing {

// Every cell of a form's grids, row by row.
void ForEachCell(const Form& form, const std::function<void(const GridControl&, Cell)>& visit);

// Makes it the page of that staff member, where the form is one of the staff's; `mode` is the
// record's, "New" or "Edit".
void ChooseStaffMember(Form& form, const std::string& id, const char* mode = "Edit");

// Figures that all differ until the range is used up, in an order that looks like chance and is
// the same in every run.
class Figures {
 public:
  explicit Figures(int first = 1000, int last = 9999);
  // Answers that differ on every page from those of the versions before and after; every other
  // box is ticked.
  static Figures OfVersion(int version);

  int Next();
  bool Ticks();  // the next box

 private:
  int first_;
  int size_;
  int step_;
  int count_ = 0;
  bool ticks_all_ = true;
  int boxes_ = 0;
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

// All of the following work as a user does, with any host of forms, HeadlessProgram's or a
// Desktop's. Each open cell that is no total is answered: with a figure of its own where its limits
// allow, else with one within them; with words; with a tick. Throws std::runtime_error where a cell
// does not take its answer.

// Answers the grids of the page on screen and goes no further.
void AnswerGrids(Form& page, Figures& figures);

// `page` is on screen. On frmHostels five hostels are entered, of which the cells told are those
// of the last; on frmPage12_1 and the pages of subjects each line gets a choice from the list. The
// page is saved at the end.
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

}  // namespace survey::testing

#endif  // TESTS_SUPPORT_PAGE_FILLER_H_
