#ifndef PLATFORM_PROGRAM_FOLDER_H_
#define PLATFORM_PROGRAM_FOLDER_H_

#include <filesystem>

namespace survey {

// The file that each new database is a copy of, beside the executable.
inline constexpr char kTemplateFile[] = "CorvaleAnnualOstrel2012.mdb";

// What the program knows of the machine it runs on.
class ProgramFolder {
 public:
  virtual ~ProgramFolder() = default;

  // The folder of the executable: template and data folder lie beside it.
  virtual std::filesystem::path Path() const = 0;

  // Starts the desktop's viewer of system information; false where there is none.
  virtual bool StartSystemInformation() = 0;
};

}  // namespace survey

#endif  // PLATFORM_PROGRAM_FOLDER_H_
