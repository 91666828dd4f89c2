#ifndef TESTS_SUPPORT_DISK_FAULTS_H_
#define TESTS_SUPPORT_DISK_FAULTS_H_

#include <functional>
#include <string>

namespace survey::testing {

// Stands between the store's engine and the disk of this process, and lets a call that would change
// a file go wrong: a write, a truncation, a removal. Calls are counted from 1 since the last order.

// From the call `first` on every write finds the disk full; a file may still be cut or removed.
void FillDiskAt(int first);

// The process is killed at the call `call`, in the middle of it where it is a write.
void KillSelfAtDiskCall(int call);

// Sees the path of each file that is about to be removed.
void SeeRemovals(std::function<void(const std::string& path)> see);

void EndDiskFaults();

constexpr int kKilled = 137;

// Ends the process with the status kKilled, and as a kill from outside does: nothing is tidied up.
[[noreturn]] void KillSelf();

}  // namespace survey::testing

#endif  // TESTS_SUPPORT_DISK_FAULTS_H_
