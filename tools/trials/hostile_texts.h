#ifndef TOOLS_TRIALS_HOSTILE_TEXTS_H_
#define TOOLS_TRIALS_HOSTILE_TEXTS_H_

#include <string>

namespace survey::testing {

struct HostileReport {
  int came_back = 0;  // texts saved and read again as they were typed
  int told = 0;       // texts whose statement failed, with a box
  std::string fault;  // the first that ran something else, or was lost without a word
};

// Types texts made to break out of a statement into every cell that takes words, one at a time, and
// saves: no table but the page's own may change, and the text comes back or a box tells.
HostileReport TypeHostileTexts();

// The same with the boxes beside the grids, and as the ID number of a staff member.
HostileReport EnterHostileTexts();

}  // namespace survey::testing

#endif  // TOOLS_TRIALS_HOSTILE_TEXTS_H_
