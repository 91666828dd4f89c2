#include "forms/link.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace survey {

const Link& LinkOf(const std::vector<Link>& links, std::string_view button) {
  const auto link = std::ranges::find(links, button, &Link::button);
  if (link == links.end()) throw std::out_of_range("no link at " + std::string(button));
  return *link;
}

}  // namespace survey
