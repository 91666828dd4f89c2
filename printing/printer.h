#ifndef PRINTING_PRINTER_H_
#define PRINTING_PRINTER_H_

#include <string>
#include <string_view>

#include "grid/grid.h"

namespace survey {

enum class Orientation { kPortrait = 1, kLandscape = 2 };

// The printer. Positions and sizes are twips from the page's top left corner. A job begins with
// the first thing printed and ends with EndDoc. All calls throw RunTimeError when the printer
// fails; nothing of the job then remains to be printed.
class Printer {
 public:
  virtual ~Printer() = default;

  // Lets the user choose a printer, or a file to print to, for a job of this name. Throws
  // CancelWasSelected().
  virtual void ShowPrinter(const std::string& job) = 0;

  virtual void SetFont(std::string_view name, double points, bool bold) = 0;
  virtual void SetFontBold(bool bold) = 0;
  virtual void SetCurrentX(double x) = 0;
  virtual void SetCurrentY(double y) = 0;
  // Stays in force for everything printed later in the run.
  virtual void SetOrientation(Orientation orientation) = 0;

  // Prints a text at the current place and goes to the start of the next line.
  virtual void Print(std::string_view text) = 0;

  virtual double Width() = 0;  // of the page in force
  virtual double Height() = 0;

  // Draws page `page` (from 1) of a grid into the rectangle, as the grid stands on screen; what
  // does not fit is cut off at cell borders below and to the right.
  virtual void OwnerPrintDraw(const Grid& grid, double left, double top, double right,
                              double bottom, int page) = 0;
  // Number of pages that the grid needs in such a rectangle.
  virtual int OwnerPrintPageCount(const Grid& grid, double left, double top, double right,
                                  double bottom) = 0;

  virtual void NewPage() = 0;
  virtual void EndDoc() = 0;

  // Completes what was printed since the last choice. Throws where a file did not take all of it.
  virtual void Finish() = 0;
};

}  // namespace survey

#endif  // PRINTING_PRINTER_H_
