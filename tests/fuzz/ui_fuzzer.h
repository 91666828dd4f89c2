#ifndef TESTS_FUZZ_UI_FUZZER_H_
#define TESTS_FUZZ_UI_FUZZER_H_

#include <cstdint>

namespace survey::testing {

// Works the real windows as hands can: any key, click, word and paste, boxes and dialogs answered
// somehow, the window closed and the program started again, over a filled database in a folder of
// its own. Says each action before it is done, and the first fault.
//
// After each step keys must go somewhere, every total must be the sum of its cells, and a page that
// was saved must load as it was.
//
// A QApplication must run, in a process of its own, whose environment is changed. Answers whether
// all was well.
bool RunUiFuzzer(std::uint32_t seed, int steps);

}  // namespace survey::testing

#endif  // TESTS_FUZZ_UI_FUZZER_H_
