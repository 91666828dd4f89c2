// What the user waits for: the first window, and a page after its click; and what it takes of the
// memory. Each beside the toolkit alone: a window with a label, and the page's texts in plain
// tables, labels and buttons. Without a screen.

#include <unistd.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "desktop/desktop.h"
#include "offscreen.h"
#include "pages/survey_pages.h"
#include "report.h"
#include "shell/register_shell.h"
#include "support/headless_program.h"

namespace survey::bench {
namespace {

constexpr double kFirstWindowBound = 200;  // milliseconds
constexpr double kMemoryBound = 60;        // MiB
constexpr double kPageBound = 50;          // milliseconds
constexpr double kPageRatio = 2.5;         // to the plain texts

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

QWidget* PlainTable(const GridControl& grid) {
  auto* table = new QTableWidget(grid.MaxRows(), grid.MaxColumns());
  for (int row = 1; row <= grid.MaxRows(); ++row) {
    for (int cell = 1; cell <= grid.MaxColumns(); ++cell) {
      const QString text = QString::fromStdString(grid.GetText(cell, row));
      table->setItem(row - 1, cell - 1, new QTableWidgetItem(text));
    }
  }
  return table;
}

// The plain widget for what a control shows; none for a frame.
QWidget* PlainWidget(const Control& control) {
  const auto text = [](const std::string& utf8) { return QString::fromStdString(utf8); };
  if (const auto* grid = dynamic_cast<const GridControl*>(&control)) return PlainTable(*grid);
  if (const auto* label = dynamic_cast<const Label*>(&control)) {
    auto* plain = new QLabel(text(label->Caption));
    plain->setWordWrap(true);
    return plain;
  }
  if (const auto* button = dynamic_cast<const Button*>(&control)) {
    return new QPushButton(text(button->Caption));
  }
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) {
    return new QCheckBox(text(box->Caption));
  }
  if (const auto* option = dynamic_cast<const OptionButton*>(&control)) {
    return new QRadioButton(text(option->Caption));
  }
  if (const auto* line = dynamic_cast<const TextBox*>(&control)) {
    return new QLineEdit(text(line->Text));
  }
  return dynamic_cast<const ComboBox*>(&control) != nullptr ? new QComboBox : nullptr;
}

// The texts of the page in plain tables, labels and buttons, as the content of a plain window.
QWidget* PlainTexts(const Form& page) {
  auto* texts = new QWidget;
  auto* column = new QVBoxLayout(texts);
  for (const Control* control : page.controls()) {
    if (QWidget* plain = PlainWidget(*control)) column->addWidget(plain);
  }
  return texts;
}

struct Showing {
  std::vector<double> ours;   // milliseconds from the click that shows a page to its picture
  std::vector<double> plain;  // and until its texts stand in plain widgets
};

// By turns, in windows of one size.
Showing Show(Desktop& desktop, QMainWindow& plain, const std::string& page) {
  Showing times;
  constexpr int kTimes = 11;
  for (int i = 0; i < kTimes; ++i) {
    Form& menu = *desktop.host().Front();
    QElapsedTimer timer;
    timer.start();
    desktop.host().Dispatch(menu, [&] {
      desktop.host().Show(page);
      desktop.host().Unload(menu);
    });
    Settle(desktop.view().window());
    times.ours.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    timer.restart();
    plain.setCentralWidget(PlainTexts(desktop.host().Get(page)));
    Settle(plain);
    times.plain.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    Form& shown = *desktop.host().Front();
    desktop.host().Dispatch(shown, [&] {
      desktop.host().Show("frmMainMenu");
      desktop.host().Unload(shown);
    });
    Settle(desktop.view().window());
  }
  return times;
}

// What the toolkit alone takes for a window: run as a process of its own.
constexpr char kPlainWindow[] = "--plain-window";

int ShowPlainWindow(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  window.setCentralWidget(new QLabel("A window"));
  window.show();
  Settle(window);
  std::printf("%f %f\n", 1e3 * SecondsSinceStart(), ResidentMebibytes());
  return 0;
}

void ReportFirstWindow(Report& report, const char* program) {
  const double milliseconds = 1e3 * SecondsSinceStart();
  const double mebibytes = ResidentMebibytes();
  QProcess plain;
  plain.start(program, {kPlainWindow});
  plain.waitForFinished();
  const QList<QByteArray> figures = plain.readAllStandardOutput().split(' ');
  report.Ratio("first window", milliseconds, figures.value(0).toDouble(), "ms");
  report.Ratio("memory then", mebibytes, figures.value(1).toDouble(), "MiB");
  report.Amount("first window", milliseconds, "ms", kFirstWindowBound);
  report.Amount("memory then", mebibytes, "MiB", kMemoryBound);
}

int Run(int argc, char** argv) {
  Report report("The windows");
  const QApplication application(argc, argv);
  SetUpApplication();
  Desktop desktop;
  RegisterShell(desktop.host());
  RegisterPages(desktop.host());
  desktop.host().Start("frmSelectDatabase");
  Settle(desktop.view().window());
  ReportFirstWindow(report, argv[0]);

  const testing::TemporaryFolder folder;
  const auto database = folder.path() / "bench.mdb";
  std::filesystem::copy_file(testing::TemplateFile(), database);
  desktop.survey().DatabasePath = database.string();
  desktop.survey().CollegeEmisNumber = 101;
  desktop.survey().CampusEmisNumber = 202;
  desktop.host().Get("frmMainMenu").Property("EditMode") = "Edit";
  Form& first = *desktop.host().Front();
  desktop.host().Dispatch(first, [&] {
    desktop.host().Show("frmMainMenu");
    desktop.host().Unload(first);
  });
  QMainWindow plain;
  plain.resize(desktop.view().window().size());
  plain.show();
  for (const PageRow& row : desktop.host().pages()) {
    const std::string page(row.name);
    const Showing times = Show(desktop, plain, page);
    const double ours = Median(times.ours);
    const double baseline = Median(times.plain);
    report.Ratio(page, ours, baseline, "ms", kPageRatio);
    report.Amount(page, ours, "ms", kPageBound);
  }
  report.Amount("memory after all pages", ResidentMebibytes(), "MiB", kMemoryBound);
  return report.ExitCode();
}

}  // namespace
}  // namespace survey::bench

int main(int argc, char** argv) {
  survey::UseOffscreenPlatform();
  const bool plain = argc > 1 && std::string_view(argv[1]) == survey::bench::kPlainWindow;
  return plain ? survey::bench::ShowPlainWindow(argc, argv) : survey::bench::Run(argc, argv);
}
