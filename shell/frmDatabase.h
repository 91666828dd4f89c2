#ifndef SHELL_FRMDATABASE_H_
#define SHELL_FRMDATABASE_H_

#include "forms/form.h"
#include "shell/data_folder.h"

namespace survey {

// Asks the name of a new database and copies the template to it. Modal.
class FrmDatabase : public Form {
 public:
  explicit FrmDatabase(FormHost& host);
  Layout Arrange() override;

  Frame fraName{*this, "fraName", "Enter the database name."};
  Label lblName{*this, "lblName", "Name of College/Campus"};
  TextBox txtDatabaseName{*this, "txtDatabaseName", "Name of College/Campus"};
  Button cmdOk{*this, "cmdOk", "OK"};
  Button cmdCancel{*this, "cmdCancel", "Exit"};

 private:
  bool ValidateDatabaseName();
  void Ok();

  DataFolder data_folder_;
};

}  // namespace survey

#endif  // SHELL_FRMDATABASE_H_
