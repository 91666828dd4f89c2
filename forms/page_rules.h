#ifndef FORMS_PAGE_RULES_H_
#define FORMS_PAGE_RULES_H_

#include <string_view>
#include <vector>

#include "forms/form.h"

namespace survey {

// When Save takes the unsaved mark back. Cleared before, a failed save leaves the page looking
// saved; cleared after, a failed save leaves the mark, where the page's own file says no more.
enum class MarkCleared { kBeforeSave, kAfterSave, kNever };

// What the error box says for the three handlers that all pages have. The names that are not the
// page's own are what users have always read there.
struct PageRules {
  std::string_view page;
  MarkCleared mark;
  ErrorName activate;
  ErrorName save;
  ErrorName print;
};

// The rules of a page; throws std::out_of_range for a form that is no page.
const PageRules& RulesOf(std::string_view page);

}  // namespace survey

#endif  // FORMS_PAGE_RULES_H_
