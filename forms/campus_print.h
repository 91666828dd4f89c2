#ifndef FORMS_CAMPUS_PRINT_H_
#define FORMS_CAMPUS_PRINT_H_

#include <string>

namespace survey {

class FormHost;

// Prints the sheets of the campus survey one after the other, each page filled as it fills itself
// and for the site and the year of the host's context, without showing any. The printer has been
// chosen. `title` names the job to the user, who may stop it. Throws RunTimeError; the pages behind
// the one that failed are left out.
void PrintCampusPages(FormHost& host, const std::string& title);

}  // namespace survey

#endif  // FORMS_CAMPUS_PRINT_H_
