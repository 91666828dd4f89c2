#ifndef PAGES_SURVEY_PAGES_H_
#define PAGES_SURVEY_PAGES_H_

#include <vector>

#include "forms/form_host.h"
#include "forms/page_row.h"

namespace survey {

// The survey, one row a page, in its own order: the pages of the campus, then those of a staff
// member in the order of their print.
const std::vector<PageRow>& SurveyPages();

// Gives the host these rows, and makes the staff list and the dialogs of pages known to it.
void RegisterPages(FormHost& host);

}  // namespace survey

#endif  // PAGES_SURVEY_PAGES_H_
