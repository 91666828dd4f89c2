#ifndef TESTS_FUZZ_INPUTS_H_
#define TESTS_FUZZ_INPUTS_H_

#include <QStringList>

namespace survey::testing {

// What the fuzzer presses, types and pastes. What stands twice comes more often.

inline const QStringList kKeys =
    QString(
        "Return Return Shift+Return Ctrl+Return Num+Enter Up Down Left Right Shift+Up Shift+Down "
        "Shift+Left Shift+Right Ctrl+Down Alt+Down Tab Tab Shift+Backtab Esc F2 F4 Shift+F10 Menu "
        "Del Backspace Ins Home End Ctrl+Home Ctrl+End Shift+End PgUp PgDown Ctrl+A Ctrl+C Ctrl+X "
        "Ctrl+V Ctrl+Z Ctrl+S Ctrl+S Ctrl+S Ctrl+P Ctrl+M Ctrl+PgDown Ctrl+PgUp Space Space")
        .split(' ');
inline const QStringList kWords = {"0",          "7",       "31",      "007",        "1.5",
                                   "-1",         "12 A",    "9999999", "O'Brien",    "Söhne",
                                   "中",         "😀",       "e\u0301", "2012/02/30", "%_*",
                                   "1980-01-04", "\u200f1", "x",       "Y",          " "};
inline const QStringList kBlocks = {"1\t2\t3\r\n4\t5\t6\r\n",
                                    "\"a\nb\"\t\"c\"\"d\"",
                                    "\"open\t1\n2",
                                    "\t\t\t",
                                    "\r\n\r\n",
                                    "12",
                                    "x\ty",
                                    "",
                                    "1\r2\r3",
                                    "8001015009087",
                                    "\u2028\u2029",
                                    "😀\t中"};
inline const QStringList kNames = {"North", "South Campus", "8001015009087", "A1"};

}  // namespace survey::testing

#endif  // TESTS_FUZZ_INPUTS_H_
