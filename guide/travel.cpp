#include "guide/travel.h"

#include <algorithm>
#include <ranges>

#include "base/text.h"

namespace survey {
namespace {

constexpr char kMenu[] = "frmMainMenu";
constexpr char kStaffList[] = "frmSelectEducator";
constexpr char kSiteList[] = "frmSelectCollege";

Button* MenuButtonOf(const Form& form) {
  for (Control* control : form.controls()) {
    auto* button = dynamic_cast<Button*>(control);
    if (button != nullptr && button->role() == ButtonRole::kMenu) return button;
  }
  return nullptr;
}

// The row of a list that shows `text` in the column; 0 for none.
template <typename Matches>
int RowOf(const Grid& list, Matches matches) {
  for (int row = 1; row <= list.MaxRows(); ++row) {
    if (matches(row)) return row;
  }
  return 0;
}

}  // namespace

Form* FormInFront(const FormHost& host) {
  const auto shown = host.shown() | std::views::reverse;
  const auto front = std::ranges::find_if(shown, [&](Form* form) { return !host.IsModal(*form); });
  return front == shown.end() ? nullptr : *front;
}

SurveyPage* PageInFront(const FormHost& host) {
  return dynamic_cast<SurveyPage*>(FormInFront(host));
}

std::string StaffIdOf(SurveyPage& page) {
  const auto* id = page.FindProperty<std::string>("EducatorId");
  return id == nullptr ? std::string() : *id;
}

bool Travel::ToMenu() const { return Climb(kMenu, kMenu) && OpenMenu(); }

bool Travel::ToStaffList() const {
  if (!Climb(kStaffList, kMenu)) return false;
  if (FormInFront(host_)->name() == kStaffList) return true;
  return OpenMenu() && Press("cmdStaff", kNoIndex, kStaffList);
}

bool Travel::ToPage(const PageRow& page) const {
  const SurveyPage* here = PageInFront(host_);
  if (here != nullptr && &here->row() == &page) return true;
  const MenuPlace& place = page.menu.front();
  return ToMenu() && Press(place.button, place.index, page.name);
}

bool Travel::ToStaffPage(const PageRow& page, const std::string& id_number) const {
  SurveyPage* here = PageInFront(host_);
  const bool of_member = here != nullptr && StaffIdOf(*here) == id_number;
  if (of_member && &here->row() == &page) return true;
  if (!page.staff_list_button.empty()) {
    return ToStaffList() && SelectStaffMember(id_number) &&
           Press(page.staff_list_button, kNoIndex, page.name);
  }
  // No button of the list leads there, but one of the page before does.
  const auto& pages = host_.pages();
  const auto at = std::ranges::find(pages, page.name, &PageRow::name);
  return ToStaffPage(*(at - 1), id_number) && Press("cmdNext", kNoIndex, page.name);
}

// A staff list that is opened and left by its Menu button loads the menu, whatever the menu was
// opened for.
bool Travel::ToFreshMenu() const {
  if (FormInFront(host_)->name() != kMenu) return ToMenu();
  return ToStaffList() && ToMenu();
}

bool Travel::Climb(std::string_view goal, std::string_view other_goal) const {
  for (;;) {
    Form* const front = host_.Front();
    if (front == nullptr || host_.IsModal(*front)) return false;
    if (front->name() == goal || front->name() == other_goal) return true;
    Button* const up = MenuButtonOf(*front);
    if (up == nullptr || !MayLeave(*front, *up)) return false;
    up->Click();
    if (host_.Front() == front) return false;
  }
}

bool Travel::MayLeave(Form& form, const Button& up) const {
  const auto* page = dynamic_cast<const SurveyPage*>(&form);
  if (page == nullptr || LinkOf(page->row().links, up.name()).guard != Guard::kNone) return true;
  return host_.MayLose(page->cmdSave);
}

// A menu that was opened to add a site offers that again after each page; by the list of sites it
// opens for this one.
bool Travel::OpenMenu() const {
  const Form& menu = host_.Get(kMenu);
  if (menu.Find<Frame>("Frame4").Visible) return true;
  const std::string college = NumberText(host_.survey().CollegeEmisNumber);
  const std::string campus = NumberText(host_.survey().CampusEmisNumber);
  if (!Press("cmdList", kNoIndex, kSiteList)) return false;
  auto& sites = host_.Get(kSiteList).Find<GridControl>("gridcollege");
  const int row = RowOf(sites, [&](int candidate) {
    return sites.GetText(2, candidate) == college && sites.GetText(4, candidate) == campus;
  });
  if (row == 0) return false;
  sites.Click(1, row);
  return Press("cmdContinue", kNoIndex, kMenu) && menu.Find<Frame>("Frame4").Visible;
}

bool Travel::Press(std::string_view button, int index, std::string_view goal) const {
  host_.Front()->Find<Button>(button, index).Click();
  return host_.Front() != nullptr && host_.Front()->name() == goal;
}

bool Travel::SelectStaffMember(const std::string& id_number) const {
  auto& staff = host_.Get(kStaffList).Find<GridControl>("gridEducator");
  const int row = RowOf(staff, [&](int candidate) {
    return !staff.IsRowHidden(candidate) && staff.GetText(2, candidate) == id_number;
  });
  if (row > 0) staff.Click(1, row);
  return row > 0;
}

}  // namespace survey
