#ifndef CHECKS_SITE_CHECKS_H_
#define CHECKS_SITE_CHECKS_H_

#include <cstddef>
#include <string>
#include <vector>

#include "forms/page_row.h"
#include "store/connection.h"

namespace survey {

// What is in a site's survey, read from the store alone, as the pages themselves would show it:
// which tables hold answers, which totals do not balance with table 2.5, which compulsory answers
// are missing.

// One thing that an auditor would query.
struct Finding {
  enum class Kind {
    kUnbalanced,       // a total that is not that of table 2.5
    kCompulsory,       // a compulsory answer that is missing
    kEmptyTable,       // a table without a single answer; of the staff's: nobody's
    kIncompleteStaff,  // a staff member's record with compulsory answers missing
  };

  Kind kind;
  std::string page;     // name of the form, "frmPage3"
  std::string table;    // its numbers, "3.8", "4.1 - 4.23"
  std::string grid;     // the cell that leads to it: name of the grid,
  int grid_index = -1;  // its index in the control array, -1 for none,
  int column = 0;       // and the cell, both from 1
  int row = 0;
  std::string id_number;  // of the staff member; "" where it is of none
  double stored = 0;      // kUnbalanced: the total of the page,
  double expected = 0;    // and that of table 2.5
  std::string text;       // in words, one line
};

enum class PageFill { kEmpty, kHoldsAnswers };

struct TableState {
  const KeptTable* table;
  PageFill fill;
};

struct PageState {
  const PageRow* page;
  PageFill fill;  // kHoldsAnswers where one of its tables does
  std::vector<TableState> tables;
  std::vector<std::size_t> findings;  // their positions in SiteChecks::findings
};

struct SiteChecks {
  std::vector<PageState> pages;   // one for each row of SurveyPages()
  int staff = 0;                  // staff members of the site
  int incomplete_staff = 0;       // of these, with compulsory answers missing
  std::vector<Finding> findings;  // in survey order
};

// Reads only. Throws RunTimeError where the file is damaged; nothing is told then.
SiteChecks CheckSite(Connection& connection, double college_emis_number, double campus_emis_number,
                     int survey_year);

// A site of which a database holds answers, or which its users have chosen from the list.
struct SiteOfFile {
  double college_emis_number = 0;
  double campus_emis_number = 0;
  std::string college_name;  // these four "" or 0 where the database does not know the site
  std::string campus_name;
  int site_type = 0;        // 1 central office, 2 campus
  int province = 0;         // 1 to 9
  std::string listed_year;  // under which the site is listed, "2012"; "" where it is not
  std::vector<int> years;   // of the answers of its tables, in order
};

// By their numbers. Throws RunTimeError.
std::vector<SiteOfFile> SitesOf(Connection& connection);

}  // namespace survey

#endif  // CHECKS_SITE_CHECKS_H_
