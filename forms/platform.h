#ifndef FORMS_PLATFORM_H_
#define FORMS_PLATFORM_H_

#include "platform/dialogs.h"
#include "platform/program_folder.h"
#include "platform/settings.h"
#include "printing/printer.h"

namespace survey {

// The ports that the program runs over. Whoever builds them keeps them alive for the whole run.
struct Platform {
  Dialogs& dialogs;
  Printer& printer;
  Settings& settings;
  ProgramFolder& program_folder;
};

}  // namespace survey

#endif  // FORMS_PLATFORM_H_
