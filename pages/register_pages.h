#ifndef PAGES_REGISTER_PAGES_H_
#define PAGES_REGISTER_PAGES_H_

#include "forms/forms.h"

namespace survey {

// Makes the survey pages known to the host.
void RegisterPages(Forms& forms);

}  // namespace survey

#endif  // PAGES_REGISTER_PAGES_H_
