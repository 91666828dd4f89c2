// random-user SEED STEPS: works the program at random beside a twin of the survey.

#include <cstdlib>
#include <iostream>

#include "random_user.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: random-user SEED STEPS\n";
    return 2;
  }
  const auto seed = static_cast<std::uint32_t>(std::strtoul(argv[1], nullptr, 10));
  const auto report = survey::testing::RunRandomUser(seed, std::atoi(argv[2]));
  std::cout << "seed " << seed << ": " << report.steps << " steps, " << report.typed
            << " entries taken, " << report.saved << " saves\n";
  for (const auto& [form, visits] : report.visits)
    std::cout << "  " << form << " " << visits << "\n";
  for (const auto& [box, times] : report.boxes) std::cout << times << " x " << box << "\n";
  if (report.fault.empty()) return 0;
  std::cout << report.last_actions << "FAULT at step " << report.steps << ": " << report.fault
            << "\n";
  return 1;
}
