#include "offscreen.h"

#include <QCoreApplication>
#include <QString>
#include <QtGlobal>

namespace survey {
namespace {

QtMessageHandler usual_handler = nullptr;

void TellMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (!message.startsWith("This plugin does not support")) usual_handler(type, context, message);
}

}  // namespace

void UseOffscreenPlatform() {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);  // nobody could answer these
  usual_handler = qInstallMessageHandler(TellMessage);
}

}  // namespace survey
