#ifndef DESKTOP_QT_SETTINGS_H_
#define DESKTOP_QT_SETTINGS_H_

#include <QSettings>

#include "platform/settings.h"

namespace survey {

// The user's settings on this desktop.
class QtSettings : public Settings {
 public:
  // In an .ini file of that path, or, where it is empty, in the user's own settings under the
  // application's organisation and name.
  explicit QtSettings(const QString& ini_file = {});

  std::string Get(const std::string& application, const std::string& section,
                  const std::string& key) override;
  void Save(const std::string& application, const std::string& section, const std::string& key,
            const std::string& value) override;

 private:
  QSettings settings_;
};

}  // namespace survey

#endif  // DESKTOP_QT_SETTINGS_H_
