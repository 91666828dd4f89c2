#ifndef TOOLS_TRIALS_RANDOM_HANDS_H_
#define TOOLS_TRIALS_RANDOM_HANDS_H_

#include <cstdint>
#include <functional>
#include <set>
#include <string>

namespace survey::testing {

struct RandomHandsReport {
  int steps = 0;
  std::set<std::string> forms;  // that came to the front
  int dialogs = 0;              // steps within boxes and modal forms
  int starts = 0;               // of the program
  int saves = 0;                // changes of a database file, which then was opened
  std::string fault;            // the first that is not as it must be; empty where all was well
};

// Works the real windows as hands can: any key, click, drag and wheel, anything pasted, windows of
// any size, other fonts and colours, every box and dialog answered somehow, the window closed and
// the program started again, over a filled database in a folder of its own. After each step the
// windows must show what the form in front holds, and keys must go somewhere. A QApplication must
// run, in a process of its own: its environment, font and colours are changed. `on_action` hears
// of each action before it is done.
RandomHandsReport RunRandomHands(std::uint32_t seed, int steps,
                                 const std::function<void(const std::string&)>& on_action);

}  // namespace survey::testing

#endif  // TOOLS_TRIALS_RANDOM_HANDS_H_
