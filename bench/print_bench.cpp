// What the print of all staff takes, every page of each filled in: a person's share of the time
// and of the memory must not grow with their number. Each size runs in a process of its own, for
// memory that one has given back would serve the next.

#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <array>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <stdexcept>
#include <string>

#include "desktop/qt_printer.h"
#include "filled_survey.h"
#include "pages/register_pages.h"
#include "shell/register_shell.h"
#include "world.h"

namespace survey::bench {
namespace {

// The list prints the 200 that it holds; more take more prints, gathered in one file.
struct Size {
  int people;
  int prints;
};
constexpr std::array<Size, 4> kSizes = {{{10, 1}, {50, 1}, {200, 1}, {100, 5}}};

struct Measured {
  double milliseconds = 0;  // of the processor, a person: others' work does not count
  double kibibytes = 0;     // a person, at the most of the print over what was in use before it
  double file_kibibytes = 0;
};

// A figure of /proc/self/status, in KiB.
double Status(const std::string& name) {
  std::ifstream status("/proc/self/status");
  std::string line;
  while (std::getline(status, line)) {
    if (line.starts_with(name + ":")) return std::stod(line.substr(name.size() + 1));
  }
  throw std::runtime_error(name + " is not told");
}

// From here on the peak is that of what follows.
void ForgetPeak() { std::ofstream("/proc/self/clear_refs") << "5" << std::flush; }

// Prints all jobs in one file, for which it is asked once.
class OneFile : public QtPrinter {
 public:
  void ShowPrinter() override {
    if (!shown_) QtPrinter::ShowPrinter();
    shown_ = true;
  }
  void Complete() {
    Finish();
    shown_ = false;
  }

 private:
  bool shown_ = false;
};

Measured Measure(const Size& size) {
  testing::World world;
  OneFile printer;
  Forms forms(world.survey, {world.dialogs, printer, world.settings, world.program_folder});
  RegisterShell(forms);
  RegisterPages(forms);
  world.OpenSite(199010830, 108107587);
  testing::Figures figures;
  forms.Start("frmSelectEducator");
  testing::AddStaff(forms, size.people, figures);
  Form& list = forms.Get("frmSelectEducator");
  list.Form_Activate();
  const auto print_to = [&](const char* name, int prints) {
    const std::string file = (world.folder.path() / name).string();
    printer.PrintToFile(QString::fromStdString(file));
    for (int i = 0; i < prints; ++i) list.Find<Button>("cmdPrintSurvey").Click();
    printer.Complete();
    return static_cast<double>(std::filesystem::file_size(file)) / 1024;
  };
  list.Find<GridControl>("gridEducator").Click(1, 1);
  print_to("first.pdf", 1);  // fonts, keys and pages that are made once

  list.Find<CheckBox>("chAll").Click();
  const double before = Status("VmRSS");
  ForgetPeak();
  const std::clock_t start = std::clock();
  const double file = print_to("all.pdf", size.prints);
  const double milliseconds = 1e3 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  const int people = size.people * size.prints;
  if (!world.dialogs.seen.empty()) throw std::runtime_error(world.dialogs.seen[0].prompt);
  return {milliseconds / people, (Status("VmHWM") - before) / people, file / people};
}

// Runs in a process of its own, which ends with it.
Measured MeasureApart(const Size& size, int& argc, char** argv) {
  int ends[2];
  if (pipe(ends) != 0) throw std::runtime_error("no pipe");
  std::fflush(stdout);  // or the child prints it once more
  const pid_t child = fork();
  if (child == 0) {
    int status = 1;
    try {
      const QApplication application(argc, argv);
      const Measured measured = Measure(size);
      status = write(ends[1], &measured, sizeof measured) == sizeof measured ? 0 : 1;
    } catch (const std::exception& failure) {
      std::fprintf(stderr, "%s\n", failure.what());
    }
    std::exit(status);
  }
  Measured measured;
  const bool whole = read(ends[0], &measured, sizeof measured) == sizeof measured;
  close(ends[0]);
  close(ends[1]);
  int status = 0;
  waitpid(child, &status, 0);
  if (!whole || status != 0) throw std::runtime_error("a measurement failed");
  return measured;
}

int Run(int argc, char** argv) {
  std::printf("people         ms a person  KiB a person  KiB of file a person\n");
  std::array<Measured, kSizes.size()> measured;
  for (std::size_t i = 0; i < kSizes.size(); ++i) {
    const auto& [people, prints] = kSizes[i];
    measured[i] = MeasureApart(kSizes[i], argc, argv);
    std::printf("%4d (%d x %3d)%12.2f%14.1f%22.1f\n", people * prints, prints, people,
                measured[i].milliseconds, measured[i].kibibytes, measured[i].file_kibibytes);
  }
  std::printf("most over fewest%9.2f%14.2f\n",
              measured.back().milliseconds / measured.front().milliseconds,
              measured.back().kibibytes / measured.front().kibibytes);
  return 0;
}

}  // namespace
}  // namespace survey::bench

int main(int argc, char** argv) {
  try {
    return survey::bench::Run(argc, argv);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "print-bench: %s\n", failure.what());
    return 1;
  }
}
