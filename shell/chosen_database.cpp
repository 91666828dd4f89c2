#include "shell/chosen_database.h"

#include "base/run_time_error.h"
#include "base/text.h"
#include "shell/backups.h"

namespace survey {
namespace {

constexpr double kBusy = 5;  // another program is writing, which tells nothing of the file

bool OpensDamaged(MessageBoxes& boxes, const Backups& backups) {
  const std::string text =
      "The database is damaged: not all of it can be read, and answers may be missing on its "
      "pages.\n\nIt is best to end the program and to put back the last good copy of it, from the "
      "folder\n" +
      Utf8(backups.folder()) +
      "\n\nDo you want to open the damaged database all the same, to see and print what is left?";
  return boxes.ExtendedMsgBox(text, kYesNo + kSecondButtonDefault, kProgramName, Picture::kStop,
                              "") != kAnswerNo;
}

void KeepCopy(Connection& database, const std::string& path, MessageBoxes& boxes,
              const Backups& backups) {
  try {
    backups.Keep(database, ToPath(path));
  } catch (const RunTimeError& failure) {
    boxes.PlainBox("No backup copy of the database could be made:\n" + std::string(failure.what()) +
                   "\n\nThe database itself is all right, and you can work on. See that there is "
                   "room on the disk and that you may write into the folder\n" +
                   Utf8(backups.folder()));
  }
}

}  // namespace

bool CareForChosenDatabase(FormHost& host, const DataFolder& data_folder) {
  std::unique_ptr<Connection> database;
  try {
    database = host.survey().OpenAside();
  } catch (const RunTimeError&) {
    return true;
  }
  const Backups backups(data_folder.path());
  try {
    database->RequireSoundFile();
  } catch (const RunTimeError& failure) {
    return failure.number() == kBusy || OpensDamaged(host.boxes(), backups);
  }
  KeepCopy(*database, host.survey().DatabasePath, host.boxes(), backups);
  return true;
}

}  // namespace survey
