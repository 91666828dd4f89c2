#include "store/connection.h"

#define SQLITE_HAS_CODEC 1
#include <sqlite3.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>

#include "base/run_time_error.h"
#include "base/text.h"
#include "store/contents_guard.h"
#include "store/dialect.h"
#include "store/left_journal.h"
#include "store/letters.h"

namespace survey {
namespace {

constexpr std::uintmax_t kPageBytes = kDatabasePageBytes;
constexpr int kPatienceMilliseconds = 2000;  // how long another program's lock is waited for
// The engine's steps that one statement may take: a thousand times what the largest of ours needs
// in a database of the whole country, and over in some seconds.
constexpr int kStepsAtOnce = 100'000;
constexpr int kMostWork = 1'000;       // times as many steps
constexpr int kLongestText = 1 << 20;  // bytes of a field, and of a statement
constexpr std::string_view kPlainMark{"SQLite format 3\0", kSaltBytes};

// Every survey file is of format 3, whichever engine writes it: a file goes from any computer to
// any other, and engines of generation 3, as in Debian 12, know no later one. Format 4 takes: no
// computer left with such an engine; the 4 here, its kPageBytes, and its derivation in
// cipher_key.cpp; and an opening that tries format 3 where 4 does not fit, and exports such a file
// into a new one. Said before the key: behind it a new file would be of format 3 in all but the
// space that format 4 reserves on each page.
constexpr char kFileFormat[] = "PRAGMA cipher_default_compatibility = 3";

// Engines of generation 4 have a log of their own, which begins with the first key of a program and
// goes to standard error. What it tells our messages tell. Older ones pass over a pragma that they
// do not know.
constexpr char kNoLogging[] = "PRAGMA cipher_log_source = NONE; PRAGMA cipher_log_level = NONE";

// For who reads a whole file: what is sorted stays in memory, and pages are deciphered once, as
// long as they fit (KiB). The second looks into the table of contents.
constexpr char kSortInMemory[] = "PRAGMA temp_store = MEMORY";
constexpr char kManyPages[] = "PRAGMA cache_size = -32768";

constexpr char kInUse[] = "is in use: another program is writing into it (database is locked)";

// A folder in which no journal can be made. Engines of generation 3 answer it with SQLITE_CANTOPEN.
constexpr int kReadOnlyFolder = SQLITE_READONLY | (6 << 8);

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
    case SQLITE_INTERRUPT:
      return "the statement found no end: the database is not what it should be";
    default:
      return {};
  }
}

RunTimeError EngineError(sqlite3* database) {
  constexpr int kPrimaryCode = 0xff;
  int code = sqlite3_extended_errcode(database);
  const std::string message = sqlite3_errmsg(database);
  if (code == kReadOnlyFolder) code = SQLITE_CANTOPEN;
  // A page that cannot be deciphered is a failure without a text of its own.
  if ((code & kPrimaryCode) == SQLITE_CORRUPT || code == SQLITE_NOTADB ||
      (code == SQLITE_ERROR && message == sqlite3_errstr(code))) {
    code = SQLITE_CORRUPT;
  }
  const std::string_view explained = Explained(code);
  return {static_cast<double>(code & kPrimaryCode),
          explained.empty() ? message : std::string(explained) + " (" + message + ")"};
}

RunTimeError Emptied() {
  return {SQLITE_CORRUPT, std::string(Explained(SQLITE_CORRUPT)) + " (it has become empty)"};
}

// Whether a failure is the file's or the disk's and not the statement's.
bool IsOfTheFile(const RunTimeError& failure) {
  constexpr int kCodes[] = {SQLITE_BUSY, SQLITE_READONLY, SQLITE_IOERR,   SQLITE_CORRUPT,
                            SQLITE_FULL, SQLITE_CANTOPEN, SQLITE_PROTOCOL};
  return std::ranges::find(kCodes, static_cast<int>(failure.number())) != std::end(kCodes);
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
// to read.
void RequireCipher(sqlite3* database) {
  bool has_cipher = false;
  const auto see_row = [](void* seen, int, char**, char**) {
    *static_cast<bool*>(seen) = true;
    return 0;
  };
  sqlite3_exec(database, "PRAGMA cipher_version", see_row, &has_cipher, nullptr);
  if (!has_cipher) throw RunTimeError(SQLITE_MISUSE, "The store engine has no encryption");
}

void Unlock(sqlite3* database, std::string_view key) {
  Run(database, kNoLogging);
  Run(database, kFileFormat);
  if (sqlite3_key(database, key.data(), static_cast<int>(key.size())) != SQLITE_OK) {
    throw EngineError(database);
  }
  sqlite3_busy_timeout(database, kPatienceMilliseconds);
  RequireCipher(database);
}

// The file as it lies on the disk, through the engine's own descriptor: to open and close another
// one would drop every lock that this process holds on the file. The engine owns it.
sqlite3_file* FileOf(sqlite3* database) {
  sqlite3_file* file = nullptr;
  sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file);
  return file;
}

std::uint64_t SizeOf(sqlite3_file* file) {
  sqlite3_int64 size = 0;
  if (file->pMethods->xFileSize(file, &size) != SQLITE_OK) return 0;
  return static_cast<std::uint64_t>(size);
}

std::string FirstPage(sqlite3_file* file) {
  std::string page(kPageBytes, '\0');
  if (file->pMethods->xRead(file, page.data(), static_cast<int>(kPageBytes), 0) != SQLITE_OK) {
    page.clear();
  }
  return page;
}

// A journal that belongs to another file, or to an older or newer state of this one, as where a
// copy was put back, would be played into it at the first read and leave neither of the two.
void RequireOwnJournal(sqlite3* database, const std::string& path, std::string_view raw_key) {
  const std::string journal = path + "-journal";
  std::error_code error;
  sqlite3_file* file = FileOf(database);
  int is_being_written = 0;  // by another program, whose journal it then is
  if (!std::filesystem::exists(ToPath(journal), error) ||
      file->pMethods->xCheckReservedLock(file, &is_being_written) != SQLITE_OK ||
      is_being_written != 0) {
    return;
  }
  const std::string first_page = FirstPage(file);
  if (first_page.empty() ||
      !IsJournalOfAnother(journal, {SizeOf(file) / kPageBytes, first_page, raw_key})) {
    return;
  }
  throw Refusal(SQLITE_CANTOPEN, path,
                "is not opened: the file \"" + journal +
                    "\" beside it comes from the unfinished save of another file or of another "
                    "state of this one, and would spoil it. If you have put back a copy of the "
                    "database, move that journal out of the folder and open the database again; "
                    "if not, put back the file that lay here before");
}

// For who only reads. A database with a log would have one made beside it at the first read.
void RequireNothingUnfinished(sqlite3* database, const std::string& path,
                              std::string_view raw_key) {
  std::error_code error;
  sqlite3_file* file = FileOf(database);
  for (const char* ending : {"-journal", "-wal"}) {
    const std::string beside = path + ending;
    if (!std::filesystem::exists(ToPath(beside), error)) continue;
    int is_being_written = 0;
    file->pMethods->xCheckReservedLock(file, &is_being_written);
    if (is_being_written != 0) throw Refusal(SQLITE_BUSY, path, kInUse);
    throw Refusal(SQLITE_CANTOPEN, path,
                  "is not read: the file \"" + beside +
                      "\" beside it belongs to a save that was not finished. Open the database "
                      "once in the survey program, which takes that save back");
  }
  if (KeepsLog(FirstPage(file), raw_key)) {
    throw Refusal(SQLITE_NOTADB, path,
                  "is not a survey database: it keeps a log beside it, and is not opened");
  }
}

// The first read of a file tests the password, and takes back what a killed program left undone.
void ReadFirst(sqlite3* database, const std::string& path) {
  const ContentsGuard guard(database);
  const int code =
      sqlite3_exec(database, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
  if (guard.found_foreign()) {
    throw Refusal(SQLITE_NOTADB, path,
                  "is not a survey database: it holds views, triggers or other things that run by "
                  "themselves, and is not opened. Ask for the file anew where it came from");
  }
  if (code == SQLITE_NOTADB) {
    throw Refusal(code, path, "is not a survey database, or has another password");
  }
  std::error_code error;
  const bool whole = std::filesystem::file_size(ToPath(path), error) % kPageBytes == 0;
  // Nothing is wrong with the statement: the table of contents is what cannot be read.
  if (code == SQLITE_CORRUPT || code == SQLITE_ERROR || (code == SQLITE_OK && !whole)) {
    throw Refusal(SQLITE_CORRUPT, path, "is damaged: a part of it is missing or was changed");
  }
  if (code == SQLITE_BUSY) throw Refusal(code, path, kInUse);
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

Connection::Connection(sqlite3* database) : database_(database) {
  sqlite3_limit(database, SQLITE_LIMIT_LENGTH, kLongestText);
  sqlite3_progress_handler(
      database, kStepsAtOnce,
      [](void* work) { return ++*static_cast<int*>(work) > kMostWork ? 1 : 0; }, &work_);
  RegisterLetters(database);
}

std::unique_ptr<Connection> Connection::Open(const std::string& path, std::string_view password,
                                             CipherKeys& keys) {
  RequireDatabaseFile(path);
  const Salt salt = ReadSalt(path);
  std::unique_ptr<Connection> opened(new Connection(OpenFile(path, SQLITE_OPEN_READWRITE)));
  sqlite3* database = opened->database_.get();
  if (sqlite3_db_readonly(database, "main") != 0) {
    throw Refusal(SQLITE_READONLY, path, "cannot be written to");
  }
  const std::string& raw_key = keys.RawKey(password, salt);
  Unlock(database, raw_key);
  RequireOwnJournal(database, path, raw_key);
  ReadFirst(database, path);
  RemoveLeftJournal(database, path);
  MakeDurable(database);
  return opened;
}

std::unique_ptr<Connection> Connection::OpenToRead(const std::string& path,
                                                   std::string_view password, CipherKeys& keys) {
  RequireDatabaseFile(path);
  const Salt salt = ReadSalt(path);
  std::unique_ptr<Connection> opened(new Connection(OpenFile(path, SQLITE_OPEN_READONLY)));
  sqlite3* database = opened->database_.get();
  const std::string& raw_key = keys.RawKey(password, salt);
  Unlock(database, raw_key);
  RequireNothingUnfinished(database, path, raw_key);
  Run(database, kSortInMemory);
  Run(database, "BEGIN");  // the first read takes the lock of a reader, which then stays
  ReadFirst(database, path);
  Run(database, kManyPages);
  return opened;
}

std::unique_ptr<Connection> Connection::Create(const std::string& path, std::string_view password) {
  std::error_code error;
  if (exists(std::filesystem::symlink_status(ToPath(path), error))) {
    throw Refusal(SQLITE_CANTOPEN, path, "exists already");
  }
  std::unique_ptr<Connection> made(
      new Connection(OpenFile(path, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE)));
  Unlock(made->database_.get(), password);
  MakeDurable(made->database_.get());
  return made;
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

// In the number that the engine leaves to the program. It tells states of a file from one another:
// the engine's own counter does not, for it is taken from bytes that are enciphered.
void Connection::CountSave() {
  std::uint32_t count = 0;
  const auto see_count = [](void* number, int, char** fields, char**) {
    const auto seen = static_cast<std::uint32_t>(LeadingNumber(fields[0]));
    *static_cast<std::uint32_t*>(number) = NextSaveCount(seen);
    return 0;
  };
  sqlite3_exec(database_.get(), "PRAGMA user_version", see_count, &count, nullptr);
  Run(database_.get(), ("PRAGMA user_version = " + std::to_string(count)).c_str());
}

bool Connection::EndGroup() {
  if (!InGroup()) return false;
  work_ = 0;
  try {
    const bool changed = sqlite3_total_changes(database_.get()) != changes_before_;
    if (changed) CountSave();
    Run(database_.get(), "COMMIT");
    return changed;
  } catch (const RunTimeError& failure) {
    if (InGroup()) sqlite3_exec(database_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
    throw CommitFailure(failure);
  }
}

void Connection::BeginGroup() {
  try {
    if (IsEmptied()) throw Emptied();
    Run(database_.get(), "BEGIN IMMEDIATE");
    changes_before_ = sqlite3_total_changes(database_.get());
  } catch (const RunTimeError& failure) {
    throw CommitFailure(failure);
  }
}

void Connection::RequireSoundFile() {
  work_ = 0;
  std::string answer;
  const auto see_answer = [](void* text, int, char** fields, char**) {
    *static_cast<std::string*>(text) = fields[0] == nullptr ? "" : fields[0];
    return 0;
  };
  if (sqlite3_exec(database_.get(), "PRAGMA quick_check(1)", see_answer, &answer, nullptr) !=
      SQLITE_OK) {
    throw EngineError(database_.get());
  }
  if (answer != "ok") throw RunTimeError(SQLITE_CORRUPT, std::string(Explained(SQLITE_CORRUPT)));
}

void Connection::ReadFile(const std::function<bool(std::string_view bytes)>& take) {
  constexpr int kBytesAtOnce = 1 << 16;
  work_ = 0;
  Run(database_.get(), "BEGIN");
  const std::unique_ptr<sqlite3, void (*)(sqlite3*)> reading(
      database_.get(),
      [](sqlite3* database) { sqlite3_exec(database, "ROLLBACK", nullptr, nullptr, nullptr); });
  RequireSoundPages();  // takes the lock of a reader, which no writer passes
  sqlite3_file* file = FileOf(database_.get());
  const std::uint64_t size = SizeOf(file);
  std::string bytes;
  for (std::uint64_t at = 0; at < size; at += bytes.size()) {
    bytes.resize(std::min<std::uint64_t>(kBytesAtOnce, size - at));
    const int amount = static_cast<int>(bytes.size());
    if (file->pMethods->xRead(file, bytes.data(), amount, static_cast<sqlite3_int64>(at)) !=
        SQLITE_OK) {
      throw RunTimeError(SQLITE_IOERR, "the database file cannot be read");
    }
    if (!take(bytes)) return;
  }
}

std::uint64_t Connection::FileSize() const { return SizeOf(FileOf(database_.get())); }

void Connection::ExecuteScript(const char* sql) { Run(database_.get(), sql); }

Connection::Statement Connection::Prepare(std::string_view statement) {
  if (observer_) observer_(statement);
  work_ = 0;
  const std::string sql = ToEngineSql(statement);
  sqlite3_stmt* raw = nullptr;
  const char* rest = nullptr;
  const int code = sqlite3_prepare_v2(database_.get(), sql.c_str(),
                                      static_cast<int>(sql.size() + 1), &raw, &rest);
  Statement prepared(raw);
  if (code != SQLITE_OK) Fail(!BeginsWith(Trim(statement), "select"));
  if (!prepared || !IsBlank({rest, static_cast<std::size_t>(sql.data() + sql.size() - rest)})) {
    throw RunTimeError(SQLITE_ERROR, "one statement runs at a time, and nothing may follow it");
  }
  if (!sqlite3_stmt_readonly(raw) && !InGroup()) BeginGroup();
  return prepared;
}

void Connection::Fail(bool writes) {
  RunTimeError failure = EngineError(database_.get());
  if (failure.number() == SQLITE_ERROR && IsEmptied()) failure = Emptied();
  if (writes && IsOfTheFile(failure)) throw CommitFailure(failure);
  throw RunTimeError(failure);
}

bool Connection::IsEmptied() {
  const auto see_pages = [](void* pages, int, char** fields, char**) {
    *static_cast<std::string*>(pages) = fields[0];
    return 0;
  };
  std::string pages;
  sqlite3_exec(database_.get(), "PRAGMA page_count", see_pages, &pages, nullptr);
  return pages == "0";
}

void Connection::RequireSoundPages() {
  Run(database_.get(), "SELECT 1 FROM sqlite_master LIMIT 1");
}

bool Connection::Step(sqlite3_stmt* statement) {
  const int code = sqlite3_step(statement);
  if (code != SQLITE_ROW && code != SQLITE_DONE) Fail(!sqlite3_stmt_readonly(statement));
  return code == SQLITE_ROW;
}

}  // namespace survey
