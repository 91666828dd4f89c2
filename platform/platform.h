#ifndef PLATFORM_PLATFORM_H_
#define PLATFORM_PLATFORM_H_

#include <filesystem>

#include "platform/dialogs.h"
#include "platform/printer.h"
#include "platform/settings.h"

namespace survey {

// What the program knows of the machine it runs on.
class ProgramFolder {
 public:
  virtual ~ProgramFolder() = default;

  // The folder of the executable: template and data folder lie beside it.
  virtual std::filesystem::path Path() const = 0;

  // Starts the desktop's viewer of system information; false where there is none.
  virtual bool StartSystemInformation() = 0;
};

// The ports that the program runs over. Whoever builds them keeps them alive for the whole run.
struct Platform {
  Dialogs& dialogs;
  Printer& printer;
  Settings& settings;
  ProgramFolder& program_folder;
};

}  // namespace survey

#endif  // PLATFORM_PLATFORM_H_
