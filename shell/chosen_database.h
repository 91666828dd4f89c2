#ifndef SHELL_CHOSEN_DATABASE_H_
#define SHELL_CHOSEN_DATABASE_H_

#include "forms/form_host.h"
#include "shell/data_folder.h"

namespace survey {

// What is done of our own when a database has been chosen: every page of the file is read once, so
// that damage is told here and not passed over where the survey says nothing of a failed
// statement; and a copy is put by. False when the database is damaged and the user does not want to
// open it. One that cannot be opened is not told here: the next form does.
bool CareForChosenDatabase(FormHost& host, const DataFolder& data_folder);

}  // namespace survey

#endif  // SHELL_CHOSEN_DATABASE_H_
