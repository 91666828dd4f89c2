#ifndef STORE_CONTENTS_GUARD_H_
#define STORE_CONTENTS_GUARD_H_

struct sqlite3;

namespace survey {

// Looks at each entry of a database's table of contents before the engine takes it in, and stops
// the reading at one that no survey database holds: views, virtual tables, the engine's statistics
// and foreign triggers run by themselves, and some texts alone bring an engine down that reads
// them.
class ContentsGuard {
 public:
  // Guards the first reading through this connection, which must outlive the guard.
  explicit ContentsGuard(sqlite3* database);
  ~ContentsGuard();
  ContentsGuard(const ContentsGuard&) = delete;
  ContentsGuard& operator=(const ContentsGuard&) = delete;

  // Whether such an entry was met; the statement that read it was interrupted.
  bool found_foreign() const { return found_foreign_; }

 private:
  static int SeeRow(unsigned event, void* guard, void* statement, void* unused);

  sqlite3* database_;
  bool found_foreign_ = false;
};

}  // namespace survey

#endif  // STORE_CONTENTS_GUARD_H_
