// Writes the program's icon as FOLDER/16.png, FOLDER/24.png and so on, for menus and file managers,
// which read no drawing made by a program.

#include <QGuiApplication>
#include <iostream>

#include "desktop/pictures.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");  // also built where nobody looks
  const QGuiApplication application(argc, argv);
  if (argc != 2) {
    std::cerr << "usage: make-icons FOLDER\n";
    return 2;
  }
  const QIcon icon = survey::ProgramIcon();
  for (const QSize& size : icon.availableSizes()) {
    const QString file = QString("%1/%2.png").arg(argv[1]).arg(size.width());
    if (icon.pixmap(size).save(file)) continue;
    std::cerr << "make-icons: " << file.toStdString() << " cannot be written\n";
    return 1;
  }
}
