#ifndef DESKTOP_DESKTOP_H_
#define DESKTOP_DESKTOP_H_

#include <QString>
#include <filesystem>
#include <memory>

#include "desktop/desktop_view.h"
#include "desktop/qt_printer.h"
#include "forms/form_host.h"
#include "printing/printer.h"
#include "store/survey.h"

namespace survey {

// Gives the running QApplication the program's name, icon and looks. Before the first Desktop.
void SetUpApplication();

// Where a program finds its files and prints to. Empty: the executable's folder, the user's own
// settings.
struct DesktopPlaces {
  std::filesystem::path program_folder = {};
  QString settings_file = {};
  PrinterChoice choose_printer = AskForPrinter;
};

// The whole program on a desktop, without its forms: those are registered with host().
class Desktop {
 public:
  explicit Desktop(const DesktopPlaces& places = {});
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  Survey& survey();
  FormHost& host();
  DesktopView& view();

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace survey

#endif  // DESKTOP_DESKTOP_H_
