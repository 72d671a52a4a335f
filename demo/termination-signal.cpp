#include "termination-signal.h"

#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <cerrno>
#include <csignal>

namespace {

int write_end = -1;

// write is one of the few calls that are safe in a signal handler. If the pipe is full, it holds
// enough bytes already.
void HandleTermination(int) {
  int const saved = errno;
  char const byte = 1;
  [[maybe_unused]] ssize_t const written = ::write(write_end, &byte, 1);
  errno = saved;
}

void SetHandler(void (*handler)(int)) {
  struct sigaction action = {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  // Without "::": it is a macro on macOS.
  sigemptyset(&action.sa_mask);
  ::sigaction(SIGTERM, &action, nullptr);
}

}  // namespace

TerminationSignal::TerminationSignal(QObject* parent) : QObject(parent) {
  int ends[2];
  if (::pipe(ends) != 0) {
    qWarning("No pipe for SIGTERM: the signal ends the client at once");
    return;
  }
  for (int const end : ends) {
    ::fcntl(end, F_SETFD, FD_CLOEXEC);
    ::fcntl(end, F_SETFL, O_NONBLOCK);
  }
  read_end_ = ends[0];
  write_end = ends[1];
  auto* notifier = new QSocketNotifier(read_end_, QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, &TerminationSignal::Drain);
  SetHandler(HandleTermination);
}

void TerminationSignal::Drain() {
  char bytes[16];
  while (::read(read_end_, bytes, sizeof bytes) > 0) {
  }
  Q_EMIT Received();
}

void IgnoreTermination() { SetHandler(SIG_IGN); }
