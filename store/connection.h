#ifndef STORE_CONNECTION_H_
#define STORE_CONNECTION_H_

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "store/cipher_key.h"

struct sqlite3;
struct sqlite3_stmt;

namespace survey {

// Sees each statement as it was given, before it runs.
using StatementObserver = std::function<void(std::string_view statement)>;

// One open survey database. All statements go in as the survey words them (see dialect.h), one
// statement a call. Failures are thrown as RunTimeError with the engine's result code.
//
// Writing: the first statement that writes begins a group, EndGroup() commits it. Statements of a
// group are separate: one that fails takes nothing back of those before it. Destroying the
// connection ends the group. A statement that writes throws CommitFailure where it is not at fault
// itself: what the file or the disk does not let in cannot be committed.
//
// A statement that takes far more work than any of the survey's is stopped and fails, whatever the
// file holds.
class Connection {
 public:
  // Opens the database for reading and writing; never creates one. The password is tested by a
  // first read. Throws RunTimeError and leaves the file untouched when it is missing, a folder,
  // not readable and writable, no survey database (empty, foreign, truncated, unencrypted, holding
  // what runs by itself), has another password, or lies beside the journal of another file. `keys`
  // must outlive the call only. The call reads the file beside the
  // engine, which drops every lock that this process holds on it: no other connection to the same
  // file may be in the middle of a group.
  static std::unique_ptr<Connection> Open(const std::string& path, std::string_view password,
                                          CipherKeys& keys);

  // Opens a database of which nothing may change: it is read and never written to, nothing is made
  // beside it, and no other program writes into it as long as the connection lives. Refuses what
  // Open refuses, but for a file that cannot be written to; and a file beside which there is a
  // journal, for only who may write can take back what that one is about.
  static std::unique_ptr<Connection> OpenToRead(const std::string& path, std::string_view password,
                                                CipherKeys& keys);

  // Makes a new, empty, encrypted database in the format that every reader of ours understands.
  // Throws when something stands at `path` already.
  static std::unique_ptr<Connection> Create(const std::string& path, std::string_view password);

  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  // Runs a statement that returns no rows.
  void Execute(std::string_view statement);

  // Commits what was written since the group began, and answers whether that changed any record;
  // nothing to do where nothing was written. When the commit fails the group is taken back as a
  // whole and a CommitFailure thrown.
  bool EndGroup();

  // Reads every page that is in use once; each bears its checksum. Throws RunTimeError when one is
  // damaged or the pages do not fit together.
  void RequireSoundFile();

  // Hands the bytes of the file, encrypted as they lie there, to `take` from the start on, until it
  // answers false. No program writes meanwhile. Not within a group. Throws what `take` throws, and
  // RunTimeError.
  void ReadFile(const std::function<bool(std::string_view bytes)>& take);
  std::uint64_t FileSize() const;  // in bytes; 0 when it cannot be told

  // Engine's own SQL, several statements allowed, not seen by the observer and beginning no group
  // of its own: for the schema and the template, never for a text that holds a user's words.
  void ExecuteScript(const char* sql);

  void set_observer(StatementObserver observer) { observer_ = std::move(observer); }

 private:
  friend class Recordset;
  struct CloseDatabase {
    void operator()(sqlite3* database) const;
  };
  struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const;
  };
  using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

  explicit Connection(sqlite3* database);  // owns it from now on

  Statement Prepare(std::string_view statement);
  bool Step(sqlite3_stmt* statement);  // true while there is a row
  // Throws what the engine reports of a statement, one that `writes` or one that reads.
  [[noreturn]] void Fail(bool writes);
  void BeginGroup();  // throws CommitFailure
  // Whether the file has become empty under the connection: the engine would take it for a new
  // database and write the beginning of one.
  bool IsEmptied();
  // Throws when a page that the row in front goes on into could not be deciphered: the engine gives
  // zeros for such a page and remembers the failure until the next page is asked for.
  void RequireSoundPages();
  void CountSave();
  bool InGroup() const;  // asks the engine, which may have taken the group back by itself

  int changes_before_ = 0;  // the group that runs
  int work_ = 0;            // of the statement that runs; outlives the engine, which counts in it
  std::unique_ptr<sqlite3, CloseDatabase> database_;
  StatementObserver observer_;
};

}  // namespace survey

#endif  // STORE_CONNECTION_H_
