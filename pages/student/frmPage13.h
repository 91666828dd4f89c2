#ifndef PAGES_STUDENT_FRMPAGE13_H_
#define PAGES_STUDENT_FRMPAGE13_H_

#include <cstdint>
#include <string>

#include "forms/survey_page.h"

namespace survey {

// Table 3.19: students in the college's hostels by province, or country, of origin. A record
// holds both genders, and names either a province or a country.
class FrmPage13 : public SurveyPage {
 public:
  FrmPage13(FormHost& host, const PageRow& page);
  // What the page keeps of the survey.
  static const std::vector<KeptTable>& Kept();

  GridControl gridPage13_1;

 protected:
  Layout Body() override;
  void PlaceCursor() override;
  void GetPage() override;
  void SavePage() override;

 private:
  struct Counts {
    std::int32_t male;
    std::int32_t female;
  };

  Counts CountsOf(int row) const;
  void SaveProvince(int row);
  void SaveCountry(int row);
  // `origin` as it stands in the statement.
  void Insert(const std::string& column, const std::string& origin, const Counts& counts);
};

}  // namespace survey

#endif  // PAGES_STUDENT_FRMPAGE13_H_
