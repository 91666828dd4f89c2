// What the user waits for: the first window, and a page after its click; and what it takes of the
// memory. Under a display or with the offscreen platform.

#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QMainWindow>
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "desktop/desktop.h"
#include "forms/page_chain.h"
#include "pages/register_pages.h"
#include "shell/register_shell.h"
#include "world.h"

namespace survey::bench {
namespace {

// Seconds since the process was started, loading of the libraries included.
double SecondsSinceStart() {
  std::ifstream stat("/proc/self/stat");
  std::string text((std::istreambuf_iterator<char>(stat)), {});
  std::istringstream fields(text.substr(text.rfind(')') + 2));
  std::string field;
  constexpr int kStartTime = 20;  // fields behind the name
  for (int i = 0; i < kStartTime; ++i) fields >> field;
  double uptime = 0;
  std::ifstream("/proc/uptime") >> uptime;
  return uptime - std::stod(field) / static_cast<double>(sysconf(_SC_CLK_TCK));
}

double ResidentMebibytes() {
  std::ifstream status("/proc/self/status");
  std::string line;
  while (std::getline(status, line)) {
    if (line.starts_with("VmRSS:")) return std::stod(line.substr(6)) / 1024;
  }
  return 0;
}

// Everything painted that waits to be, and gone what a running event loop would have let go.
void Settle(QWidget& window) {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QApplication::processEvents();
  window.repaint();
  QApplication::processEvents();
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

// Milliseconds from the click that shows a page to its picture, the median of some.
double MillisecondsToShow(Desktop& desktop, const std::string& page) {
  std::vector<double> times;
  constexpr int kTimes = 11;
  for (int i = 0; i < kTimes; ++i) {
    Form& menu = *desktop.forms().Front();
    QElapsedTimer timer;
    timer.start();
    desktop.forms().Dispatch(menu, [&] {
      desktop.forms().Show(page);
      desktop.forms().Unload(menu);
    });
    Settle(desktop.view().window());
    times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    Form& shown = *desktop.forms().Front();
    desktop.forms().Dispatch(shown, [&] {
      desktop.forms().Show("frmMainMenu");
      desktop.forms().Unload(shown);
    });
    Settle(desktop.view().window());
  }
  return Median(times);
}

int Run(int argc, char** argv) {
  const QApplication application(argc, argv);
  SetUpApplication();
  Desktop desktop;
  RegisterShell(desktop.forms());
  RegisterPages(desktop.forms());
  desktop.forms().Start("frmSelectDatabase");
  Settle(desktop.view().window());
  std::printf("first window        %6.0f ms, %.0f MiB\n", 1e3 * SecondsSinceStart(),
              ResidentMebibytes());

  const testing::TemporaryFolder folder;
  const auto database = folder.path() / "bench.mdb";
  std::filesystem::copy_file(testing::TemplateFile(), database);
  desktop.survey().DatabasePath = database.string();
  desktop.survey().CollegeEmisNumber = 101;
  desktop.survey().CampusEmisNumber = 202;
  desktop.forms().Get("frmMainMenu").EditMode = "Edit";
  Form& first = *desktop.forms().Front();
  desktop.forms().Dispatch(first, [&] {
    desktop.forms().Show("frmMainMenu");
    desktop.forms().Unload(first);
  });
  std::string last;
  for (const Link& link : PageChain()) {
    const std::string page(link.page);
    if (page == last || !desktop.forms().IsBuilt(page)) continue;
    last = page;
    std::printf("%-20s%6.1f ms\n", page.c_str(), MillisecondsToShow(desktop, page));
  }
  std::printf("after all pages     %.0f MiB\n", ResidentMebibytes());
  return 0;
}

}  // namespace
}  // namespace survey::bench

int main(int argc, char** argv) { return survey::bench::Run(argc, argv); }
