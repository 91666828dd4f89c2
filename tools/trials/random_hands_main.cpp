// random-hands SEED STEPS: works the real windows at random, unseen. A process beside the program
// writes down what is done, so that a crash or a halt can be told too.

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <array>
#include <csignal>
#include <cstdlib>
#include <deque>
#include <iostream>

#include "desktop/desktop.h"
#include "random_hands.h"

namespace survey::testing {
namespace {

constexpr int kPatienceMs = 60000;
constexpr std::size_t kActionsTold = 30;

// The platform without a screen says of much that it cannot do it.
void TellMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
  if (!message.startsWith("This plugin")) std::cerr << message.toStdString() << std::endl;
}

int Work(std::uint32_t seed, int steps, int trail) {
  int arguments = 1;
  std::array<char, 16> name = {"random-hands"};
  std::array<char*, 2> values = {name.data(), nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(TellMessage);
  const QApplication application(arguments, values.data());
  SetUpApplication();
  const auto report = RunRandomHands(seed, steps, [trail](const std::string& action) {
    const std::string line = action + "\n";
    if (write(trail, line.data(), line.size()) < 0) std::abort();
  });
  std::cout << "seed " << seed << ": " << report.steps << " steps on " << report.forms.size()
            << " forms, " << report.dialogs << " in dialogs, " << report.starts << " starts, "
            << report.saves << " saves" << std::endl;
  if (!report.fault.empty()) std::cout << "FAULT: " << report.fault << std::endl;
  return report.fault.empty() ? 0 : 1;
}

// Reads what the worker does until it ends, or does nothing for too long and is ended.
std::deque<std::string> Follow(int trail, pid_t worker) {
  std::deque<std::string> actions = {""};
  pollfd source = {trail, POLLIN, 0};
  std::array<char, 4096> part;
  while (true) {
    if (poll(&source, 1, kPatienceMs) == 0) {
      std::cout << "FAULT: nothing goes on" << std::endl;
      kill(worker, SIGABRT);
      return actions;
    }
    const ssize_t size = read(trail, part.data(), part.size());
    if (size <= 0) return actions;
    for (ssize_t i = 0; i < size; ++i) {
      if (part[i] != '\n') {
        actions.back() += part[i];
        continue;
      }
      actions.emplace_back();
      if (actions.size() > kActionsTold + 1) actions.pop_front();
    }
  }
}

int Run(std::uint32_t seed, int steps) {
  std::array<int, 2> trail;
  if (pipe(trail.data()) != 0) return 2;
  const pid_t worker = fork();
  if (worker == 0) {
    close(trail[0]);
    std::exit(Work(seed, steps, trail[1]));
  }
  close(trail[1]);
  const std::deque<std::string> actions = Follow(trail[0], worker);
  int status = 0;
  waitpid(worker, &status, 0);
  if (status == 0) return 0;
  for (const std::string& action : actions) std::cout << action << "\n";
  std::cout << "seed " << seed << " has failed" << std::endl;
  return 1;
}

}  // namespace
}  // namespace survey::testing

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: random-hands SEED STEPS\n";
    return 2;
  }
  const auto seed = static_cast<std::uint32_t>(std::strtoul(argv[1], nullptr, 10));
  return survey::testing::Run(seed, std::atoi(argv[2]));
}
