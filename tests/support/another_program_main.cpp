// another-program hold FILE STATEMENT...
//     runs the statements on a survey database, says "!", and waits to be killed. "commit" for a
//     statement ends what is to be saved together.
// another-program save FILE DISK_CALL STATEMENT PAGE VERSION...
//     saves each page, every one for the page "all", with that version of the answers, and makes
//     FILE if need be. Says "b" before each save, "e" after it. Kills itself at that call to the
//     disk, or at that statement; 0 for never. Ends with 1 where a save is refused.
// another-program rows FILE
//     prints every row of a survey database.

#include <future>
#include <iostream>

#include "support/disk_faults.h"
#include "support/filled_site.h"

namespace survey::testing {
namespace {

using Arguments = std::vector<std::string>;

[[noreturn]] void Hold(const Arguments& arguments) {
  CipherKeys keys;
  const auto connection = Connection::Open(arguments.at(1), DatabasePassword(), keys);
  for (std::size_t i = 2; i < arguments.size(); ++i) {
    if (arguments[i] == "commit") {
      connection->EndGroup();
    } else {
      connection->Execute(arguments[i]);
    }
  }
  std::cout << '!' << std::flush;
  for (;;) std::promise<void>().get_future().wait();  // which nobody keeps
}

int Save(const Arguments& arguments) {
  FilledSite site;
  site.survey.CloseDatabaseConnection();
  const std::string& file = arguments.at(1);
  if (!std::filesystem::exists(file)) {
    std::filesystem::copy_file(site.survey.DatabasePath, file);
  }
  site.survey.DatabasePath = file;
  const int disk_call = std::stoi(arguments.at(2));
  const int statement = std::stoi(arguments.at(3));
  if (disk_call > 0) KillSelfAtDiskCall(disk_call);
  site.survey.set_statement_observer([statement, count = 0](std::string_view) mutable {
    if (++count == statement) KillSelf();
  });
  for (std::size_t i = 4; i + 1 < arguments.size(); i += 2) {
    const Arguments pages = arguments[i] == "all" ? PageNames() : Arguments{arguments[i]};
    for (const std::string& page : pages) {
      Form& form = site.Open(page);
      site.Fill(form, std::stoi(arguments[i + 1]));
      std::cout << 'b' << std::flush;
      site.Click(page, "cmdSave");
      if (const std::string told = site.LastBox(); !told.empty()) {
        std::cerr << told;
        return 1;
      }
      std::cout << 'e' << std::flush;
      site.host.Unload(form);
    }
  }
  return 0;
}

int PrintRows(const Arguments& arguments) {
  for (const auto& [table, rows] : AllRows(arguments.at(1))) std::cout << table << "\n" << rows;
  return 0;
}

}  // namespace
}  // namespace survey::testing

int main(int argc, char** argv) {
  using namespace survey::testing;
  const Arguments arguments(argv + 1, argv + argc);
  if (arguments.at(0) == "hold") Hold(arguments);
  return arguments[0] == "rows" ? PrintRows(arguments) : Save(arguments);
}
