#ifndef COLLECT_PROBLEM_H_
#define COLLECT_PROBLEM_H_

#include <optional>
#include <string>

namespace survey {

// Kinds that others ask for.
inline constexpr char kEmptyTable[] = "empty table";
inline constexpr char kNotRead[] = "not read";

// What the department has to ask a college about, or has to know of a file.
struct Problem {
  std::string kind;    // a word or two, the same for all of the kind
  double college = 0;  // EMIS numbers; 0: the problem is the file's
  double campus = 0;
  std::string page = {};                     // name of the form
  std::string table = {};                    // its number in the survey, or its name in the store
  std::string id_number = {};                // of the staff member
  std::optional<double> total = {};          // of a table that does not balance,
  std::optional<double> control_total = {};  // and that of table 2.5
  std::string text = {};                     // one line
};

}  // namespace survey

#endif  // COLLECT_PROBLEM_H_
