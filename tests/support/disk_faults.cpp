#include "support/disk_faults.h"

#define SQLITE_HAS_CODEC 1
#include <sqlite3.h>

#include <climits>
#include <cstdlib>
#include <map>

namespace survey::testing {
namespace {

struct Order {
  int calls = 0;
  int full_from = INT_MAX;
  int kill_at = INT_MAX;
  std::function<void(const std::string&)> see_removal = {};
};

Order order;

bool IsLastCall() { return ++order.calls == order.kill_at; }
void DieAtLastCall() {
  if (IsLastCall()) KillSelf();
}

// The system's own way to the disk, and what it does with a file.
sqlite3_vfs* disk = nullptr;
const sqlite3_io_methods* file_calls = nullptr;

int FaultyWrite(sqlite3_file* file, const void* bytes, int size, sqlite3_int64 offset) {
  if (IsLastCall()) {
    file_calls->xWrite(file, bytes, size / 2, offset);
    KillSelf();
  }
  if (order.calls >= order.full_from) return SQLITE_FULL;
  return file_calls->xWrite(file, bytes, size, offset);
}

int FaultyTruncate(sqlite3_file* file, sqlite3_int64 size) {
  DieAtLastCall();
  return file_calls->xTruncate(file, size);
}

int FaultyRemove(sqlite3_vfs*, const char* path, int sync) {
  DieAtLastCall();
  if (order.see_removal) order.see_removal(path);
  return disk->xDelete(disk, path, sync);
}

// Files differ in how they are locked, and not in how they are written.
int OpenFaulty(sqlite3_vfs*, const char* path, sqlite3_file* file, int flags, int* flags_then) {
  static std::map<const sqlite3_io_methods*, sqlite3_io_methods> faulty;
  const int result = disk->xOpen(disk, path, file, flags, flags_then);
  if (file->pMethods == nullptr) return result;
  file_calls = file->pMethods;
  sqlite3_io_methods& calls = faulty.try_emplace(file_calls, *file_calls).first->second;
  calls.xWrite = FaultyWrite;
  calls.xTruncate = FaultyTruncate;
  file->pMethods = &calls;
  return result;
}

// Before any file is opened.
const bool installed = [] {
  disk = sqlite3_vfs_find(nullptr);
  static sqlite3_vfs faulty = *disk;
  faulty.xOpen = OpenFaulty;
  faulty.xDelete = FaultyRemove;
  return sqlite3_vfs_register(&faulty, 1) == SQLITE_OK;
}();

void Give(Order given) {
  if (!installed) std::abort();
  order = std::move(given);
}

}  // namespace

void FillDiskAt(int first) { Give({.full_from = first}); }

void KillSelfAtDiskCall(int call) { Give({.kill_at = call}); }

void SeeRemovals(std::function<void(const std::string& path)> see) {
  Give({.see_removal = std::move(see)});
}

void EndDiskFaults() { order = {}; }

void KillSelf() { std::_Exit(kKilled); }

}  // namespace survey::testing
