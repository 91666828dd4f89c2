#include "records/site_records.h"

#include "base/text.h"

namespace survey {

std::string OfThisSiteAndYear(const SiteRecords& site) {
  return NumberText(site.college_emis_number) +
         " and campusemisnumber = " + NumberText(site.campus_emis_number) +
         " and surveyyear = " + NumberText(site.survey_year);
}

std::string OfThisSite(const SiteRecords& site) {
  return NumberText(site.college_emis_number) +
         " and CampusEMisNumber = " + NumberText(site.campus_emis_number);
}

}  // namespace survey
