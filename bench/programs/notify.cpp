// Sends progress notifications from a second thread to the launcher's own window, at the window's
// pace: the next batch starts once the window has handled the last.
//
// usage: notify COUNT

#include <QApplication>
#include <QSemaphore>
#include <QThread>
#include <algorithm>
#include <cstdlib>
#include <memory>

#include "bundled-plugins.h"
#include "launcher/launcher.h"
#include "launcher/notify-adapter.h"
#include "localisation/str-table.h"

namespace {

constexpr int kBatch = 512;

void SendAll(int count, Launcher* window) {
  QSemaphore handled;
  for (int sent = 0; sent < count;) {
    for (int const end = std::min(count, sent + kBatch); sent < end;) {
      Notify_Adapter::GetInstance()->UpdateProgress(count, ++sent);
    }
    // Queued after the batch.
    QMetaObject::invokeMethod(
        window, [&handled] { handled.release(); }, Qt::QueuedConnection);
    handled.acquire();
  }
  QMetaObject::invokeMethod(qApp, &QApplication::quit, Qt::QueuedConnection);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  int const count = std::atoi(argv[1]);
  UseBundledPlugins(argv[0]);
  QApplication app(argc, argv);
  StrTable::InitStrTable();
  Launcher launcher;
  QMetaObject::invokeMethod(&launcher, "ShowMsgBox");
  std::unique_ptr<QThread> const sender(QThread::create(SendAll, count, &launcher));
  sender->start();
  int const status = QApplication::exec();
  sender->wait();
  return status;
}
