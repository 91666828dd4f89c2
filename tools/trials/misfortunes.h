#ifndef TOOLS_TRIALS_MISFORTUNES_H_
#define TOOLS_TRIALS_MISFORTUNES_H_

#include <filesystem>
#include <string>
#include <vector>

#include "filled_site.h"

namespace survey::testing {

// What may happen to a database while its pages are open.
struct Misfortune {
  const char* name;
  void (*begin)(const std::filesystem::path& file);
  void (*end)(const std::filesystem::path& file);  // all is as before
  const char* told_when_saving;
  const char* told_when_opening;  // null: the file can be opened
};

const std::vector<Misfortune>& Misfortunes();

// A page is filled in, the misfortune begins, and the page's part is saved; then the page is
// printed and, where the file cannot be opened, opened anew. Each must be told in the box that the
// page's rules name, the figures must stay on the page, what was saved before must be there when it
// is over, and the page must save as ever. Answers the first thing that is not so, "" for none.
std::string MeetMisfortune(const Misfortune& misfortune, const SavedPart& part);

// Fills up the disk at each write of a save in turn: the page must be as it was, or saved.
std::string FillDiskDuringSave(const SavedPart& part);

}  // namespace survey::testing

#endif  // TOOLS_TRIALS_MISFORTUNES_H_
