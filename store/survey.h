#ifndef STORE_SURVEY_H_
#define STORE_SURVEY_H_

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "store/cipher_key.h"
#include "store/connection.h"

namespace survey {

// How a failure is told to the user; the store itself never does.
using ErrorReporter = std::function<void(std::string_view location, std::string_view description,
                                         std::string_view procedure, double number)>;

// The context that all pages share, one for the whole run. Pages read and write the fields
// directly; nothing copies them.
class Survey {
 public:
  std::string DatabasePath;        // full path of the working database
  std::string DatabaseName;        // its name without folder and ending, if listed or made new
  std::string WhyNotMade;          // what has hindered a new database, told when it is not found
  std::string ChosenDatabaseName;  // the list entry last clicked, or the name typed for a new one
  std::unique_ptr<Connection> DatabaseConnection;  // none before the first opening
  double CollegeEmisNumber = 0;                    // 0 until a site is chosen
  double CampusEmisNumber = 0;                     // 0 until a site is chosen
  std::int16_t SurveyYear = 0;                     // 2012 once the main menu was loaded

  // Replaces DatabaseConnection by a new one to DatabasePath. Throws when the old one's last
  // commit fails. A failure to open goes to the error reporter, and to the caller only where that
  // throws it; else the caller's first query fails, for the connection is none after it.
  void OpenDatabaseConnection();

  // Another connection to DatabasePath, for what the program does besides the survey. Throws
  // RunTimeError. Not while a statement of DatabaseConnection waits to be committed.
  std::unique_ptr<Connection> OpenAside();

  // Closes DatabaseConnection and sets it to none, without a word whatever happens.
  void CloseDatabaseConnection();

  // The caption of every page of the site; the title is not used.
  std::string SurveyCaption(std::string_view title) const;

  // Number of students registered on this campus in the programme group of table 2.5 that has
  // this code. Opens the connection anew. Throws what the query throws, and Overflow().
  std::int32_t ControlTotal(std::int16_t ProgrammeRegistrationTypeCD);

  // Runs a statement on the shared connection. Throws ObjectNotSet() where there is none.
  void Execute(std::string_view statement);

  // Commits what the handler that ends here has written. Throws what the commit throws.
  void EndStatements();

  // How often records have been changed in this run: whoever shows what is stored can see whether
  // to read it again.
  std::uint64_t changes() const { return changes_; }

  // What a reporter throws leaves the call that failed.
  void set_error_reporter(ErrorReporter reporter) { report_error_ = std::move(reporter); }
  // Sees the statements of this and all later connections; for tests and measurements.
  void set_statement_observer(StatementObserver observer);

 private:
  ErrorReporter report_error_;
  StatementObserver observer_;
  CipherKeys keys_;
  std::uint64_t changes_ = 0;
};

// The same on a connection of one's own, which is not opened anew. Throws ObjectNotSet() where it
// is null.
std::int32_t ControlTotalOf(Connection* connection, double college_emis_number,
                            double campus_emis_number, std::int16_t ProgrammeRegistrationTypeCD);

// The password of every survey database.
std::string_view DatabasePassword();

}  // namespace survey

#endif  // STORE_SURVEY_H_
