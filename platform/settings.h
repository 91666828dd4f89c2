#ifndef PLATFORM_SETTINGS_H_
#define PLATFORM_SETTINGS_H_

#include <string>

namespace survey {

// The user's own settings. No survey data goes in here.
class Settings {
 public:
  virtual ~Settings() = default;

  // "" where nothing was saved.
  virtual std::string Get(const std::string& application, const std::string& section,
                          const std::string& key) = 0;
  virtual void Save(const std::string& application, const std::string& section,
                    const std::string& key, const std::string& value) = 0;
};

}  // namespace survey

#endif  // PLATFORM_SETTINGS_H_
