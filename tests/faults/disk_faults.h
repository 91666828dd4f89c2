#ifndef TESTS_FAULTS_DISK_FAULTS_H_
#define TESTS_FAULTS_DISK_FAULTS_H_

namespace survey::testing {

// Stands between the store's engine and the disk of this process, and lets a call that would change
// a file go wrong: a write, a truncation, a removal. Calls are counted from 1 since the last order.
// Once installed it stays for the rest of the process.

// From the call `first` on every write fails with `error`, ENOSPC for a full disk; a file may still
// be cut or removed.
void FailWritesFrom(int first, int error);

// The process is killed at the call `call`, in the middle of it where it is a write.
void KillSelfAtDiskCall(int call);

void EndDiskFaults();

}  // namespace survey::testing

#endif  // TESTS_FAULTS_DISK_FAULTS_H_
