#ifndef DESKTOP_QT_PRINTER_H_
#define DESKTOP_QT_PRINTER_H_

#include <QFont>
#include <QPainter>
#include <QPrinter>
#include <memory>

#include "desktop/printer_choice.h"
#include "printing/printer.h"

namespace survey {

// Prints on what is chosen. Each job goes to a printer by itself; to a
// PDF file all jobs since the choice go one after the other, for a file that each job wrote anew
// would hold the last one only.
class QtPrinter : public Printer {
 public:
  explicit QtPrinter(PrinterChoice choose = AskForPrinter);
  ~QtPrinter() override;

  // Ends what is being printed, which completes a file; false where the file has not become whole.
  // For what a print that failed has left behind.
  bool Complete();

  void ShowPrinter(const std::string& job) override;
  void SetFont(std::string_view name, double points, bool bold) override;
  void SetFontBold(bool bold) override { font_.setBold(bold); }
  void SetCurrentX(double x) override { x_ = x; }
  void SetCurrentY(double y) override { y_ = y; }
  void SetOrientation(Orientation orientation) override { orientation_ = orientation; }
  void Print(std::string_view text) override;
  double Width() override;
  double Height() override;
  void OwnerPrintDraw(const Grid& grid, double left, double top, double right, double bottom,
                      int page) override;
  int OwnerPrintPageCount(const Grid& grid, double left, double top, double right,
                          double bottom) override;
  void NewPage() override;
  void EndDoc() override;
  void Finish() override;

 private:
  // The painter on a page that is begun; begins one first where that is due.
  QPainter& Page();
  void BeginJob();
  void BeginPage();
  void SetUpPage();
  void LeavePage();
  [[noreturn]] void Fail();
  bool ToPdf() const { return printer_->outputFormat() == QPrinter::PdfFormat; }
  // Width and height of the sheet in twips, upright.
  QSizeF Sheet() const;

  PrinterChoice choose_;
  std::unique_ptr<QPrinter> printer_;
  std::unique_ptr<QPainter> painter_;  // while something is being printed
  QFont font_;
  double x_ = 0;
  double y_ = 0;
  Orientation orientation_ = Orientation::kPortrait;       // of pages to come
  Orientation page_orientation_ = Orientation::kPortrait;  // of the page that is begun
  bool on_page_ = false;
};

}  // namespace survey

#endif  // DESKTOP_QT_PRINTER_H_
