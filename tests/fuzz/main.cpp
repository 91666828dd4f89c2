// ui-fuzzer SEED STEPS: works the real windows at random, unseen.

#include <QApplication>
#include <cstdlib>
#include <iostream>

#include "desktop/desktop.h"
#include "fuzz/ui_fuzzer.h"
#include "offscreen.h"

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: ui-fuzzer SEED STEPS\n";
    return 2;
  }
  survey::UseOffscreenPlatform();
  const QApplication application(argc, argv);
  survey::SetUpApplication();
  const auto seed = static_cast<std::uint32_t>(std::strtoul(argv[1], nullptr, 10));
  return survey::testing::RunUiFuzzer(seed, std::atoi(argv[2])) ? 0 : 1;
}
