#include "desktop/qt_printer.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QRegularExpression>
#include <QStandardPaths>
#include <algorithm>
#include <cmath>
#include <utility>

#include "base/run_time_error.h"
#include "desktop/grid_pages.h"
#include "desktop/system_habits.h"

namespace survey {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kTwipsPerPoint = 20;
constexpr double kPrinterError = 482;  // the users' number for it

QRect AreaOf(double left, double top, double right, double bottom) {
  const auto whole = [](double twips) { return static_cast<int>(std::lround(twips)); };
  return {QPoint(whole(left), whole(top)), QSize(whole(right - left), whole(bottom - top))};
}

QPageLayout::Orientation ToQt(Orientation orientation) {
  return orientation == Orientation::kLandscape ? QPageLayout::Landscape : QPageLayout::Portrait;
}

// An ID number, which is a part of some names, may hold anything.
QString FileNameOf(QString job) {
  static const QRegularExpression not_in_names(R"([\\/:*?"<>|])");
  return job.replace(not_in_names, "-");
}

// The dialog takes the document's name without its ending, and lets a file chosen before stand.
void ProposeFile(QPrinter& printer, const QString& name) {
  printer.setDocName(name);
  if (printer.outputFormat() != QPrinter::PdfFormat) return;
  const QFileInfo before(printer.outputFileName());
  const QDir folder =
      before.fileName().isEmpty()
          ? QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
          : before.dir();
  printer.setOutputFileName(folder.filePath(name));
}

// Nobody says that a disk was full while a file was written on it; but the file then lacks its end.
bool IsWhole(const QString& path) {
  constexpr qint64 kEnd = 32;  // bytes that the mark stands in
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly) || file.size() == 0) return false;
  file.seek(std::max<qint64>(0, file.size() - kEnd));
  return file.readAll().trimmed().endsWith("%%EOF");
}

}  // namespace

QtPrinter::QtPrinter(PrinterChoice choose)
    : choose_(std::move(choose)), printer_(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
  printer_->setPageSize(QPageSize(QPageSize::A4));
}

QtPrinter::~QtPrinter() { Complete(); }

bool QtPrinter::Complete() {
  LeavePage();
  if (!painter_) return true;
  painter_.reset();
  return printer_->outputFileName().isEmpty() || IsWhole(printer_->outputFileName());
}

void QtPrinter::Finish() {
  if (Complete()) return;
  throw RunTimeError(
      kPrinterError,
      QStringLiteral("The file \"%1\" has not been written whole. Free some space on "
                     "the disk, or choose another folder, and print again.")
          .arg(QDir::toNativeSeparators(printer_->outputFileName()))
          .toStdString());
}

void QtPrinter::ShowPrinter(const std::string& job) {
  Complete();
  printer_->setPageOrientation(ToQt(orientation_));
  const QString name = FileNameOf(QString::fromStdString(job));
  ProposeFile(*printer_, name + ".pdf");
  if (!choose_(*printer_)) throw CancelWasSelected();
  printer_->setDocName(name);
  orientation_ = printer_->pageLayout().orientation() == QPageLayout::Landscape
                     ? Orientation::kLandscape
                     : Orientation::kPortrait;
}

// ---- Pages ---------------------------------------------------------------------------------

QSizeF QtPrinter::Sheet() const {
  return printer_->pageLayout().pageSize().size(QPageSize::Point) * kTwipsPerPoint;
}

double QtPrinter::Width() {
  const Orientation orientation = on_page_ ? page_orientation_ : orientation_;
  return orientation == Orientation::kLandscape ? Sheet().height() : Sheet().width();
}

double QtPrinter::Height() {
  const Orientation orientation = on_page_ ? page_orientation_ : orientation_;
  return orientation == Orientation::kLandscape ? Sheet().width() : Sheet().height();
}

QPainter& QtPrinter::Page() {
  if (!on_page_) BeginPage();
  return *painter_;
}

void QtPrinter::BeginPage() {
  // A PDF file may turn each page, a printer only before the job begins.
  if (!painter_ || ToPdf()) printer_->setPageOrientation(ToQt(orientation_));
  if (!painter_) {
    BeginJob();
  } else if (!printer_->newPage()) {
    Fail();
  }
  on_page_ = true;
  page_orientation_ = orientation_;
  SetUpPage();
}

void QtPrinter::BeginJob() {
  printer_->setFullPage(true);  // positions count from the corner of the paper
  painter_ = std::make_unique<QPainter>();
  if (painter_->begin(printer_.get())) return;
  const bool given_up = IsJobGivenUp();  // before anything else asks the system
  if (!given_up) Fail();
  Complete();
  throw CancelWasSelected();
}

// Scales the painter to twips, and turns it where the printer's sheet lies the other way.
void QtPrinter::SetUpPage() {
  painter_->resetTransform();
  const double scale = printer_->resolution() / kTwipsPerInch;
  painter_->scale(scale, scale);
  const bool lies = printer_->pageLayout().orientation() == QPageLayout::Landscape;
  const bool should_lie = page_orientation_ == Orientation::kLandscape;
  if (should_lie && !lies) {
    painter_->translate(Sheet().width(), 0);
    painter_->rotate(90);
  } else if (lies && !should_lie) {
    painter_->translate(0, Sheet().width());
    painter_->rotate(-90);
  }
}

void QtPrinter::LeavePage() {
  on_page_ = false;
  x_ = y_ = 0;
}

// What is printed next begins the page, so that no blank one follows the last.
void QtPrinter::NewPage() { LeavePage(); }

void QtPrinter::EndDoc() {
  LeavePage();
  if (painter_ && !ToPdf()) painter_.reset();
}

void QtPrinter::Fail() {
  const bool to_file = !printer_->outputFileName().isEmpty();
  const QString what =
      to_file ? QStringLiteral(
                    "The file \"%1\" cannot be written. Choose another folder or close "
                    "the program that has it open.")
                    .arg(QDir::toNativeSeparators(printer_->outputFileName()))
              : QStringLiteral(
                    "The printer \"%1\" does not print. Check that it is switched on and "
                    "connected.")
                    .arg(printer_->printerName());
  if (painter_ && painter_->isActive()) printer_->abort();
  Complete();
  throw RunTimeError(kPrinterError, what.toStdString());
}

// ---- What is printed -----------------------------------------------------------------------

void QtPrinter::SetFont(std::string_view name, double points, bool bold) {
  font_ = QFont(QString::fromUtf8(name.data(), std::ssize(name)));
  font_.setHintingPreference(QFont::PreferNoHinting);
  font_.setPixelSize(static_cast<int>(std::lround(points * kTwipsPerPoint)));
  font_.setBold(bold);
}

void QtPrinter::Print(std::string_view text) {
  QPainter& painter = Page();
  painter.setFont(font_);
  painter.setPen(Qt::black);
  const QFontMetricsF metrics(font_);
  painter.drawText(QPointF(x_, y_ + metrics.ascent()),
                   QString::fromUtf8(text.data(), std::ssize(text)));
  x_ = 0;
  y_ += metrics.height();
}

void QtPrinter::OwnerPrintDraw(const Grid& grid, double left, double top, double right,
                               double bottom, int page) {
  // A sheet is begun only for what there is: the staff list is counted in a smaller rectangle than
  // it is drawn in, and may be given a page more than it fills.
  const GridPages pages(grid, AreaOf(left, top, right, bottom));
  if (page <= pages.count()) pages.Paint(Page(), page);
}

int QtPrinter::OwnerPrintPageCount(const Grid& grid, double left, double top, double right,
                                   double bottom) {
  return GridPages(grid, AreaOf(left, top, right, bottom)).count();
}

}  // namespace survey
