#ifndef GRID_ENTRY_H_
#define GRID_ENTRY_H_

#include <string>

namespace survey {

// What became of a user's entry. A refusal says why, in words for the user.
struct Entry {
  bool taken = true;
  std::string reason;  // empty when taken
};

}  // namespace survey

#endif  // GRID_ENTRY_H_
