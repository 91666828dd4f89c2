#include "desktop/qt_settings.h"

#include <QCoreApplication>

namespace survey {
namespace {

QString Path(const std::string& application, const std::string& section, const std::string& key) {
  return QString::fromStdString(application + "/" + section + "/" + key);
}

// QSettings can neither be copied nor told its file later.
QString FileOrUserFile(const QString& ini_file) {
  if (!ini_file.isEmpty()) return ini_file;
  return QSettings(QSettings::IniFormat, QSettings::UserScope, QCoreApplication::organizationName(),
                   QCoreApplication::applicationName())
      .fileName();
}

}  // namespace

QtSettings::QtSettings(const QString& ini_file)
    : settings_(FileOrUserFile(ini_file), QSettings::IniFormat) {}

std::string QtSettings::Get(const std::string& application, const std::string& section,
                            const std::string& key) {
  return settings_.value(Path(application, section, key)).toString().toStdString();
}

void QtSettings::Save(const std::string& application, const std::string& section,
                      const std::string& key, const std::string& value) {
  settings_.setValue(Path(application, section, key), QString::fromStdString(value));
  settings_.sync();
}

}  // namespace survey
