// exchange rows FILE                 prints every row of a survey database.
// exchange save FILE VERSION [CALL]  saves every page with that version of the answers, and makes
//                                    FILE if need be; kills itself at that call to the disk.
//
// Linked with each engine, so that one continues what the other has left.

#include <cstdlib>
#include <iostream>

#include "faults/disk_faults.h"
#include "support/filled_site.h"

namespace survey::testing {
namespace {

void PrintRows(const std::string& file) {
  for (const auto& [table, rows] : AllRows(file)) std::cout << table << "\n" << rows;
}

// Answers what was told of a save that failed, "" for none. `killed_at` 0: is not killed.
std::string Save(const std::string& file, int version, int killed_at) {
  FilledSite site;
  if (!std::filesystem::exists(file)) {
    site.survey.CloseDatabaseConnection();
    std::filesystem::copy_file(site.survey.DatabasePath, file);
  }
  site.survey.DatabasePath = file;
  if (killed_at > 0) KillSelfAtDiskCall(killed_at);
  site.SaveAll(version);
  return site.LastBox();
}

}  // namespace
}  // namespace survey::testing

int main(int argc, char** argv) {
  using namespace survey::testing;
  if (argc < 3) return 2;
  const std::string file = argv[2];
  if (std::string(argv[1]) == "rows") {
    PrintRows(file);
    return 0;
  }
  const std::string told = Save(file, std::atoi(argv[3]), argc > 4 ? std::atoi(argv[4]) : 0);
  std::cerr << told;
  return told.empty() ? 0 : 1;
}
