#ifndef RECORDS_SITE_RECORDS_H_
#define RECORDS_SITE_RECORDS_H_

#include <string>

#include "store/connection.h"
#include "store/survey.h"

namespace survey {

// Where the answers of one site and year are read.
struct SiteRecords {
  Connection* connection;  // null: what is read throws ObjectNotSet()
  double college_emis_number;
  double campus_emis_number;
  int survey_year;

  SiteRecords(Connection* on, double college, double campus, int year)
      : connection(on),
        college_emis_number(college),
        campus_emis_number(campus),
        survey_year(year) {}
  // Those that the pages work on.
  SiteRecords(const Survey& survey)  // NOLINT: a page is about the survey's site
      : SiteRecords(survey.DatabaseConnection.get(), survey.CollegeEmisNumber,
                    survey.CampusEmisNumber, survey.SurveyYear) {}
};

// The condition that a record is of the site and year, or of the site in any year, behind a
// statement that ends with the comparison of the college number.
std::string OfThisSiteAndYear(const SiteRecords& site);
std::string OfThisSite(const SiteRecords& site);

}  // namespace survey

#endif  // RECORDS_SITE_RECORDS_H_
