#ifndef STORE_LETTERS_H_
#define STORE_LETTERS_H_

struct sqlite3;

namespace survey {

// Texts compare and sort without regard to case, accented letters included. The engine by itself
// knows the case of plain letters only, and a database must stay right for an engine that knows no
// more: it is handed in, and read with other tools. So nothing of ours goes into the file. Its
// columns and indexes keep the engine's own rule, NOCASE, and that rule is left as it is: an index
// that was sorted by another one would be wrong for everybody else. What is ours lives on the
// connection, and a statement asks for it where the engine's rule does not do (see dialect.h):
//   like           compares without regard to case; the engine's own is replaced, as no index and
//                  no schema goes by it
//   ORDER BY       sorts by kAnyCase, an accented letter beside its plain one
//   = 'a literal'  compares by kAnyCase, where the literal holds an accented letter. The index goes
//                  by another rule and is not used then; all other literals, the ID numbers above
//                  all, find what they are equal to by NOCASE, with it.
// Columns that are compared with each other hold copies of one text, and need no such care.
inline constexpr char kAnyCase[] = "any_case";  // the collation's name in a statement

// Makes both known to a connection. Throws RunTimeError.
void RegisterLetters(sqlite3* database);

}  // namespace survey

#endif  // STORE_LETTERS_H_
