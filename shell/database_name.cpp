#include "shell/database_name.h"

#include <algorithm>

#include "base/text.h"

namespace survey {
namespace {

constexpr std::string_view kForbidden = "<>:\"|?*";

// Names that stand for devices, with any ending.
constexpr std::string_view kDevices[] = {"CON", "PRN", "AUX", "NUL", "CONIN$", "CONOUT$"};
constexpr std::string_view kNumberedDevices[] = {"COM", "LPT"};
constexpr std::string_view kNumbers[] = {"0", "1", "2", "3", "4", "5", "6",
                                         "7", "8", "9", "¹", "²", "³"};

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7f'; }

bool IsDevice(std::string_view name) {
  const auto is = [name](std::string_view device) { return EqualsIgnoringCase(name, device); };
  if (std::ranges::any_of(kDevices, is)) return true;
  return std::ranges::any_of(kNumberedDevices, [name](std::string_view device) {
    return EqualsIgnoringCase(name.substr(0, device.size()), device) &&
           std::ranges::find(kNumbers, name.substr(std::min(device.size(), name.size()))) !=
               std::end(kNumbers);
  });
}

}  // namespace

std::string WhyNoName(std::string_view name) {
  const std::string another = " Please supply another name.";
  const std::size_t forbidden = name.find_first_of(kForbidden);
  if (forbidden != std::string_view::npos) {
    return std::string("A database name cannot contain the sign '") + name[forbidden] + "'." +
           another;
  }
  if (std::ranges::any_of(name, IsControl)) {
    return "A database name cannot contain a tab or another control character." + another;
  }
  if (name.ends_with('.')) return "A database name cannot end with a full stop." + another;
  const std::string first = Trim(name.substr(0, name.find('.')));
  if (!IsDevice(first)) return {};
  return "\"" + first +
         "\" cannot be the name of a database, for some systems take it for a device." + another;
}

}  // namespace survey
