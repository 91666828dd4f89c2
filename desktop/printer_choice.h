#ifndef DESKTOP_PRINTER_CHOICE_H_
#define DESKTOP_PRINTER_CHOICE_H_

#include <QPrinter>
#include <functional>

namespace survey {

// Chooses a printer, or a file to print to, for the jobs that follow; false after Cancel.
using PrinterChoice = std::function<bool(QPrinter&)>;

// Lets the user choose in the print dialog, or where there is none without a printer, a file.
bool AskForPrinter(QPrinter& printer);

// Lets the user name a PDF file, and proposes the one that the printer would write.
bool AskForFile(QPrinter& printer);

}  // namespace survey

#endif  // DESKTOP_PRINTER_CHOICE_H_
