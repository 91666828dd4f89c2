#ifndef PAGES_STAFF_QUALIFICATION_PAGE_H_
#define PAGES_STAFF_QUALIFICATION_PAGE_H_

#include <string>
#include <vector>

#include "pages/staff/staff_page.h"
#include "store/recordset.h"

namespace survey {

// A qualification to tick: its row in the grid, its code, its name.
struct Qualification {
  int row;
  int code;
  const char* name;
};

// What tells the two halves of question 4.25 apart.
struct QualificationList {
  std::vector<Qualification> rows;
  GridDesign design;        // all but the rows above, which WithRows adds
  const char* remove;       // up to the ID number
  const char* remove_tail;  // from behind it up to the survey year; keeps to this half's codes
};

// `list` with its rows in the design: code, name and the box to tick.
QualificationList WithRows(QualificationList list);

// The codes of its rows.
std::vector<Code> CodesOf(const QualificationList& list);

// What is stored with each ticked qualification. Texts are ready to stand between quotes.
struct QualificationDetails {
  std::string trade;
  std::string other;
  int workplace_experience = 0;
};

// Question 4.25: the qualifications that a staff member has attained, one page twice over. Both
// follow the person: they read and replace what was stored from any site. Neither says a word
// when a statement that reads or stores fails.
class QualificationPage : public StaffPage {
 public:
  double& EmisNumber = Declare<double>("EmisNumber");  // the college's; handed on, not read
  GridControl gridQual;

 protected:
  // `list` is complete and outlives the page.
  QualificationPage(FormHost& host, const PageRow& page, const PageButtons& buttons,
                    const QualificationList& list);

  void Form_Load() override;
  Layout Body() override;
  void GetPage() override;
  void SavePage() override;
  bool MaySave() override;

  // What a half shows of a stored qualification besides its tick.
  virtual void ShowDetails(const Recordset&) {}
  virtual QualificationDetails DetailsToSave() const = 0;

 private:
  Recordset ReadAttained();
  // The qualification of this half that a stored record names; null for one of the other half.
  const Qualification* QualificationOf(const Recordset& attained) const;

  const QualificationList& list_;
  ShownRecords shown_;  // by their codes
};

}  // namespace survey

#endif  // PAGES_STAFF_QUALIFICATION_PAGE_H_
