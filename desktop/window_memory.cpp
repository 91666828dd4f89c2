#include "desktop/window_memory.h"

namespace survey {
namespace {

constexpr char kApplication[] = "OSTRELCORVALEANNUALSURVEY";
constexpr char kSection[] = "Windows";
constexpr char kShown[] = "shown";
constexpr char kHidden[] = "hidden";

}  // namespace

void WindowMemory::Restore(const std::string& name, QWidget& window) const {
  const QByteArray geometry = Get(name + "Geometry");
  if (!geometry.isEmpty()) window.restoreGeometry(geometry);
}

void WindowMemory::RestorePanes(QMainWindow& window) const {
  const QByteArray state = Get("Panes");
  if (!state.isEmpty()) window.restoreState(state);
}

void WindowMemory::Remember(const std::string& name, const QWidget& window) {
  Put(name + "Geometry", window.saveGeometry());
}

void WindowMemory::RememberPanes(const QMainWindow& window) { Put("Panes", window.saveState()); }

std::optional<bool> WindowMemory::Wanted(const std::string& pane) const {
  const std::string said = settings_.Get(kApplication, kSection, pane);
  if (said.empty()) return std::nullopt;
  return said == kShown;
}

void WindowMemory::SetWanted(const std::string& pane, bool wanted) {
  settings_.Save(kApplication, kSection, pane, wanted ? kShown : kHidden);
}

QByteArray WindowMemory::Get(const std::string& key) const {
  const std::string text = settings_.Get(kApplication, kSection, key);
  return QByteArray::fromBase64(QByteArray::fromStdString(text));
}

void WindowMemory::Put(const std::string& key, const QByteArray& bytes) {
  settings_.Save(kApplication, kSection, key, bytes.toBase64().toStdString());
}

}  // namespace survey
