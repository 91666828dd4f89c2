#ifndef TOOLS_TRIALS_FINDINGS_H_
#define TOOLS_TRIALS_FINDINGS_H_

#include <string>
#include <utility>

namespace survey::testing {

// The first thing that a trial found not to be as it must.
class Findings {
 public:
  explicit Findings(std::string where) : where_(std::move(where)) {}

  void Require(bool holds, const std::string& else_told) {
    if (!holds && first_.empty()) first_ = where_ + ": " + else_told;
  }
  const std::string& first() const { return first_; }  // "" where all was well

 private:
  std::string where_;
  std::string first_;
};

}  // namespace survey::testing

#endif  // TOOLS_TRIALS_FINDINGS_H_
