#include "guide/site_guide.h"

#include <algorithm>
#include <ctime>

#include "base/text.h"
#include "forms/campus_print.h"
#include "store/dialect.h"
#include "store/recordset.h"

namespace survey {
namespace {

constexpr char kMenu[] = "frmMainMenu";
constexpr char kStaffList[] = "frmSelectEducator";
constexpr ErrorName kPrintRoutine = {"Contents", "Print all pages of 2012"};

bool IsUnsaved(const SurveyPage* page) {
  return page != nullptr && page->cmdSave.BackColor == kYellow;
}

std::string TimeOfDay() {
  const std::time_t now = std::time(nullptr);
  char text[sizeof "00:00"];
  std::strftime(text, sizeof text, "%H:%M", std::localtime(&now));
  return text;
}

std::string PageNumber(const std::vector<PageRow>& pages, const PageRow& page) {
  int number = 0;
  int count = 0;
  for (const PageRow& row : pages) {
    if (row.section != page.section) continue;
    ++count;
    if (&row == &page) number = count;
  }
  return "Page " + std::to_string(number) + " of " + std::to_string(count);
}

// "" for the year of the survey.
std::string WarningOf(std::int16_t year, const Form& front) {
  if (year == kYearOfSurvey) return {};
  const std::string told = NumberText(year);
  if (front.name() == kMenu) {
    return "Print Campus Survey has set the year to " + told + ". Pages that you open now show " +
           told + ", and what you save there is of " + told + ".";
  }
  std::string warning = "This is the year " + told + ", set by Print Campus Survey: what you see " +
                        "here and what you save here is of " + told + ", not of 2012.";
  if (front.name() == "frmPage2") warning += " Saving takes the site off the list of sites.";
  return warning;
}

}  // namespace

SiteGuide::SiteGuide(FormHost& host) : host_(host) {}

void SiteGuide::Attend() {
  Form* const front = FormInFront(host_);
  if (front == nullptr || host_.Ended()) return;
  NoticeSite(*front);
  SurveyPage* const page = PageInFront(host_);
  const std::string staff_id = page == nullptr ? "" : StaffIdOf(*page);
  const std::string place = front->name() + " " + staff_id;
  const bool changed = host_.survey().changes() != changes_seen_;
  const bool new_member = !staff_id.empty() && staff_id != staff_id_;
  const bool menu_comes = front->name() == kMenu && place != place_;
  if (changed) NoticeSave(page, place);
  place_ = place;
  if (new_member) staff_id_ = staff_id;
  if (!site_chosen_) return;
  if (changed || new_member || menu_comes || readings_ == 0) Read();
  Describe(*front, page, place);
}

// A menu that offers the choice of a site has not yet taken the user from the one before.
void SiteGuide::NoticeSite(Form& front) {
  const Survey& survey = host_.survey();
  const SiteKey site{survey.DatabasePath, survey.CollegeEmisNumber, survey.CampusEmisNumber};
  if (site != site_) {
    site_ = site;
    site_chosen_ = false;
    readings_ = 0;
    saved_at_.clear();
    staff_id_.clear();
  }
  const bool choosing = front.name() == "frmSelectDatabase" || front.name() == "frmSelectCollege";
  if (choosing || site.college == 0 || site.campus == 0) {
    site_chosen_ = false;
  } else if (front.name() != kMenu || front.Find<Frame>("Frame4").Visible) {
    site_chosen_ = true;
  }
}

// What a dialog over the page has stored is no save of the page.
void SiteGuide::NoticeSave(SurveyPage* page, const std::string& place) {
  changes_seen_ = host_.survey().changes();
  if (page != nullptr && page == host_.Front() && place == place_ && !IsUnsaved(page)) {
    saved_at_[place] = TimeOfDay();
  }
}

void SiteGuide::Read() {
  ++readings_;
  try {
    const auto store = host_.survey().OpenAside();
    ReadNames(*store, staff_id_);
    checks_ = CheckSite(*store, site_.college, site_.campus, kYearOfSurvey);
  } catch (const RunTimeError&) {
    checks_.reset();  // the pages tell what is wrong with the file
  }
}

void SiteGuide::ReadNames(Connection& store, const std::string& staff_id) {
  Recordset site;
  site.Open(
      "select CollegeName, CampusName from tbl_GeneralInformation where CollegeEmisNumber = " +
          NumberText(site_.college) + " and CampusEmisNumber = " + NumberText(site_.campus),
      &store);
  site_name_ = site.Eof()
                   ? "Campus " + NumberText(site_.campus)
                   : site.Field("CollegeName").Text() + ", " + site.Field("CampusName").Text();
  staff_name_ = staff_id;
  if (staff_id.empty()) return;
  Recordset member;
  member.Open("select Surname, Initials from tbl_StaffDetail where IDNumber = '" +
                  SqlEscape(staff_id) + "'",
              &store);
  if (!member.Eof()) {
    staff_name_ = Trim(member.Field("Initials").Text() + " " + member.Field("Surname").Text());
  }
}

void SiteGuide::Describe(Form& front, SurveyPage* page, const std::string& place) {
  const Survey& survey = host_.survey();
  where_ = {};
  where_.site = site_name_;
  where_.database = Utf8(ToPath(survey.DatabasePath).stem());
  where_.warning = WarningOf(survey.SurveyYear, front);
  if (!where_.warning.empty()) where_.year = "Year " + NumberText(survey.SurveyYear) + "!";
  if (page != nullptr) {
    if (!StaffIdOf(*page).empty()) where_.site = staff_name_ + ", " + site_name_;
    where_.page = PageNumber(host_.pages(), page->row());
    const auto saved = saved_at_.find(place);
    if (IsUnsaved(page)) {
      where_.saved = "not saved";
    } else if (saved != saved_at_.end()) {
      where_.saved = "saved " + saved->second;
    }
  }
  contents_ = ContentsOf(host_.pages(), checks_ ? &*checks_ : nullptr,
                         page == nullptr ? nullptr : &page->row(), IsUnsaved(page),
                         front.name() == kStaffList);
}

// ---- Leading there ---------------------------------------------------------------------------

bool SiteGuide::GoTo(const ContentsEntry& entry) {
  const Travel travel(host_);
  if (entry.page == nullptr) return travel.ToStaffList();
  if (entry.page->section == Section::kCampus) return travel.ToPage(*entry.page);
  // Of whom the last page was; nobody yet is to be chosen from the list.
  return staff_id_.empty() ? travel.ToStaffList() : travel.ToStaffPage(*entry.page, staff_id_);
}

bool SiteGuide::GoTo(const Finding& finding) {
  const Travel travel(host_);
  const PageRow& page = host_.PageOf(finding.page);
  if (page.section == Section::kCampus) return travel.ToPage(page);
  return finding.id_number.empty() ? travel.ToStaffList()
                                   : travel.ToStaffPage(page, finding.id_number);
}

bool SiteGuide::GoToYearOfSurvey() { return Travel(host_).ToFreshMenu(); }

// ---- Printing --------------------------------------------------------------------------------

void SiteGuide::PrintYearOfSurvey() {
  Printer& printer = host_.platform().printer;
  Survey aside;
  aside.DatabasePath = site_.database;
  aside.CollegeEmisNumber = site_.college;
  aside.CampusEmisNumber = site_.campus;
  aside.SurveyYear = kYearOfSurvey;
  FormHost host(aside, host_.platform());
  host.RegisterPages(host_.pages());
  try {
    printer.ShowPrinter(Utf8(ToPath(site_.database).stem()) + " campus survey 2012");
    PrintCampusPages(host, kPrintRoutine.procedure);
    printer.Finish();
  } catch (const RunTimeError& failure) {
    if (failure.number() == CancelWasSelected().number()) return;
    host_.boxes().ReportError(kPrintRoutine.location, failure.what(), kPrintRoutine.procedure,
                              failure.number());
  }
}

}  // namespace survey
