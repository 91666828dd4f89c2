#include "pages/staff/staff_page.h"

#include "base/text.h"
#include "records/cell_table.h"

namespace survey {

std::string StaffPage::StaffCaption() const {
  return survey().SurveyCaption("Staff Details") + "-  ID number: " + EducatorId;
}

std::string StaffPage::OfThisStaffMember() const {
  return OfThisSiteAndYear(survey()) + " and IDnumber = '" + EducatorId + "'";
}

std::string StaffPage::OfThisStaffMemberOnAnySite() const {
  return EducatorId + "' and surveyyear = " + NumberText(survey().SurveyYear);
}

std::string StaffPage::KeyValues() const {
  return NumberText(survey().CollegeEmisNumber) + "," + NumberText(survey().CampusEmisNumber) +
         "," + NumberText(survey().SurveyYear) + ",'" + EducatorId + "',";
}

}  // namespace survey
