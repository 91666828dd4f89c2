#include "support/disk_faults.h"

#define SQLITE_HAS_CODEC 1
#include <sqlite3.h>

#include <climits>
#include <stdexcept>

#ifdef _WIN32
#include <windows.h>

#include <filesystem>
#else
#include <signal.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#endif

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

using Call = sqlite3_syscall_ptr;

// Puts `call` in the place of the first of the names that this engine knows.
void Replace(std::initializer_list<const char*> names, Call call) {
  sqlite3_vfs* disk = sqlite3_vfs_find(nullptr);
  for (const char* name : names) {
    if (disk->xGetSystemCall(disk, name) == nullptr) continue;
    disk->xSetSystemCall(disk, name, call);
    return;
  }
  throw std::runtime_error("the engine writes in a way not known here");
}

#ifdef _WIN32

BOOL WINAPI FaultyWrite(HANDLE file, const void* bytes, DWORD size, DWORD* written,
                        OVERLAPPED* at) {
  if (IsLastCall()) {
    WriteFile(file, bytes, size / 2, written, at);
    KillSelf();
  }
  if (order.calls < order.full_from) return WriteFile(file, bytes, size, written, at);
  SetLastError(ERROR_DISK_FULL);
  return FALSE;
}

BOOL WINAPI FaultyTruncate(HANDLE file) {
  DieAtLastCall();
  return SetEndOfFile(file);
}

BOOL WINAPI FaultyRemove(const wchar_t* path) {
  DieAtLastCall();
  if (order.see_removal) order.see_removal(std::filesystem::path(path).string());
  return DeleteFileW(path);
}

void InstallOnce() {
  Replace({"WriteFile"}, reinterpret_cast<Call>(FaultyWrite));
  Replace({"SetEndOfFile"}, reinterpret_cast<Call>(FaultyTruncate));
  Replace({"DeleteFileW"}, reinterpret_cast<Call>(FaultyRemove));
}

#else

ssize_t FaultyWrite(int file, const void* bytes, std::size_t size, off_t offset) {
  if (IsLastCall()) {
    if (pwrite(file, bytes, size / 2, offset) < 0) _exit(1);
    KillSelf();
  }
  if (order.calls < order.full_from) return pwrite(file, bytes, size, offset);
  errno = ENOSPC;
  return -1;
}

int FaultyTruncate(int file, off_t size) {
  DieAtLastCall();
  return ftruncate(file, size);
}

int FaultyRemove(const char* path) {
  DieAtLastCall();
  if (order.see_removal) order.see_removal(path);
  return unlink(path);
}

void InstallOnce() {
  Replace({"pwrite64", "pwrite"}, reinterpret_cast<Call>(FaultyWrite));
  Replace({"ftruncate"}, reinterpret_cast<Call>(FaultyTruncate));
  Replace({"unlink"}, reinterpret_cast<Call>(FaultyRemove));
}

#endif

void Give(Order given) {
  static const bool installed = (InstallOnce(), true);
  if (installed) order = std::move(given);
}

}  // namespace

void FillDiskAt(int first) { Give({.full_from = first}); }

void KillSelfAtDiskCall(int call) { Give({.kill_at = call}); }

void SeeRemovals(std::function<void(const std::string& path)> see) {
  Give({.see_removal = std::move(see)});
}

void EndDiskFaults() { order = {}; }

void KillSelf() {
#ifdef _WIN32
  for (;;) TerminateProcess(GetCurrentProcess(), 137);
#else
  for (;;) kill(getpid(), SIGKILL);
#endif
}

}  // namespace survey::testing
