#include "desktop/desktop.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QApplication>
#include <QGroupBox>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

#include "desktop/grid_accessible.h"
#include "desktop/pictures.h"
#include "desktop/qt_dialogs.h"
#include "desktop/qt_program_folder.h"
#include "desktop/qt_settings.h"
#include "desktop/surroundings.h"
#include "desktop/system_habits.h"
#include "forms/message_boxes.h"

namespace survey {
namespace {

constexpr int kMarkLineAlpha = 170;
constexpr int kFrameLine = 130;  // percent darker than the window

// The same looks on every desktop, so that colours which mean something are seen everywhere.
class SurveyStyle : public QProxyStyle {
 public:
  SurveyStyle() : QProxyStyle(QStyleFactory::create("Fusion")) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* result) const override {
    // A list of thousands opens below its box and scrolls, instead of covering the screen.
    if (hint == SH_ComboBox_Popup) return 0;
    return QProxyStyle::styleHint(hint, option, widget, result);
  }

  // A flat frame has a title alone, and its contents the edges of what has no frame.
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override {
    QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    if (control == CC_GroupBox && part == SC_GroupBoxContents && IsFlat(widget)) {
      rect.setLeft(option->rect.left());
      rect.setRight(option->rect.right());
      rect.setBottom(option->rect.bottom());
    }
    return rect;
  }

  // The style's own lines around a mark to tick are too faint for weak eyes.
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    if (element == PE_FrameGroupBox && IsFlat(widget)) return;
    if (element == PE_Frame && qobject_cast<const QAbstractScrollArea*>(widget) != nullptr) {
      DrawFrame(*option, *painter);
      return;
    }
    const bool is_box = element == PE_IndicatorCheckBox;
    const auto* mark_option = qstyleoption_cast<const QStyleOptionButton*>(option);
    if ((!is_box && element != PE_IndicatorRadioButton) || mark_option == nullptr) {
      QProxyStyle::drawPrimitive(element, option, painter, widget);
      return;
    }
    // In dark colours some systems fill a mark as if it were ticked.
    QStyleOptionButton open(*mark_option);
    open.palette.setBrush(QPalette::Base, QApplication::palette().base());
    QProxyStyle::drawPrimitive(element, &open, painter, widget);
    QColor line = option->palette.color(QPalette::WindowText);
    line.setAlpha(kMarkLineAlpha);
    painter->save();
    painter->setPen(line);
    painter->setBrush(Qt::NoBrush);
    painter->setRenderHint(QPainter::Antialiasing, !is_box);
    const QRect mark = option->rect.adjusted(0, 0, -1, -1);
    if (is_box) {
      painter->drawRect(mark);
    } else {
      painter->drawEllipse(mark);
    }
    painter->restore();
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override {
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    const bool is_mark = metric == PM_IndicatorWidth || metric == PM_IndicatorHeight ||
                         metric == PM_ExclusiveIndicatorWidth ||
                         metric == PM_ExclusiveIndicatorHeight;
    // A mark to tick is as large as the text beside it.
    return is_mark && widget != nullptr ? std::max(usual, widget->fontMetrics().ascent()) : usual;
  }

 private:
  static bool IsFlat(const QWidget* widget) {
    const auto* frame = qobject_cast<const QGroupBox*>(widget);
    return frame != nullptr && frame->isFlat();
  }

  // The style's own line lies beside the pixels that the frame has on screens at 150 %, where what
  // is inside covers it.
  static void DrawFrame(const QStyleOption& option, QPainter& painter) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(option.palette.color(QPalette::Window).darker(kFrameLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
    painter.restore();
  }
};

}  // namespace

struct Desktop::Parts {
  explicit Parts(const DesktopPlaces& places)
      : printer(places.choose_printer),
        settings(places.settings_file),
        program_folder(places.program_folder) {
    QObject::connect(&view, &DesktopView::ActionEnded, &view, [this] { printer.Complete(); });
  }

  QtDialogs dialogs{[this] { return view.FrontWindow(); }};
  QtPrinter printer;
  QtSettings settings;
  QtProgramFolder program_folder;
  Survey survey;
  FormHost host{survey, Platform{dialogs, printer, settings, program_folder}};
  DesktopView view{host};
  Surroundings surroundings{view, host};
};

void SetUpApplication() {
  QCoreApplication::setOrganizationName("Corvale");
  QCoreApplication::setApplicationName(kProgramName);
  QApplication::setStyle(new SurveyStyle);
  QAccessible::installFactory(MakeGridAccessible);
  UseSharpFonts();
  QApplication::setWindowIcon(ProgramIcon());
  // A program without a window may still be about to show its next one.
  QApplication::setQuitOnLastWindowClosed(false);
}

Desktop::Desktop(const DesktopPlaces& places) : parts_(std::make_unique<Parts>(places)) {}

Desktop::~Desktop() = default;

Survey& Desktop::survey() { return parts_->survey; }

FormHost& Desktop::host() { return parts_->host; }

DesktopView& Desktop::view() { return parts_->view; }

}  // namespace survey
