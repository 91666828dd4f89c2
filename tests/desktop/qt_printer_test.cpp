#include "desktop/qt_printer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTimer>

#include "base/run_time_error.h"
#include "desktop_driver.h"
#include "grid/grid.h"
#include "support/headless_program.h"

#ifndef _WIN32
#include <sys/resource.h>

#include <csignal>
#endif

namespace survey::testing {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Property;
using ::testing::Throws;

class QtPrinterTest : public ::testing::Test {
 protected:
  QtPrinterTest() {
    printer_.ShowPrinter("one");
    printer_.SetFont("Times New Roman", 12, true);
  }

  void PrintJob(const char* text) {
    printer_.Print(text);
    printer_.EndDoc();
  }
  // "595x842 842x595": the sheets of the file once it is completed, in points.
  std::string Sheets() {
    printer_.Finish();
    QFile file(file_);
    if (!file.open(QIODevice::ReadOnly)) return "no file";
    const QString content = QString::fromLatin1(file.readAll());
    if (!content.trimmed().endsWith("%%EOF")) return "not complete";
    static const QRegularExpression sheet(R"(/MediaBox \[0 0 (\d+)\S* (\d+)\S*\])");
    QStringList sheets;
    for (auto found = sheet.globalMatch(content); found.hasNext();) {
      const auto match = found.next();
      sheets << match.captured(1) + "x" + match.captured(2);
    }
    return sheets.join(' ').toStdString();
  }

  TemporaryFolder folder_;
  QString file_ = QString::fromStdString((folder_.path() / "survey.pdf").string());
  QtPrinter printer_{PrintInto(file_)};
};

TEST_F(QtPrinterTest, GathersTheJobsOfOneChoiceInOneFile) {
  PrintJob("one");
  printer_.SetOrientation(Orientation::kLandscape);
  EXPECT_NEAR(printer_.Width(), 16838, 20);
  PrintJob("two");
  printer_.Print("three");
  printer_.NewPage();
  printer_.Print("four");
  printer_.NewPage();  // nothing follows, so no blank sheet
  printer_.EndDoc();
  EXPECT_EQ(Sheets(), "595x842 842x595 842x595 842x595");

  printer_.ShowPrinter("two");  // a new choice, the same file
  PrintJob("five");
  EXPECT_EQ(Sheets(), "842x595") << "the orientation stays in force";
}

TEST_F(QtPrinterTest, BreaksAGridBetweenRowsAndColumns) {
  const GridDesign design = {.columns = 3,
                             .rows = 100,
                             .column_widths = {2000, 2000, 2000},
                             .row_height = 300,
                             .label_columns = 1,
                             .heads = {"Name", "Number", "Post"}};
  Grid grid(design);
  // Room for the head and 33 rows.
  EXPECT_EQ(printer_.OwnerPrintPageCount(grid, 300, 800, 11906, 800 + 300 * 34 + 299), 4);
  // A third column does not fit beside the labels.
  EXPECT_EQ(printer_.OwnerPrintPageCount(grid, 300, 800, 300 + 5999, 800 + 300 * 101), 2);
  EXPECT_EQ(printer_.OwnerPrintPageCount(grid, 0, 0, 10, 10), 200) << "one row at least";
  for (int row = 34; row <= 100; ++row) grid.SetRowHidden(row, true);
  EXPECT_EQ(printer_.OwnerPrintPageCount(grid, 300, 800, 11906, 800 + 300 * 34), 1);
  for (const int page : {1, 2}) {  // the second is blank, and no sheet
    printer_.OwnerPrintDraw(grid, 300, 1200, printer_.Width(), printer_.Height(), page);
    printer_.NewPage();
  }
  printer_.EndDoc();
  EXPECT_EQ(Sheets(), "595x842");
}

TEST_F(QtPrinterTest, SaysThatAFileCannotBeWrittenOrHasNotBecomeWhole) {
  const auto fails = [this] {
    return Throws<RunTimeError>(
        AllOf(Property(&RunTimeError::number, 482),
              Property(&RunTimeError::what, HasSubstr(file_.toStdString()))));
  };
  const QString somewhere =
      std::exchange(file_, QString::fromStdString((folder_.path() / "none" / "x.pdf").string()));
  printer_.ShowPrinter("survey");
  EXPECT_THAT([this] { printer_.Print("lost"); }, fails());
#ifndef _WIN32
  const auto expect_not_whole = [&] {
    printer_.ShowPrinter("survey");
    PrintJob("lost");
    EXPECT_THAT([this] { printer_.Finish(); }, fails());
    EXPECT_NO_THROW(printer_.Finish()) << "told once";
  };
  file_ = "/dev/full";
  expect_not_whole();
  file_ = somewhere;
  signal(SIGXFSZ, SIG_IGN);
  rlimit limit{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &limit), 0);
  const rlimit small{600, limit.rlim_max};  // of bytes, and of the file
  setrlimit(RLIMIT_FSIZE, &small);
  expect_not_whole();
  setrlimit(RLIMIT_FSIZE, &limit);
#endif
  file_ = somewhere;
  printer_.ShowPrinter("survey");
  PrintJob("with room again");
  EXPECT_EQ(Sheets(), "595x842");
}

TEST_F(QtPrinterTest, TheDialogProposesTheNameOfTheJobAndCancelPrintsNothing) {
  file_.clear();
  QString proposed;
  QTimer cancel;
  QObject::connect(&cancel, &QTimer::timeout, qApp, [&] {
    if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
      proposed = dialog->findChild<QLineEdit*>("filename")->text();
      dialog->reject();
    }
  });
  cancel.start(20);
  QtPrinter unused{PrintInto(file_)};
  for (QtPrinter* printer : {&printer_, &unused}) {  // after a file of another name, and at first
    EXPECT_THAT([&] { printer->ShowPrinter("North table 4.25 A/1"); },
                Throws<RunTimeError>(Property(&RunTimeError::number, 32755)));
    EXPECT_EQ(QFileInfo(proposed).fileName(), "North table 4.25 A-1.pdf");
  }
}

TEST_F(QtPrinterTest, AFileIsOfferedWhereThereIsNoPrinterAndTheDialogServesNone) {
  const QString chosen = file_;
  QString proposed;
  bool accept = false;
  QTimer answer;
  QObject::connect(&answer, &QTimer::timeout, qApp, [&] {
    if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
      proposed = dialog->selectedFiles().value(0);
      dialog->selectFile(QString(chosen).chopped(4));  // the ending comes by itself
      QDialog& answered = *dialog;
      accept ? answered.accept() : answered.reject();
    }
  });
  answer.start(20);
  QtPrinter printer{AskForFile};
  EXPECT_THAT([&] { printer.ShowPrinter("North table 2.5"); },
              Throws<RunTimeError>(Property(&RunTimeError::number, 32755)));
  EXPECT_EQ(QFileInfo(proposed).fileName(), "North table 2.5.pdf");
  accept = true;
  printer.ShowPrinter("North table 2.5");
  printer.SetFont("Times New Roman", 12, true);
  printer.Print("on paper later");
  printer.EndDoc();
  printer.Finish();
  EXPECT_EQ(Sheets(), "595x842");
}

}  // namespace
}  // namespace survey::testing
