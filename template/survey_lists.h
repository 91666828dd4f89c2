#ifndef TEMPLATE_SURVEY_LISTS_H_
#define TEMPLATE_SURVEY_LISTS_H_

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace survey {

// The department's lists, from which the template is made.
struct Province {
  int code;  // 1 to 9, as the pages number the provinces
  std::string name;
};

struct Site {
  double college_emis_number;
  std::string college_name;
  double campus_emis_number;
  std::string campus_name;
  int site_type;  // 1 central office, 2 campus
  int province;
};

struct Subject {
  std::string code;  // digits; leading zeros count
  std::string description;
  std::string programme;  // one of the four programme texts that the pages search by
};

struct OccupationalQualification {
  double nqf_id;
  std::string title;
  int field;  // 1 to 12
  std::string level;
};

struct SurveyLists {
  std::vector<Province> provinces;
  std::vector<Site> sites;
  std::vector<Subject> subjects;
  std::vector<OccupationalQualification> qualifications;
};

// A list that cannot be used; what() reads "colleges.csv:12: unknown province 12".
class BadList : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

// Reads provinces.csv, colleges.csv, subjects.csv and qualifications.csv from `folder`.
// Throws BadList at the first fault.
SurveyLists ReadSurveyLists(const std::filesystem::path& folder);

}  // namespace survey

#endif  // TEMPLATE_SURVEY_LISTS_H_
