#include "support/another_program.h"

#include <QProcess>

namespace survey::testing {

AnotherProgram::AnotherProgram(const std::vector<std::string>& arguments)
    : process_(std::make_unique<QProcess>()) {
  QStringList texts;
  for (const std::string& argument : arguments) texts << QString::fromStdString(argument);
  process_->setProcessChannelMode(QProcess::ForwardedErrorChannel);
  // Another engine has a program of its own.
  process_->start(qEnvironmentVariable("ANOTHER_PROGRAM", ANOTHER_PROGRAM), texts);
}

char AnotherProgram::Read() {
  char said = 0;
  if (process_->bytesAvailable() == 0) process_->waitForReadyRead(-1);
  return process_->getChar(&said) ? said : '\0';
}

void AnotherProgram::Kill() {
  process_->kill();
  process_->waitForFinished(-1);
}

int AnotherProgram::Status() {
  process_->waitForFinished(-1);
  return process_->exitCode();
}

AnotherProgram::~AnotherProgram() {
  if (process_) Kill();
}

AnotherProgram::AnotherProgram(AnotherProgram&& other) noexcept = default;

}  // namespace survey::testing
