#ifndef DESKTOP_WINDOW_MEMORY_H_
#define DESKTOP_WINDOW_MEMORY_H_

#include <QMainWindow>
#include <optional>
#include <string>

#include "platform/settings.h"

namespace survey {

// Where the user has left the windows, and what is to be seen in them, from one run to the next.
class WindowMemory {
 public:
  explicit WindowMemory(Settings& settings) : settings_(settings) {}  // which must outlive it

  // Size, place and state as they were, on a screen that is there; a window that was never
  // remembered stays as it is. `name` is that of the window.
  void Restore(const std::string& name, QWidget& window) const;
  void RestorePanes(QMainWindow& window) const;  // their widths and heights
  void Remember(const std::string& name, const QWidget& window);
  void RememberPanes(const QMainWindow& window);

  // Whether the user wants to see a pane; none where they have not said.
  std::optional<bool> Wanted(const std::string& pane) const;
  void SetWanted(const std::string& pane, bool wanted);

 private:
  QByteArray Get(const std::string& key) const;
  void Put(const std::string& key, const QByteArray& bytes);

  Settings& settings_;
};

}  // namespace survey

#endif  // DESKTOP_WINDOW_MEMORY_H_
