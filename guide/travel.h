#ifndef GUIDE_TRAVEL_H_
#define GUIDE_TRAVEL_H_

#include <string>
#include <string_view>

#include "forms/form_host.h"
#include "forms/survey_page.h"

namespace survey {

// The form that fills the main window, under the modal ones; null for none.
Form* FormInFront(const FormHost& host);
// The same where it is a page of the survey, else null.
SurveyPage* PageInFront(const FormHost& host);
// The ID number of the staff member whose page it is; "" on a page of the campus.
std::string StaffIdOf(SurveyPage& page);

// Brings the user from one form to another by the buttons that lead there, as if they had been
// clicked one after the other. Each way answers whether the user has arrived, and ends where a
// form keeps the user: at a question answered No, or under a modal form. A page that its Menu
// button would leave without a word is asked about too where it is not saved.
class Travel {
 public:
  explicit Travel(FormHost& host) : host_(host) {}  // which must outlive it

  bool ToMenu() const;
  bool ToStaffList() const;
  bool ToPage(const PageRow& page) const;  // of the campus
  // Ends at the staff list where nobody on it has that ID number.
  bool ToStaffPage(const PageRow& page, const std::string& id_number) const;
  // Back to a menu that was loaded anew, and so to the year of the survey.
  bool ToFreshMenu() const;

 private:
  bool Climb(std::string_view goal, std::string_view other_goal) const;
  bool MayLeave(Form& form, const Button& up) const;
  bool OpenMenu() const;
  bool Press(std::string_view button, int index, std::string_view goal) const;
  bool SelectStaffMember(const std::string& id_number) const;

  FormHost& host_;
};

}  // namespace survey

#endif  // GUIDE_TRAVEL_H_
