#include <QApplication>
#include <QMessageBox>
#include <exception>

#include "desktop/desktop.h"
#include "forms/message_boxes.h"
#include "pages/register_pages.h"
#include "shell/register_shell.h"

namespace {

int Run() {
  survey::Desktop desktop;
  survey::RegisterShell(desktop.forms());
  survey::RegisterPages(desktop.forms());
  // Queued, for the program may end before it has begun to wait for the user.
  QObject::connect(&desktop.view(), &survey::DesktopView::Ended, qApp, &QCoreApplication::quit,
                   Qt::QueuedConnection);
  desktop.forms().Start("frmSelectDatabase");
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  survey::SetUpApplication();
  try {
    return Run();
  } catch (const std::exception& failure) {
    QMessageBox::critical(nullptr, survey::kProgramName,
                          QString("The program cannot go on.\n\n%1").arg(failure.what()));
    return 1;
  }
}
