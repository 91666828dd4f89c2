#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QMessageBox>
#include <QRawFont>
#include <exception>
#include <iostream>
#include <stdexcept>

#include "desktop/desktop.h"
#include "forms/message_boxes.h"
#include "pages/survey_pages.h"
#include "shell/register_shell.h"

namespace {

// Where the program is installed for all, no user can write beside the executable: the starter
// names a folder of the user's own in its place, or says why there is none.
survey::DesktopPlaces PlacesFrom(const QStringList& arguments) {
  const QCommandLineOption folder("program-folder", "Use the template and the databases in FOLDER.",
                                  "FOLDER");
  const QCommandLineOption refusal("refusal", "Tell REASON in a window, and end.", "REASON");
  QCommandLineParser parser;
  parser.addHelpOption();
  parser.addOption(folder);
  parser.addOption(refusal);
  parser.process(arguments);
  if (parser.isSet(refusal)) throw std::runtime_error(parser.value(refusal).toStdString());
  if (!parser.isSet(folder)) return {};
  const QDir program_folder(parser.value(folder));
  if (!program_folder.exists()) {
    throw std::runtime_error("There is no folder " + parser.value(folder).toStdString());
  }
  return {.program_folder = program_folder.absolutePath().toStdU16String()};
}

void TellTheEnd(const QString& text) {
  QMessageBox box(QMessageBox::Critical, survey::kProgramName, text);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

int Run() {
  survey::Desktop desktop(PlacesFrom(QCoreApplication::arguments()));
  survey::RegisterShell(desktop.host());
  survey::RegisterPages(desktop.host());
  // Queued, for the program may end before it has begun to wait for the user.
  QObject::connect(&desktop.view(), &survey::DesktopView::Ended, qApp, &QCoreApplication::quit,
                   Qt::QueuedConnection);
  desktop.host().Start("frmSelectDatabase");
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  if (QRawFont::fromFont(QApplication::font()).fontTable("cmap").isEmpty()) {
    std::cerr << survey::kProgramName
              << ": this computer has no fonts, so that no text can be "
                 "shown. Install one, for example the package fonts-dejavu, and start again.\n";
    return 1;
  }
  survey::SetUpApplication();
  // The menu entry's name, by which a desktop finds the icon of our windows.
  QGuiApplication::setDesktopFileName("corvale-survey");
  try {
    return Run();
  } catch (const std::exception& failure) {
    TellTheEnd(QString("The program cannot go on.\n\n%1").arg(failure.what()));
    return 1;
  }
}
