// What the print of all staff takes, every page of each filled in: a person's share of the time
// and of the memory must not grow with their number. Beside it the same texts on as many sheets by
// the toolkit alone. Each size runs in a process of its own, for memory that one has given back
// would serve the next.

#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QPainter>
#include <QPrinter>
#include <array>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

#include "desktop/qt_printer.h"
#include "many_records.h"
#include "offscreen.h"
#include "pages/survey_pages.h"
#include "report.h"
#include "shell/register_shell.h"
#include "support/headless_program.h"

namespace survey::bench {
namespace {

// The list prints the 200 that it holds; more take more prints, gathered in one file.
struct Size {
  int people;
  int prints;
};
constexpr double kMostToFewest = 1.3;  // what a person's share may grow by
constexpr double kSheetRatio = 2;      // to the plain drawing of its texts
constexpr std::array<Size, 4> kSizes = {{{10, 1}, {50, 1}, {200, 1}, {100, 5}}};

struct Measured {
  double milliseconds = 0;        // of the processor, a person: others' work does not count
  double sheet_milliseconds = 0;  // of these for drawing, without what is read from the store
  double plain_milliseconds = 0;  // of the toolkit alone for drawing
  double kibibytes = 0;  // a person, at the most of the print over what was in use before it
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

double Milliseconds(std::clock_t since) {
  return 1e3 * static_cast<double>(std::clock() - since) / CLOCKS_PER_SEC;
}

// Prints all jobs in one file, for which it is asked once, and says how long it took for that.
class OneFile : public QtPrinter {
 public:
  // Prints into the file that `file` names by then; it must outlive the printer.
  explicit OneFile(const std::string& file)
      : QtPrinter([&file](QPrinter& printer) {
          printer.setOutputFormat(QPrinter::PdfFormat);
          printer.setOutputFileName(QString::fromStdString(file));
          return true;
        }) {}

  void ShowPrinter(const std::string& job) override {
    if (!shown_) QtPrinter::ShowPrinter(job);
    shown_ = true;
  }
  void Print(std::string_view text) override {
    Take([&] { QtPrinter::Print(text); });
  }
  void OwnerPrintDraw(const Grid& grid, double left, double top, double right, double bottom,
                      int page) override {
    Take([&] { QtPrinter::OwnerPrintDraw(grid, left, top, right, bottom, page); });
  }
  int OwnerPrintPageCount(const Grid& grid, double left, double top, double right,
                          double bottom) override {
    int pages = 0;
    Take([&] { pages = QtPrinter::OwnerPrintPageCount(grid, left, top, right, bottom); });
    return pages;
  }
  void NewPage() override {
    Take([&] { QtPrinter::NewPage(); });
  }
  void EndDoc() override {
    Take([&] { QtPrinter::EndDoc(); });
  }
  void Finish() override {}
  void Complete() {
    Take([&] { QtPrinter::Finish(); });
    shown_ = false;
  }
  double TakeMilliseconds() { return std::exchange(milliseconds_, 0); }

 private:
  void Take(const std::function<void()>& draw) {
    const std::clock_t start = std::clock();
    draw();
    milliseconds_ += Milliseconds(start);
  }

  bool shown_ = false;
  double milliseconds_ = 0;
};

// The texts of each page of a staff member, a sheet each.
std::vector<QStringList> TextsOf(FormHost& host, const std::string& id) {
  std::vector<QStringList> sheets;
  for (const PageRow& page : host.pages()) {
    if (page.section != Section::kStaffMember) continue;
    host.RunOffScreen(std::string(page.name), [&](Form& form) {
      testing::ChooseStaffMember(form, id);
      form.Form_Activate();
      QStringList& texts = sheets.emplace_back();
      for (const Control* control : form.controls()) {
        const auto* grid = dynamic_cast<const GridControl*>(control);
        for (int row = 1; grid != nullptr && row <= grid->MaxRows(); ++row) {
          for (int column = 1; column <= grid->MaxColumns(); ++column) {
            texts << QString::fromStdString(grid->GetText(column, row));
          }
        }
      }
    });
  }
  return sheets;
}

// Milliseconds for so many times these sheets.
double PrintPlainly(const std::vector<QStringList>& sheets, int times, const std::string& file) {
  const std::clock_t start = std::clock();
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFileName(QString::fromStdString(file));
  QPainter painter(&printer);
  for (int i = 0; i < times; ++i) {
    for (const QStringList& sheet : sheets) {
      for (int line = 0; line < sheet.size(); ++line) {
        painter.drawText(QPoint(100 + line % 7 * 1300, 300 + line / 7 * 250), sheet[line]);
      }
      printer.newPage();
    }
  }
  painter.end();
  return Milliseconds(start);
}

Measured Measure(const Size& size) {
  testing::HeadlessProgram world;
  std::string path;
  OneFile printer(path);
  FormHost host(world.survey, {world.dialogs, printer, world.settings, world.program_folder});
  RegisterShell(host);
  RegisterPages(host);
  world.OpenSite(199010830, 108107587);
  testing::Figures figures;
  host.Start("frmSelectEducator");
  AddStaff(host, size.people, figures);
  Form& list = host.Get("frmSelectEducator");
  list.Form_Activate();
  const auto print_to = [&](const char* name, int prints) {
    path = (world.folder.path() / name).string();
    for (int i = 0; i < prints; ++i) list.Find<Button>("cmdPrintSurvey").Click();
    printer.Complete();
    return static_cast<double>(std::filesystem::file_size(path)) / 1024;
  };
  list.Find<GridControl>("gridEducator").Click(1, 1);
  print_to("first.pdf", 1);  // fonts, keys and pages that are made once
  printer.TakeMilliseconds();

  list.Find<CheckBox>("chAll").Click();
  const double before = Status("VmRSS");
  ForgetPeak();
  const std::clock_t start = std::clock();
  const double file = print_to("all.pdf", size.prints);
  const double milliseconds = Milliseconds(start);
  const double sheets = printer.TakeMilliseconds();
  const double most = Status("VmHWM");
  const int people = size.people * size.prints;
  const double plain = PrintPlainly(TextsOf(host, list.Find<Grid>("gridEducator").GetText(2, 1)),
                                    people, (world.folder.path() / "plain.pdf").string());
  if (!world.dialogs.seen.empty()) throw std::runtime_error(world.dialogs.seen[0].prompt);
  return {milliseconds / people, sheets / people, plain / people, (most - before) / people,
          file / people};
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
  UseOffscreenPlatform();
  Report report("The print of all staff, a person");
  std::array<Measured, kSizes.size()> measured;
  for (std::size_t i = 0; i < kSizes.size(); ++i) {
    const auto& [people, prints] = kSizes[i];
    measured[i] = MeasureApart(kSizes[i], argc, argv);
    const std::string of = std::to_string(people * prints) + " people: ";
    report.Amount(of + "time", measured[i].milliseconds, "ms");
    report.Ratio(of + "sheets", measured[i].sheet_milliseconds, measured[i].plain_milliseconds,
                 "ms", kSheetRatio);
    report.Amount(of + "memory", measured[i].kibibytes, "KiB");
    report.Amount(of + "file", measured[i].file_kibibytes, "KiB");
  }
  const Measured& most = measured.back();
  const Measured& fewest = measured.front();
  report.Ratio("time, most to fewest", most.milliseconds, fewest.milliseconds, "ms", kMostToFewest);
  report.Ratio("memory, most to fewest", most.kibibytes, fewest.kibibytes, "KiB", kMostToFewest);
  report.Ratio("file, most to fewest", most.file_kibibytes, fewest.file_kibibytes, "KiB",
               kMostToFewest);
  return report.ExitCode();
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
