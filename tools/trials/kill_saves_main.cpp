// kill-saves ROUNDS [SEED]: kills a saving program at random moments and looks at what is left.

#include <cstdlib>
#include <iostream>
#include <random>

#include "kill_saves.h"

int main(int argc, char** argv) {
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 500;
  const auto seed = argc > 2 ? static_cast<std::uint32_t>(std::strtoul(argv[2], nullptr, 10))
                             : std::random_device()();
  std::cout << "seed " << seed << std::endl;
  const auto report = survey::testing::KillSaves(rounds, seed);
  std::cout << report.rounds << " rounds, " << report.in_a_save << " kills during a save, "
            << report.left_journals << " journals left, " << report.old_parts << " parts old, "
            << report.new_parts << " parts new\n";
  if (report.fault.empty()) return 0;
  std::cout << "FAULT in round " << report.rounds << ": " << report.fault << "\n";
  return 1;
}
