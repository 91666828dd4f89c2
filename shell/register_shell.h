#ifndef SHELL_REGISTER_SHELL_H_
#define SHELL_REGISTER_SHELL_H_

#include "forms/form_host.h"

namespace survey {

// Makes the forms around the survey pages known to the host.
void RegisterShell(FormHost& host);

}  // namespace survey

#endif  // SHELL_REGISTER_SHELL_H_
