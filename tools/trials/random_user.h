#ifndef TOOLS_TRIALS_RANDOM_USER_H_
#define TOOLS_TRIALS_RANDOM_USER_H_

#include <cstdint>
#include <map>
#include <string>

namespace survey::testing {

struct RandomUserReport {
  int steps = 0;
  int typed = 0;                      // entries taken
  int saved = 0;                      // saves of pages that the twin knows
  std::map<std::string, int> visits;  // of each form
  std::map<std::string, int> boxes;   // texts of the error boxes, and how often each came
  std::string fault;         // the first difference from the twin; empty where all was well
  std::string last_actions;  // a line each, up to the fault
};

// Works the program without a desktop as somebody who clicks and types anything on every form:
// right and wrong answers, links, saves, prints, Yes and No, sites and databases, leaving and
// starting again. A twin of the survey (twin.h) is told the same, and after every step the form in
// front must show what the twin says. The same seed does the same again.
RandomUserReport RunRandomUser(std::uint32_t seed, int steps);

}  // namespace survey::testing

#endif  // TOOLS_TRIALS_RANDOM_USER_H_
