#ifndef FORMS_PAGE_CHAIN_H_
#define FORMS_PAGE_CHAIN_H_

#include <string_view>
#include <vector>

namespace survey {

// What stands between a button and its target.
enum class Guard {
  kNone,            // unsaved work is lost without a word
  kConfirmUnsaved,  // the common question
  kOwn,             // a test of the page's own, told in its file
};

// In which order the page goes and its target comes.
enum class Leaving {
  kUnloadThenShow,
  kShowThenUnload,
  kStays,       // the page remains loaded beneath its target
  kUnloadOnly,  // the target lies beneath already
};

// The properties that go with the user.
enum class Passes { kNothing, kEducatorId, kEducatorIdAndEmisNumber };

struct Link {
  std::string_view page;
  std::string_view button;
  std::string_view target;
  Guard guard;
  Leaving leaving;
  Passes passes = Passes::kNothing;
};

// All links between the survey's pages, in survey order.
const std::vector<Link>& PageChain();

// The link behind a button; null where it has none in the chain.
const Link* FindLink(std::string_view page, std::string_view button);

}  // namespace survey

#endif  // FORMS_PAGE_CHAIN_H_
