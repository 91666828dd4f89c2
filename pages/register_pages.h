#ifndef PAGES_REGISTER_PAGES_H_
#define PAGES_REGISTER_PAGES_H_

#include "forms/form_host.h"

namespace survey {

// Makes the survey pages known to the host.
void RegisterPages(FormHost& host);

}  // namespace survey

#endif  // PAGES_REGISTER_PAGES_H_
