#ifndef FORMS_PAGE_ROW_H_
#define FORMS_PAGE_ROW_H_

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "forms/link.h"
#include "forms/message_boxes.h"
#include "grid/cell.h"
#include "printing/page_print.h"
#include "records/kept_table.h"

namespace survey {

class Form;
class FormHost;
struct PageRow;

using PageMaker = std::unique_ptr<Form> (*)(FormHost& host, const PageRow& row);

// Whose answers a page takes.
enum class Section { kCampus, kStaffMember };

// A button of the main menu that leads to the page.
struct MenuPlace {
  std::string_view button;
  int index = -1;                 // in its control array; -1: a button of its own
  std::string_view caption = {};  // of an element of the array
};

// When Save takes the unsaved mark back. Cleared before, a failed save leaves the page looking
// saved; cleared after, a failed save leaves the mark, where the page's own file says no more.
enum class MarkCleared { kBeforeSave, kAfterSave, kNever };

// What the error box says for the three handlers that all pages have. The names that are not the
// page's own are what users have always read there. A handler without a name does not report
// under one: the page's own file says what it does.
struct PageErrors {
  ErrorName activate;
  ErrorName save;
  ErrorName print;
};

// A total of the page that is measured against table 2.5.
struct Reconciliation {
  std::string_view grid;
  int index;   // of the grid in its control array; -1 for none
  Cell total;  // compared and painted
  std::string_view text_box;
  std::int16_t code;  // ProgrammeRegistrationTypeCD
  std::string_view label_name;
  std::string_view label;  // its number is a text only: the code rules
};

// What all pages of the survey have, as one row of a table. What a page does besides stands in the
// page's own file.
struct PageRow {
  std::string_view name;    // of the form; never changes
  std::string_view tables;  // their numbers, "3.5 - 3.7"
  std::string_view about;   // what they are about, in a few words
  Section section;
  PageMaker make;
  std::string_view caption;  // handed to SurveyCaption
  std::vector<MenuPlace> menu = {};
  std::string_view staff_list_button = {};  // that leads from the staff list to the page, if any
  std::vector<Link> links;
  PageErrors errors;
  MarkCleared mark;
  // What it keeps of the survey, in survey order.
  const std::vector<KeptTable>& (*kept)() = nullptr;
  std::vector<Reconciliation> totals = {};
  PagePrint paper;
  bool in_campus_print = false;                // a sheet of the printed campus survey
  std::optional<StaffSheet> staff_print = {};  // what it adds to the print of a staff member
};

}  // namespace survey

#endif  // FORMS_PAGE_ROW_H_
