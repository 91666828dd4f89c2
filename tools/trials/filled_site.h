#ifndef TOOLS_TRIALS_FILLED_SITE_H_
#define TOOLS_TRIALS_FILLED_SITE_H_

#include <map>
#include <string>
#include <vector>

#include "world.h"

namespace survey::testing {

// What one click on a button of a page stores in one go: all of it or nothing.
struct SavedPart {
  std::string page;
  std::string button;
  std::vector<std::string> tables;
  std::string condition = "1";  // the rows of a table that other parts keep theirs in, too
};

// All pages of the site and of a staff member, in survey order.
const std::vector<SavedPart>& SavedParts();
// The pages among them, each once.
std::vector<std::string> SavedPages();

// The rows of a table, a line each, sorted, so that equal tables give equal texts. `connection`
// must be open. Throws RunTimeError.
std::string RowsOf(Connection& connection, const std::string& table,
                   const std::string& condition = "1");
std::string RowsOf(Connection& connection, const SavedPart& part);
// The rows of each table of the working database, read through a connection of its own.
std::map<std::string, std::string> AllRows(const std::string& path);

// A program on site 101, campus 202, with one staff member whose pages have their lines.
class FilledSite : public World {
 public:
  static constexpr char kStaffMember[] = "8001015009087";

  FilledSite();

  // Shows a page, of the staff member where it is one of the staff's, anew where it was open.
  Form& Open(const std::string& page, const std::string& staff_member = kStaffMember);
  // Types into every open cell of the page in front. Each version is told from its neighbours by
  // every answer that may differ.
  void Fill(Form& page, int version);
  // Every page filled and saved.
  void SaveAll(int version);
};

}  // namespace survey::testing

#endif  // TOOLS_TRIALS_FILLED_SITE_H_
