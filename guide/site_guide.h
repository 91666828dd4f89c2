#ifndef GUIDE_SITE_GUIDE_H_
#define GUIDE_SITE_GUIDE_H_

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "checks/site_checks.h"
#include "forms/form_host.h"
#include "guide/contents.h"
#include "guide/travel.h"

namespace survey {

// The year that this survey asks about.
inline constexpr std::int16_t kYearOfSurvey = 2012;

// Where the user is, in words; "" for what does not apply.
struct Whereabouts {
  std::string site;      // college and campus; on a staff page the staff member's name besides
  std::string database;  // its name
  std::string page;      // "Page 7 of 17", among those of the site or of a staff member
  std::string saved;     // "not saved", "saved 14:02"
  std::string year;      // "Year 2010!" where it is not that of the survey,
  std::string warning;   // and what this means
};

// Tells the user of the chosen site where they are and what is left, and leads them there. What it
// asks the store, it asks through a connection of its own, after something was saved and when the
// menu comes to the front; it changes nothing.
class SiteGuide {
 public:
  explicit SiteGuide(FormHost& host);  // which must outlive it

  // To be called when a user action has ended, and before all that follows.
  void Attend();

  // Whether the user works on a site; nothing else is told before.
  bool SiteChosen() const { return site_chosen_; }
  const Whereabouts& where() const { return where_; }
  const std::vector<ContentsPart>& contents() const { return contents_; }
  // None where the store could not be read.
  const std::optional<SiteChecks>& checks() const { return checks_; }
  // Grows when the store was read again.
  std::uint64_t readings() const { return readings_; }

  // Each answers whether the user has arrived.
  bool GoTo(const ContentsEntry& entry);
  bool GoTo(const Finding& finding);
  bool GoToYearOfSurvey();

  // Prints the sheets that the menu's print has for the year of the survey, as they are stored.
  // The year and the site in the users' hands stay as they are. Tells of a failure in a box.
  void PrintYearOfSurvey();

 private:
  struct SiteKey {
    std::string database;
    double college = 0;
    double campus = 0;
    bool operator==(const SiteKey&) const = default;
  };

  void NoticeSite(Form& front);
  void NoticeSave(SurveyPage* page, const std::string& place);
  void Read();
  void ReadNames(Connection& store, const std::string& staff_id);
  void Describe(Form& front, SurveyPage* page, const std::string& place);

  FormHost& host_;
  bool site_chosen_ = false;
  SiteKey site_;
  std::string site_name_;
  std::string staff_id_;    // whose page was in front last
  std::string staff_name_;  // of whom
  std::optional<SiteChecks> checks_;
  std::uint64_t readings_ = 0;
  std::uint64_t changes_seen_ = 0;
  std::string place_;                            // the page in front, and whose it is
  std::map<std::string, std::string> saved_at_;  // by place
  Whereabouts where_;
  std::vector<ContentsPart> contents_;
};

}  // namespace survey

#endif  // GUIDE_SITE_GUIDE_H_
