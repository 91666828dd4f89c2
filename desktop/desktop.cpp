#include "desktop/desktop.h"

#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>

#include "desktop/pictures.h"
#include "desktop/qt_dialogs.h"
#include "desktop/qt_printer.h"
#include "desktop/qt_program_folder.h"
#include "desktop/qt_settings.h"
#include "forms/message_boxes.h"

namespace survey {
namespace {

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
};

}  // namespace

struct Desktop::Parts {
  explicit Parts(const DesktopPlaces& places)
      : settings(places.settings_file), program_folder(places.program_folder) {
    QObject::connect(&view, &DesktopView::ActionEnded, &view, [this] { printer.Finish(); });
  }

  QtDialogs dialogs{[this] { return view.FrontWindow(); }};
  QtPrinter printer;
  QtSettings settings;
  QtProgramFolder program_folder;
  Survey survey;
  Forms forms{survey, Platform{dialogs, printer, settings, program_folder}};
  DesktopView view{forms};
};

void SetUpApplication() {
  QCoreApplication::setOrganizationName("Corvale");
  QCoreApplication::setApplicationName(kProgramName);
  QApplication::setStyle(new SurveyStyle);
  QApplication::setWindowIcon(ProgramIcon());
  // A program without a window may still be about to show its next one.
  QApplication::setQuitOnLastWindowClosed(false);
}

Desktop::Desktop(const DesktopPlaces& places) : parts_(std::make_unique<Parts>(places)) {}

Desktop::~Desktop() = default;

Survey& Desktop::survey() { return parts_->survey; }

Forms& Desktop::forms() { return parts_->forms; }

DesktopView& Desktop::view() { return parts_->view; }

}  // namespace survey
