#ifndef COLLECT_RETURNED_FILE_H_
#define COLLECT_RETURNED_FILE_H_

#include <cstddef>
#include <string>
#include <vector>

#include "checks/site_checks.h"
#include "collect/problem.h"
#include "store/cipher_key.h"
#include "store/value.h"

namespace survey {

struct CheckedSite {
  SiteOfFile site;
  SiteChecks checks;
};

// The rows of a table, all its columns in the order of StoreTables().
using Records = std::vector<std::vector<Value>>;

// What was read of a database that a college has handed in.
struct ReturnedFile {
  std::string name;          // as it was given, in UTF-8
  std::string failure = {};  // why it could not be read; "" where it was. Nothing else is told then
  std::vector<CheckedSite> sites = {};
  std::vector<Problem> problems = {};  // of the file first, then of each site in survey order
  std::vector<Records> records = {};   // of each of StoreTables(); a number's field has no text
};

enum class Reading {
  kChecks,            // what is in the file
  kChecksAndRecords,  // and all of it
};

// Reads a file from its first byte to its last; it stays as it is, and nothing is made beside it.
// What cannot be read (cut off, changed, with another password, of another schema, in use, no
// database at all) is told as `failure`. `keys` are the calling thread's own.
ReturnedFile ReadReturnedFile(const std::string& path, Reading reading, CipherKeys& keys);

// The survey that is collected.
inline constexpr int kCollectedYear = 2012;

}  // namespace survey

#endif  // COLLECT_RETURNED_FILE_H_
