#ifndef BASE_RUN_TIME_ERROR_H_
#define BASE_RUN_TIME_ERROR_H_

#include <stdexcept>
#include <string>

namespace survey {

// A failure that a handler may trap. `number` is what the error box shows in its caption: the
// users' well-known number for failures of the program itself (below), else the store engine's
// result code. `what()` is the description, in UTF-8.
class RunTimeError : public std::runtime_error {
 public:
  RunTimeError(double number, const std::string& description)
      : std::runtime_error(description), number_(number) {}

  double number() const { return number_; }

 private:
  double number_;
};

// What was written could not be put on the disk: it is full, or the file is locked, gone or
// damaged. Whichever statement meets it, it is the commit that fails. A statement that the engine
// refuses for what it says is none of these.
class CommitFailure : public RunTimeError {
 public:
  explicit CommitFailure(const RunTimeError& failure) : RunTimeError(failure) {}
};

// The failures that users know by number. Never change a number or a text.
RunTimeError InvalidProcedureCall();  // 5
RunTimeError Overflow();              // 6
RunTimeError OutOfMemory();           // 7
RunTimeError TypeMismatch();          // 13
RunTimeError FileNotFound();          // 53
RunTimeError PathNotFound();          // 76
RunTimeError ObjectNotSet();          // 91
RunTimeError InvalidUseOfNull();      // 94
RunTimeError CancelWasSelected();     // 32755

}  // namespace survey

#endif  // BASE_RUN_TIME_ERROR_H_
