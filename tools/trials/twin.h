#ifndef TOOLS_TRIALS_TWIN_H_
#define TOOLS_TRIALS_TWIN_H_

#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "forms/form.h"

namespace survey::testing {

// A second, simple survey: cells in maps, what is saved in maps, sums added up anew each time. It
// knows what the cells take and how each table is kept, not how the program does it. Told of what
// its user does, it says what the program must show.
//
// The general information, the hostels, the staff record and the pages with lines picked from a
// catalogue are kept in ways of their own. Of these the twin takes over what stands on the page
// when it opens and after each click, and follows the typing only.
class Twin {
 public:
  // What has happened. Each returns what differs from the program, "" where nothing does.
  void Opened(Form& page);     // loaded: clean cells
  void Activated(Form& page);  // filled from what is saved
  std::string Typed(Form& page, const GridControl& grid, Cell cell, const std::string& before,
                    const std::string& text, bool taken);
  std::string Ticked(Form& page, const GridControl& grid, Cell cell, const std::string& before);
  void Saved(Form& page);
  void Closed(const std::string& page) { pages_.erase(page); }
  // Takes over what the program shows: after a click whose effects the twin does not know.
  void Follow(Form& page);
  // What is saved for this page is not known any more.
  void Forget(Form& page);
  void ForgetStaff();

  // Compares every cell, the mark, the control totals and their colours.
  std::string Compare(const Form& page) const;
  bool Knows(const std::string& page) const { return pages_.contains(page); }
  static bool IsModelled(const std::string& page);
  bool IsMarked(const std::string& page) const { return pages_.at(page).yellow; }

 private:
  using Cells = std::map<std::pair<int, int>, std::string>;  // by row and column
  using Grids = std::map<std::string, Cells>;                // by object name
  struct Page {
    Grids grids;
    Grids over;  // what was typed over a total, until a cell that it adds is written
    bool yellow = false;
    std::map<std::string, double> control_totals;  // by text box
    std::map<std::string, bool> balanced;          // by text box
  };

  std::string KeyOf(const Form& page) const;
  Grids StoredPart(const Form& page) const;
  std::optional<double> ControlTotal(const Form& page, int code) const;
  void CheckTotals(const Form& page);
  static std::string TextAt(const Page& page, const GridControl& grid, Cell cell);
  static void Write(Page& page, const GridControl& grid, Cell cell, const std::string& text);

  std::map<std::string, Page> pages_;   // those open
  std::map<std::string, Grids> saved_;  // by site, year and page, or staff member, year and page
  std::set<std::string> unknown_;       // keys of which nothing is known
};

}  // namespace survey::testing

#endif  // TOOLS_TRIALS_TWIN_H_
