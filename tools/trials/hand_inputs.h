#ifndef TOOLS_TRIALS_HAND_INPUTS_H_
#define TOOLS_TRIALS_HAND_INPUTS_H_

#include <QString>
#include <utility>

namespace survey::testing {

// What random hands press, type and paste. What stands twice comes more often.

inline constexpr std::pair<Qt::Key, Qt::KeyboardModifiers> kKeys[] = {
    {Qt::Key_Return, {}},
    {Qt::Key_Return, {}},
    {Qt::Key_Return, Qt::ShiftModifier},
    {Qt::Key_Return, Qt::ControlModifier},
    {Qt::Key_Enter, Qt::KeypadModifier},
    {Qt::Key_Up, {}},
    {Qt::Key_Down, {}},
    {Qt::Key_Left, {}},
    {Qt::Key_Right, {}},
    {Qt::Key_Up, Qt::ShiftModifier},
    {Qt::Key_Down, Qt::ShiftModifier},
    {Qt::Key_Left, Qt::ShiftModifier},
    {Qt::Key_Right, Qt::ShiftModifier},
    {Qt::Key_Down, Qt::ControlModifier},
    {Qt::Key_Down, Qt::AltModifier},
    {Qt::Key_Tab, {}},
    {Qt::Key_Tab, {}},
    {Qt::Key_Backtab, Qt::ShiftModifier},
    {Qt::Key_Escape, {}},
    {Qt::Key_F2, {}},
    {Qt::Key_F4, {}},
    {Qt::Key_F10, Qt::ShiftModifier},
    {Qt::Key_Menu, {}},
    {Qt::Key_Delete, {}},
    {Qt::Key_Backspace, {}},
    {Qt::Key_Insert, {}},
    {Qt::Key_Home, {}},
    {Qt::Key_End, {}},
    {Qt::Key_Home, Qt::ControlModifier},
    {Qt::Key_End, Qt::ControlModifier},
    {Qt::Key_End, Qt::ShiftModifier},
    {Qt::Key_PageUp, {}},
    {Qt::Key_PageDown, {}},
    {Qt::Key_A, Qt::ControlModifier},
    {Qt::Key_C, Qt::ControlModifier},
    {Qt::Key_X, Qt::ControlModifier},
    {Qt::Key_V, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier},
    {Qt::Key_S, Qt::ControlModifier},
    {Qt::Key_P, Qt::ControlModifier},
    {Qt::Key_M, Qt::ControlModifier},
    {Qt::Key_PageDown, Qt::ControlModifier},
    {Qt::Key_PageUp, Qt::ControlModifier},
    {Qt::Key_Space, {}},
    {Qt::Key_Space, {}},
};
inline const QString kWords[] = {"0",          "7",       "31",      "007",        "1.5",
                                 "-1",         "12 A",    "9999999", "O'Brien",    "Söhne",
                                 "中",         "😀",       "e\u0301", "2012/02/30", "%_*",
                                 "1980-01-04", "\u200f1", "x",       "Y",          " "};
inline const QString kBlocks[] = {"1\t2\t3\r\n4\t5\t6\r\n",
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
inline const QString kNames[] = {"North", "South Campus", "8001015009087", "A1"};

}  // namespace survey::testing

#endif  // TOOLS_TRIALS_HAND_INPUTS_H_
