#ifndef SHELL_FRMSELECTDATABASE_H_
#define SHELL_FRMSELECTDATABASE_H_

#include <string>

#include "forms/form.h"
#include "shell/data_folder.h"

namespace survey {

// The first form of the program: an existing database of the data folder, a new one, or one
// anywhere else.
class FrmSelectDatabase : public Form {
 public:
  explicit FrmSelectDatabase(FormHost& host);
  Layout Arrange() override;

  Label lblTitle{*this, "lblTitle", "Corvale Annual Survey 2012 (Ostrel)"};
  Label lblPeriod{*this, "lblPeriod",
                  "This survey capture tool is for the 2012 Corvale ANNUAL SURVEY for public "
                  "colleges. The survey data must be captured for the full year from 1 January to "
                  "15 October 2012. Colleges have one full month from 16 October to 16 November to "
                  "complete the survey and return their data."};
  Label lblNew{*this, "lblNew",
               "Do not start a new database if you have already started a database for 2012"};
  Label lblNetwork{*this, "lblNetwork",
                   "If the database is placed on a network drive and is not in the default path on "
                   "the local computer, then use the option below to browse for the database."};
  CheckBox chkExisting{*this, "chkExisting", "Use an Existing Database"};
  CheckBox chkNew{*this, "chkNew", "Start a New Database "};
  CheckBox chNetwork{*this, "chNetwork", "Use database over the network"};
  Frame fraDatabases{*this, "fraDatabases", "Select your 2012 College/ Campus Database"};
  ListBox lstFiles{*this, "lstFiles", "Select your 2012 College/ Campus Database"};
  TextBox txtpath{*this, "txtpath", "Path of the database"};
  Button cmdBrowse{*this, "cmdBrowse", "Browse for database"};
  Button cmdContinue{*this, "cmdContinue", "Continue"};
  Button cmdAbout{*this, "cmdAbout", "Disclaimer"};
  Button cmdExit{*this, "cmdExit", "Exit "};

 protected:
  void Form_Load() override;

 private:
  void ListDatabases();
  void GetRegistry();
  void SaveRegistry();
  void ClearDatabaseList();
  bool IsDatabaseListed();
  bool IsCorrectDatabase();
  bool IsTemplate(const std::string& path) const;

  void ChooseExisting();
  void ChooseNew();
  void ChooseNetwork();
  void Browse();
  void Continue();
  bool ContinueWithExisting();
  void Ready();

  DataFolder data_folder_;
  std::string remembered_path_;  // what Continue took from txtpath
};

}  // namespace survey

#endif  // SHELL_FRMSELECTDATABASE_H_
