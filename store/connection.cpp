#include "store/connection.h"

#define SQLITE_HAS_CODEC 1
#include <sqlite3.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>

#include "base/run_time_error.h"
#include "base/text.h"
#include "store/dialect.h"

namespace survey {
namespace {

constexpr std::uintmax_t kPageBytes = 1024;  // of file format 3
constexpr int kPatienceMilliseconds = 2000;  // how long another program's lock is waited for
constexpr std::string_view kPlainMark{"SQLite format 3\0", kSaltBytes};

RunTimeError Refusal(int code, const std::string& path, const std::string& reason) {
  return {static_cast<double>(code), '"' + path + "\" " + reason};
}

// What has happened, in words for the user, where the engine's own do not say it.
std::string_view Explained(int extended_code) {
  switch (extended_code) {
    case SQLITE_CORRUPT:
      return "the database file is damaged";
    case SQLITE_READONLY_DBMOVED:
      return "the database file was moved, replaced or removed while it was open";
    case SQLITE_CANTOPEN:
      return "nothing can be written into the folder of the database";
    default:
      return {};
  }
}

RunTimeError EngineError(sqlite3* database) {
  constexpr int kPrimaryCode = 0xff;
  int code = sqlite3_extended_errcode(database);
  const std::string message = sqlite3_errmsg(database);
  // A page that cannot be deciphered is a failure without a text of its own.
  if (code == SQLITE_NOTADB || (code == SQLITE_ERROR && message == sqlite3_errstr(code))) {
    code = SQLITE_CORRUPT;
  }
  const std::string_view explained = Explained(code);
  return {static_cast<double>(code & kPrimaryCode),
          explained.empty() ? message : std::string(explained) + " (" + message + ")"};
}

void Run(sqlite3* database, const char* sql) {
  if (sqlite3_exec(database, sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
    throw EngineError(database);
  }
}

// The engine would take an empty file for a new database, and it reads through a folder's name
// only at the first statement. So what can be told from outside is told first.
void RequireDatabaseFile(const std::string& path) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(ToPath(path), error);
  if (!exists(status)) throw Refusal(SQLITE_CANTOPEN, path, "does not exist");
  if (!is_regular_file(status)) throw Refusal(SQLITE_CANTOPEN, path, "is not a file");
  if (std::filesystem::file_size(ToPath(path), error) < kPageBytes) {
    throw Refusal(SQLITE_NOTADB, path, "is empty or too short to be a survey database");
  }
}

Salt ReadSalt(const std::string& path) {
  Salt salt{};
  std::string start(kSaltBytes, '\0');
  std::ifstream file(ToPath(path), std::ios::binary);
  if (!file.read(start.data(), kSaltBytes)) throw Refusal(SQLITE_CANTOPEN, path, "cannot be read");
  if (start == kPlainMark) throw Refusal(SQLITE_NOTADB, path, "is a database without a password");
  std::ranges::copy(start, salt.begin());
  return salt;
}

sqlite3* OpenFile(const std::string& path, int flags) {
  sqlite3* database = nullptr;
  const int code = sqlite3_open_v2(path.c_str(), &database, flags | SQLITE_OPEN_NOMUTEX, nullptr);
  if (code == SQLITE_OK) return database;
  const std::string reason = sqlite3_errmsg(database);
  sqlite3_close(database);
  throw Refusal(code, path, "cannot be opened (" + reason + ")");
}

// A plain engine in place of ours would take the key, say nothing, and write every answer for all
// to read. Once a run is enough: the library does not change under it.
void RequireCipher(sqlite3* database) {
  static bool proven = false;
  if (proven) return;
  const auto see_row = [](void* seen, int, char**, char**) {
    *static_cast<bool*>(seen) = true;
    return 0;
  };
  sqlite3_exec(database, "PRAGMA cipher_version", see_row, &proven, nullptr);
  if (!proven) throw RunTimeError(SQLITE_MISUSE, "The store engine has no encryption");
}

// The format pragma belongs right after the key: an engine of the next generation then reads and
// writes our format, and the present one passes over a pragma that it does not know.
void Unlock(sqlite3* database, std::string_view key) {
  if (sqlite3_key(database, key.data(), static_cast<int>(key.size())) != SQLITE_OK) {
    throw EngineError(database);
  }
  Run(database, "PRAGMA cipher_compatibility = 3");
  sqlite3_busy_timeout(database, kPatienceMilliseconds);
  RequireCipher(database);
}

// The first read of a file tests the password, and takes back what a killed program left undone.
void ReadFirst(sqlite3* database, const std::string& path) {
  const int code =
      sqlite3_exec(database, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
  if (code == SQLITE_NOTADB) {
    throw Refusal(code, path, "is not a survey database, or has another password");
  }
  std::error_code error;
  const bool whole = std::filesystem::file_size(ToPath(path), error) % kPageBytes == 0;
  // Nothing is wrong with the statement: the table of contents is what cannot be read.
  if (code == SQLITE_CORRUPT || code == SQLITE_ERROR || (code == SQLITE_OK && !whole)) {
    throw Refusal(SQLITE_CORRUPT, path, "is damaged: a part of it is missing or was changed");
  }
  if (code != SQLITE_OK) {
    throw Refusal(code, path, std::string("cannot be read: ") + sqlite3_errmsg(database));
  }
}

// A commit that has returned survives a power cut. And the journal is a file that is gone after
// each commit, whatever another program may have set in the database: the database may lie on a
// network drive, and it alone is handed in.
void MakeDurable(sqlite3* database) {
  Run(database, "PRAGMA journal_mode = DELETE; PRAGMA synchronous = EXTRA");
}

// Who was killed before a page reached the file leaves a journal with nothing to take back, which
// the engine would keep until the next write. Leaving the mode that keeps journals makes it remove
// this one, under the lock that shows that no other program is writing it.
void RemoveLeftJournal(sqlite3* database, const std::string& path) {
  std::error_code error;
  if (!std::filesystem::exists(ToPath(path + "-journal"), error)) return;
  Run(database, "PRAGMA journal_mode = PERSIST; PRAGMA journal_mode = DELETE");
}

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

}  // namespace

void Connection::CloseDatabase::operator()(sqlite3* database) const { sqlite3_close(database); }

void Connection::FinalizeStatement::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

Connection::Connection(std::unique_ptr<sqlite3, CloseDatabase> database)
    : database_(std::move(database)) {}

std::unique_ptr<Connection> Connection::Open(const std::string& path, std::string_view password,
                                             CipherKeys& keys) {
  RequireDatabaseFile(path);
  const Salt salt = ReadSalt(path);
  std::unique_ptr<sqlite3, CloseDatabase> database(OpenFile(path, SQLITE_OPEN_READWRITE));
  if (sqlite3_db_readonly(database.get(), "main") != 0) {
    throw Refusal(SQLITE_READONLY, path, "cannot be written to");
  }
  Unlock(database.get(), keys.RawKey(password, salt));
  ReadFirst(database.get(), path);
  RemoveLeftJournal(database.get(), path);
  MakeDurable(database.get());
  return std::unique_ptr<Connection>(new Connection(std::move(database)));
}

std::unique_ptr<Connection> Connection::Create(const std::string& path, std::string_view password) {
  std::error_code error;
  if (exists(std::filesystem::symlink_status(ToPath(path), error))) {
    throw Refusal(SQLITE_CANTOPEN, path, "exists already");
  }
  std::unique_ptr<sqlite3, CloseDatabase> database(
      OpenFile(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE));
  Unlock(database.get(), password);
  MakeDurable(database.get());
  return std::unique_ptr<Connection>(new Connection(std::move(database)));
}

Connection::~Connection() {
  try {
    EndGroup();
  } catch (const RunTimeError&) {
    // Whoever wants to know ends the group first.
  }
}

bool Connection::InGroup() const { return sqlite3_get_autocommit(database_.get()) == 0; }

void Connection::Execute(std::string_view statement) {
  const Statement prepared = Prepare(statement);
  while (Step(prepared.get())) {
  }
}

void Connection::EndGroup() {
  if (!InGroup()) return;
  try {
    Run(database_.get(), "COMMIT");
  } catch (const RunTimeError&) {
    if (InGroup()) sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    throw;
  }
}

void Connection::ExecuteScript(const char* sql) { Run(database_.get(), sql); }

Connection::Statement Connection::Prepare(std::string_view statement) {
  if (observer_) observer_(statement);
  const std::string sql = ToEngineSql(statement);
  sqlite3_stmt* raw = nullptr;
  const char* rest = nullptr;
  const int code = sqlite3_prepare_v2(database_.get(), sql.c_str(),
                                      static_cast<int>(sql.size() + 1), &raw, &rest);
  Statement prepared(raw);
  if (code != SQLITE_OK) Fail();
  if (!prepared || !IsBlank({rest, static_cast<std::size_t>(sql.data() + sql.size() - rest)})) {
    throw RunTimeError(SQLITE_ERROR, "one statement runs at a time, and nothing may follow it");
  }
  if (!sqlite3_stmt_readonly(raw) && !InGroup()) {
    RequireContents();
    Run(database_.get(), "BEGIN IMMEDIATE");
  }
  return prepared;
}

void Connection::Fail() {
  const RunTimeError failure = EngineError(database_.get());
  if (failure.number() == SQLITE_ERROR) RequireContents();
  throw RunTimeError(failure);
}

void Connection::RequireContents() {
  const auto see_pages = [](void* pages, int, char** fields, char**) {
    *static_cast<std::string*>(pages) = fields[0];
    return 0;
  };
  std::string pages;
  sqlite3_exec(database_.get(), "PRAGMA page_count", see_pages, &pages, nullptr);
  if (pages == "0") {
    throw RunTimeError(SQLITE_CORRUPT,
                       std::string(Explained(SQLITE_CORRUPT)) + " (it has become empty)");
  }
}

void Connection::RequireSoundPages() {
  Run(database_.get(), "SELECT 1 FROM sqlite_master LIMIT 1");
}

bool Connection::Step(sqlite3_stmt* statement) {
  const int code = sqlite3_step(statement);
  if (code != SQLITE_ROW && code != SQLITE_DONE) Fail();
  return code == SQLITE_ROW;
}

}  // namespace survey
