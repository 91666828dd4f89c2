#include "desktop/printer_choice.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinterInfo>

#include "desktop/system_habits.h"

namespace survey {
bool AskForPrinter(QPrinter& printer) {
  if (!kPrintDialogServesFiles) {
    if (QPrinterInfo::availablePrinterNames().isEmpty()) return AskForFile(printer);
    if (printer.outputFormat() == QPrinter::PdfFormat) {  // there was no printer before
      printer.setOutputFileName({});
      printer.setOutputFormat(QPrinter::NativeFormat);
    }
  }
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  dialog.setOptions(QAbstractPrintDialog::PrintShowPageSize);
  dialog.setOption(QAbstractPrintDialog::PrintToFile, kPrintDialogServesFiles);
  return dialog.exec() == QDialog::Accepted;
}

bool AskForFile(QPrinter& printer) {
  QFileDialog dialog(QApplication::activeWindow(),
                     QObject::tr("There is no printer: save as a PDF file"), {},
                     QObject::tr("PDF files (*.pdf)"));
  dialog.setObjectName("PrintFileDialog");
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix("pdf");
  dialog.selectFile(printer.outputFileName());
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return false;
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(dialog.selectedFiles().constFirst());
  return true;
}

}  // namespace survey
