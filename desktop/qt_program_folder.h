#ifndef DESKTOP_QT_PROGRAM_FOLDER_H_
#define DESKTOP_QT_PROGRAM_FOLDER_H_

#include "forms/platform.h"

namespace survey {

// The folder that the running executable lies in, or another one in its place.
class QtProgramFolder : public ProgramFolder {
 public:
  explicit QtProgramFolder(std::filesystem::path in_place = {});

  std::filesystem::path Path() const override;
  bool StartSystemInformation() override;

 private:
  std::filesystem::path in_place_;
};

}  // namespace survey

#endif  // DESKTOP_QT_PROGRAM_FOLDER_H_
