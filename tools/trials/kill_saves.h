#ifndef TOOLS_TRIALS_KILL_SAVES_H_
#define TOOLS_TRIALS_KILL_SAVES_H_

#include <cstdint>
#include <string>

namespace survey::testing {

// What was found when a program that saves one page after the other was killed again and again.
struct KillReport {
  int rounds = 0;
  int in_a_save = 0;      // kills while a save was under way
  int left_journals = 0;  // kills that left the database to be put right by the next opening
  int old_parts = 0;      // parts under way that were found as they had been
  int new_parts = 0;      // parts under way that were found saved
  std::string fault;      // the first thing that was not as it must be; empty where all was well
};

// Forks a program that fills and saves pages in turns of two versions, kills it at a random moment
// (at a time, at a statement, or in the middle of a call that changes a file), opens the database
// again as a user does, and requires that every part of every page is all old or all new, that what
// had been saved is there, that the file is sound and alone. Ends at the first fault.
KillReport KillSaves(int rounds, std::uint32_t seed);

}  // namespace survey::testing

#endif  // TOOLS_TRIALS_KILL_SAVES_H_
