#ifndef FORMS_LINK_H_
#define FORMS_LINK_H_

#include <string_view>
#include <vector>

namespace survey {

// What stands between a button and its target.
enum class Guard {
  kNone,            // unsaved work is lost without a word
  kConfirmUnsaved,  // the common question
  kOwn,             // a test of the form's own, told in its file
};

// In which order the form goes and its target comes.
enum class Leaving {
  kUnloadThenShow,
  kShowThenUnload,
  kStays,       // the form remains loaded beneath its target
  kUnloadOnly,  // the target lies beneath already
};

// Where a button of a form leads.
struct Link {
  std::string_view button;
  std::string_view target;  // name of a form
  Guard guard;
  Leaving leaving;
  std::vector<std::string_view> passes = {};  // properties that the target is given
};

// The link behind a button; throws std::out_of_range where it has none.
const Link& LinkOf(const std::vector<Link>& links, std::string_view button);

}  // namespace survey

#endif  // FORMS_LINK_H_
