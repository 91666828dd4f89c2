#include "support/another_program.h"

#include <cstdlib>
#include <stdexcept>

#ifdef _WIN32
#include <windows.h>
#else
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace survey::testing {
namespace {

// Another engine has a program of its own.
std::string ProgramFile() {
  const char* given = std::getenv("ANOTHER_PROGRAM");
  return given == nullptr ? ANOTHER_PROGRAM : given;
}

}  // namespace

#ifdef _WIN32

struct AnotherProgram::Process {
  HANDLE handle = nullptr;
  HANDLE said = nullptr;
};

AnotherProgram::AnotherProgram(const std::vector<std::string>& arguments)
    : process_(std::make_unique<Process>()) {
  std::string line = ProgramFile();
  for (const std::string& argument : arguments) line += " \"" + argument + "\"";
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  STARTUPINFOA start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION started{};
  if (!CreatePipe(&process_->said, &start.hStdOutput, &inherited, 0) ||
      !SetHandleInformation(process_->said, HANDLE_FLAG_INHERIT, 0) ||
      !CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                      &started)) {
    throw std::runtime_error("another program cannot be started");
  }
  CloseHandle(start.hStdOutput);
  CloseHandle(started.hThread);
  process_->handle = started.hProcess;
}

char AnotherProgram::Read() {
  char said = 0;
  DWORD count = 0;
  return ReadFile(process_->said, &said, 1, &count, nullptr) && count == 1 ? said : '\0';
}

void AnotherProgram::Kill() {
  TerminateProcess(process_->handle, kKilled);
  Status();
}

int AnotherProgram::Status() {
  DWORD status = 0;
  WaitForSingleObject(process_->handle, INFINITE);
  GetExitCodeProcess(process_->handle, &status);
  return static_cast<int>(status);
}

AnotherProgram::~AnotherProgram() {
  if (!process_) return;
  Kill();
  CloseHandle(process_->handle);
  CloseHandle(process_->said);
}

#else

struct AnotherProgram::Process {
  pid_t id = 0;
  int said = 0;
  int status = -1;  // while it runs
};

AnotherProgram::AnotherProgram(const std::vector<std::string>& arguments)
    : process_(std::make_unique<Process>()) {
  int ends[2];
  if (pipe(ends) != 0) throw std::runtime_error("no pipe to another program");
  std::string name = ProgramFile();
  std::vector<std::string> texts = arguments;
  std::vector<char*> all = {name.data()};
  for (std::string& text : texts) all.push_back(text.data());
  all.push_back(nullptr);
  process_->id = fork();
  if (process_->id == 0) {
    dup2(ends[1], STDOUT_FILENO);
    close(ends[0]);
    close(ends[1]);
    execv(name.c_str(), all.data());
    _exit(127);
  }
  close(ends[1]);
  process_->said = ends[0];
}

char AnotherProgram::Read() {
  char said = 0;
  return read(process_->said, &said, 1) == 1 ? said : '\0';
}

void AnotherProgram::Kill() {
  if (process_->status < 0) kill(process_->id, SIGKILL);
  Status();
}

int AnotherProgram::Status() {
  if (process_->status >= 0) return process_->status;
  int status = 0;
  waitpid(process_->id, &status, 0);
  return process_->status = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

AnotherProgram::~AnotherProgram() {
  if (!process_) return;
  Kill();
  close(process_->said);
}

#endif

AnotherProgram::AnotherProgram(AnotherProgram&& other) noexcept = default;

}  // namespace survey::testing
