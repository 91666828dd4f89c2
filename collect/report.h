#ifndef COLLECT_REPORT_H_
#define COLLECT_REPORT_H_

#include <cstddef>
#include <string>

#include "collect/returned_file.h"

namespace survey {

// What one run has met.
struct Counts {
  std::size_t files = 0;
  std::size_t not_read = 0;
  std::size_t sites = 0;
  std::size_t unbalanced = 0;        // totals
  std::size_t compulsory = 0;        // answers missing
  std::size_t incomplete_staff = 0;  // records
  std::size_t repeated_sites = 0;    // sites that several files hold

  void Add(const ReturnedFile& file);
};

// For people to read, a line for each fact. What comes from a file holds no control characters, so
// that a terminal shows it and does nothing else.
std::string ReportOf(const ReturnedFile& file);
std::string LineOf(const std::string& file, const Problem& problem);
std::string SummaryOf(const Counts& counts);

}  // namespace survey

#endif  // COLLECT_REPORT_H_
