#include "desktop/printer_choice.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QStandardPaths>

#include "desktop/system_habits.h"

namespace survey {
namespace {

// Windows' own printer of PDF files would ask for another file for each job.
constexpr char kPdfPrinter[] = "Microsoft Print to PDF";

bool AskForFile(QPrinter& printer, const QString& title) {
  QFileDialog dialog(QApplication::activeWindow(), title, {}, QObject::tr("PDF files (*.pdf)"));
  dialog.setObjectName("PrintFileDialog");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("pdf");
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  const QFileInfo proposed(printer.outputFileName().isEmpty()
                               ? QDir(documents).filePath(printer.docName())
                               : printer.outputFileName());
  dialog.setDirectory(proposed.absolutePath());
  dialog.selectFile(proposed.fileName());
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return false;
  const QPageLayout layout = printer.pageLayout();
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setPageLayout(layout);
  printer.setOutputFileName(dialog.selectedFiles().constFirst());
  return true;
}

}  // namespace

bool AskForPrinter(QPrinter& printer) {
  if (!kPrintDialogServesFiles) {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) return AskForFile(printer);
    if (printer.outputFormat() == QPrinter::PdfFormat) {  // chosen for the print before
      printer.setOutputFileName({});
      printer.setOutputFormat(QPrinter::NativeFormat);
    }
  }
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  dialog.setOptions(QAbstractPrintDialog::PrintShowPageSize);
  dialog.setOption(QAbstractPrintDialog::PrintToFile, kPrintDialogServesFiles);
  if (dialog.exec() != QDialog::Accepted) return false;
  return printer.printerName() != kPdfPrinter ||
         AskForFile(printer, QObject::tr("Save as a PDF file"));
}

bool AskForFile(QPrinter& printer) {
  return AskForFile(printer, QObject::tr("There is no printer: save as a PDF file"));
}

}  // namespace survey
