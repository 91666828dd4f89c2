#ifndef TESTS_SUPPORT_FILLED_SITE_H_
#define TESTS_SUPPORT_FILLED_SITE_H_

#include <map>
#include <string>
#include <vector>

#include "support/headless_program.h"

namespace survey::testing {

// The names of all pages, in survey order.
std::vector<std::string> PageNames();

// The texts of all cells of a form's grids, "|" behind each.
std::string TextsOf(const Form& form);
// The rows of each table of a database, sorted, so that equal tables give equal texts; read through
// a connection of its own. Throws RunTimeError.
std::map<std::string, std::string> AllRows(const std::string& path);

// A program on site 101, campus 202, with one staff member whose pages have their lines.
class FilledSite : public HeadlessProgram {
 public:
  static constexpr char kStaffMember[] = "8001015009087";

  FilledSite();

  // Shows a page, of the staff member where it is one of the staff's, anew where it was open.
  Form& Open(const std::string& page, const std::string& staff_member = kStaffMember);
  // Answers the page in front. A version differs on every page from those before and after it.
  void Fill(Form& page, int version);
  // Every page filled and saved.
  void SaveAll(int version);
};

}  // namespace survey::testing

#endif  // TESTS_SUPPORT_FILLED_SITE_H_
