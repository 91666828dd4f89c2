// misfortunes: lets every misfortune of a database befall every page.

#include <iostream>

#include "misfortunes.h"

int main() {
  using namespace survey::testing;
  int met = 0, faults = 0;
  const auto tell = [&](const std::string& fault) {
    ++met;
    if (fault.empty()) return;
    ++faults;
    std::cout << fault << std::endl;
  };
  for (const Misfortune& misfortune : Misfortunes()) {
    for (const SavedPart& part : SavedParts()) tell(MeetMisfortune(misfortune, part));
  }
  for (const SavedPart& part : SavedParts()) {
    const bool is_told = !part.page.starts_with("frmLec") && part.page != "frmHostels";
    if (is_told && part.page != "frmPage12_1") tell(FillDiskDuringSave(part));
  }
  std::cout << met << " met, " << faults << " faults\n";
  return faults == 0 ? 0 : 1;
}
