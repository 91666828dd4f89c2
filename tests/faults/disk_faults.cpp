#include "faults/disk_faults.h"

#define SQLITE_HAS_CODEC 1
#include <signal.h>
#include <sqlite3.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <stdexcept>

namespace survey::testing {
namespace {

struct Order {
  int calls = 0;
  int fail_from = INT_MAX;
  int error = 0;
  int kill_at = INT_MAX;
};

Order order;

bool IsLastCall() { return ++order.calls == order.kill_at; }

[[noreturn]] void Die() {
  for (;;) kill(getpid(), SIGKILL);
}

ssize_t FaultyWrite(int file, const void* bytes, std::size_t size, off_t offset) {
  if (IsLastCall()) {
    if (pwrite(file, bytes, size / 2, offset) < 0) _exit(1);
    Die();
  }
  if (order.calls >= order.fail_from) {
    errno = order.error;
    return -1;
  }
  return pwrite(file, bytes, size, offset);
}

int FaultyTruncate(int file, off_t size) {
  if (IsLastCall()) Die();
  return ftruncate(file, size);
}

int FaultyUnlink(const char* path) {
  if (IsLastCall()) Die();
  return unlink(path);
}

using Call = sqlite3_syscall_ptr;

void Install() {
  static bool installed = false;
  if (installed) return;
  sqlite3_vfs* disk = sqlite3_vfs_find(nullptr);
  const bool wide = disk->xGetSystemCall(disk, "pwrite64") != nullptr;
  const bool narrow = disk->xGetSystemCall(disk, "pwrite") != nullptr;
  if (!wide && !narrow) throw std::runtime_error("the engine writes in a way not known here");
  disk->xSetSystemCall(disk, wide ? "pwrite64" : "pwrite", reinterpret_cast<Call>(FaultyWrite));
  disk->xSetSystemCall(disk, "ftruncate", reinterpret_cast<Call>(FaultyTruncate));
  disk->xSetSystemCall(disk, "unlink", reinterpret_cast<Call>(FaultyUnlink));
  installed = true;
}

}  // namespace

void FailWritesFrom(int first, int error) {
  Install();
  order = {.fail_from = first, .error = error};
}

void KillSelfAtDiskCall(int call) {
  Install();
  order = {.kill_at = call};
}

void EndDiskFaults() { order = {}; }

}  // namespace survey::testing
