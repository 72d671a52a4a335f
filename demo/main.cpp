// A fake sync client: it shows a window, keeps its pid file and ends on SIGTERM. The launcher knows
// no more of a client.
#include <QApplication>
#include <QDir>
#include <QLockFile>

#include "client-files.h"
#include "client-window.h"
#include "termination-signal.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  bool const ignore = app.arguments().contains("--ignore-sigterm") || IsToldToIgnoreTermination();

  // Opening a bundle whose program already runs starts no second one.
  QDir().mkpath(UserRoot() + "/data");
  QLockFile running(UserRoot() + "/data/ui.lock");
  running.setStaleLockTime(0);
  if (!running.tryLock(0)) return 0;

  ClientWindow window(BuildVersion());
  window.SetState(ignore ? "Up to date (SIGTERM is ignored)" : "Up to date");
  TerminationSignal termination;
  if (ignore) {
    IgnoreTermination();
  } else {
    QObject::connect(&termination, &TerminationSignal::Received, &app, &QApplication::quit);
  }

  PidFile const pid_file;
  window.show();
  return QApplication::exec();
}
