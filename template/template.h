#ifndef TEMPLATE_TEMPLATE_H_
#define TEMPLATE_TEMPLATE_H_

#include <string>

#include "template/survey_lists.h"

namespace survey {

// Makes the empty database that every new one is copied from: all tables, the four lists, and
// one row of general information for each site, of a year before the survey's. The file appears
// at `path` only when it is complete, and replaces what stands there. Throws RunTimeError.
void MakeTemplate(const SurveyLists& lists, const std::string& path);

}  // namespace survey

#endif  // TEMPLATE_TEMPLATE_H_
