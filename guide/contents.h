#ifndef GUIDE_CONTENTS_H_
#define GUIDE_CONTENTS_H_

#include <string>
#include <string_view>
#include <vector>

#include "checks/site_checks.h"

namespace survey {

// How it stands with a page of the survey, from what asks nothing of the user to what asks most.
enum class EntryState { kUnknown, kEmpty, kHoldsAnswers, kIncomplete, kUnbalanced, kUnsaved };

// The sign of a state, one character: "" for kUnknown.
std::string_view SignOf(EntryState state);

// A line of the contents of the survey.
struct ContentsEntry {
  const PageRow* page = nullptr;  // null: the staff list
  std::string tables;             // "3.5 - 3.7"
  std::string about;
  EntryState state = EntryState::kUnknown;
  std::string words;      // the state, "holds answers"
  bool in_front = false;  // where the user is

  bool operator==(const ContentsEntry&) const = default;
};

struct ContentsPart {
  std::string title;
  std::vector<ContentsEntry> entries;

  bool operator==(const ContentsPart&) const = default;
};

// The parts of the survey with their pages, in survey order. `checks` tells what the store holds,
// null: nothing is known of it. `front` is the page where the user is, null for none, and `unsaved`
// tells whether it is not saved; `at_staff_list`: the user is there instead.
std::vector<ContentsPart> ContentsOf(const std::vector<PageRow>& pages, const SiteChecks* checks,
                                     const PageRow* front, bool unsaved, bool at_staff_list);

}  // namespace survey

#endif  // GUIDE_CONTENTS_H_
