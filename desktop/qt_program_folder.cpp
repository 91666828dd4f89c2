#include "desktop/qt_program_folder.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>

namespace survey {
namespace {

// In the order in which they are looked for.
constexpr const char* kSystemInformationViewers[] = {"msinfo32", "kinfocenter", "hardinfo2",
                                                     "hardinfo"};

}  // namespace

QtProgramFolder::QtProgramFolder(std::filesystem::path in_place) : in_place_(std::move(in_place)) {}

std::filesystem::path QtProgramFolder::Path() const {
  std::filesystem::path path = in_place_;
  if (path.empty()) path = QCoreApplication::applicationDirPath().toStdU16String();
  return path
      .make_preferred();  // users see it, and the toolkit's separators are the same everywhere
}

bool QtProgramFolder::StartSystemInformation() {
  for (const char* viewer : kSystemInformationViewers) {
    const QString executable = QStandardPaths::findExecutable(viewer);
    if (!executable.isEmpty() && QProcess::startDetached(executable, {})) return true;
  }
  return false;
}

}  // namespace survey
