#ifndef COLLECT_COLLECT_H_
#define COLLECT_COLLECT_H_

#include <cstddef>
#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "collect/report.h"

namespace survey {

// Several files are read beside each other; what is told of them comes in the order of `paths`. A
// file that cannot be read is told and not stopped at, and a path that leads to a file that was
// given before is passed over. What is held in memory does not grow with the number of files.
struct Run {
  std::vector<std::string> paths;
  unsigned workers = 0;  // files at a time; 0: as many as the computer has processors
  std::function<void(std::size_t done, std::size_t all)> progress = {};
};

// Tells of each file what it holds and what is missing, then of sites that several files hold.
Counts CheckFiles(const Run& run, std::ostream& report);

// Writes what all files hold into a new folder (see gathering.h), and tells of those that could not
// be read and of sites that several files hold, whose answers all go in. Throws std::runtime_error
// where the folder cannot be written.
Counts GatherFiles(const Run& run, const std::filesystem::path& folder, std::ostream& report);

}  // namespace survey

#endif  // COLLECT_COLLECT_H_
