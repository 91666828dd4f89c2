#include "base/run_time_error.h"

namespace survey {

RunTimeError InvalidProcedureCall() { return {5, "Invalid procedure call or argument"}; }
RunTimeError Overflow() { return {6, "Overflow"}; }
RunTimeError OutOfMemory() { return {7, "Out of memory"}; }
RunTimeError TypeMismatch() { return {13, "Type mismatch"}; }
RunTimeError FileNotFound() { return {53, "File not found"}; }
RunTimeError PathNotFound() { return {76, "Path not found"}; }
RunTimeError ObjectNotSet() { return {91, "Object variable or With block variable not set"}; }
RunTimeError InvalidUseOfNull() { return {94, "Invalid use of Null"}; }
RunTimeError CancelWasSelected() { return {32755, "Cancel was selected."}; }

}  // namespace survey
