#ifndef PAGES_STAFF_STAFF_PAGE_H_
#define PAGES_STAFF_STAFF_PAGE_H_

#include <string>

#include "forms/survey_page.h"

namespace survey {

// What the pages of one staff member share. Whose page it is, EducatorId tells; it is set before
// the page is shown and goes on from page to page along the page chain. A failure that a handler
// does not trap ends the handler and is reported; the program goes on.
class StaffPage : public SurveyPage {
 public:
  using SurveyPage::SurveyPage;

  std::string& EducatorId = Declare("EducatorId");  // the ID number

 protected:
  void OnUntrappedFailure(const RunTimeError& failure) override { ReportUntrapped(failure); }

  std::string StaffId() const override { return EducatorId; }

  // The caption of the pages that name the site and the staff member.
  std::string StaffCaption() const;
  // The condition that a record is of the current site and year and this staff member, behind a
  // statement that ends with "collegeemisnumber = ". The ID number goes in as it stands.
  std::string OfThisStaffMember() const;
  // The same without the site, behind "IDnumber = '".
  std::string OfThisStaffMemberOnAnySite() const;
  // The values that each INSERT of a staff member's record begins with: "101,202,2012,'ID',".
  std::string KeyValues() const;
};

}  // namespace survey

#endif  // PAGES_STAFF_STAFF_PAGE_H_
