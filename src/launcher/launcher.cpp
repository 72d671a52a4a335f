#include "launcher/launcher.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <climits>

#include "foundation/logger.h"
#include "launcher/notify-adapter.h"
#include "launcher/progress-dialog.h"
#include "localisation/str-table.h"
#include "mac/mac-service.h"

namespace {

constexpr int kReady = 519;  // desc_lkmr_env_preparation_done
constexpr unsigned long kGatheringMs = 2;
constexpr int kFrameMs = 17;         // one frame at 60 Hz
constexpr int kOutOfSightMs = 1000;  // if no paint event arrives, as for a minimised window

/// Ends an event loop once the screen shows what a window has painted.
class PaintWatch : public QObject {
 public:
  PaintWatch(QWidget* window, QEventLoop* loop) : loop_(loop) { window->installEventFilter(this); }

  bool eventFilter(QObject* /*window*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) QTimer::singleShot(kFrameMs, loop_, SLOT(quit()));
    return false;
  }

 private:
  QEventLoop* loop_;
};

/// Returns once the screen shows the window's current state. Painting waits behind the queued
/// signals, and after a short run the window system may not have mapped the window yet: hidden at
/// once, its last label would never be seen.
void LetItBeSeen(QWidget* window) {
  if (!window->isVisible()) return;
  QEventLoop loop;
  PaintWatch const watch(window, &loop);
  QTimer::singleShot(kOutOfSightMs, &loop, SLOT(quit()));
  // Not update(): its event may wait behind the one being delivered, where the loop doesn't see it.
  // What can't be painted yet is painted when the window is mapped.
  window->repaint();
  loop.exec();
}

}  // namespace

HandlerThread::HandlerThread() : QThread(nullptr) {}

HandlerThread::~HandlerThread() = default;

void HandlerThread::run() { QThread::exec(); }

Worker::Worker() : QObject(nullptr), thread(nullptr), service(nullptr) {
  service = new MacService;
  thread = new HandlerThread;
  moveToThread(thread);
}

Worker::~Worker() {
  delete thread;
  delete service;
}

void Worker::StartThread() { thread->start(QThread::InheritPriority); }

void Worker::QuitThread() { thread->quit(); }

void Worker::JoinThread() { thread->wait(ULONG_MAX); }

void Worker::HandleServicce() {
  LOG_MSG(LEVEL_DEBUG, log_component::launcher(), "[DEBUG] launcher(%d): running\n");
  service->PreUpgrade();
  if (!service->IsNeedUpgrade()) {
    LOG_MSG(LEVEL_DEBUG, log_component::launcher(), "[DEBUG] launcher(%d): no need to upgrade\n");
  } else {
    emit sigShowMsg();
    if (service->HandlePackageUpgrade() == 0) {
      emit sigUpdateProgress(100, 100);
      emit sigSetLabelText(StrTable::LoadStr(kReady));
    } else {
      LOG_MSG(LEVEL_ERROR, log_component::launcher(),
              "[ERROR] launcher(%d): Failed to upgrade package\n");
    }
  }
  service->RemoveAgedFolders();
  service->PostUpgrade();
  LOG_MSG(LEVEL_DEBUG, log_component::launcher(), "[DEBUG] launcher(%d): done\n");
  emit sigServiceDone();
}

Launcher::Launcher() : QObject(nullptr), worker(nullptr), dialog(nullptr) {
  worker = new Worker;
  ProcessingProgressDialog::SetApplicationFont();
  dialog = new ProcessingProgressDialog;
  dialog->setCancelButton(nullptr);
  dialog->setAutoReset(false);
  // Closing the window during an upgrade must not end the event loop: the worker would still be
  // running when its owner is deleted.
  QApplication::setQuitOnLastWindowClosed(false);
  // An archive of small files sends a notification every few microseconds. Waking this thread for
  // each one costs both threads more than writing the file. The delay is too short to see.
  connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
          [this] {
            if (dialog->isVisible()) QThread::msleep(kGatheringMs);
          });

  connect(this, SIGNAL(sigStart()), worker, SLOT(HandleServicce()));
  connect(worker, SIGNAL(sigShowMsg()), this, SLOT(ShowMsgBox()));
  connect(worker, SIGNAL(sigServiceDone()), this, SLOT(LaunchDone()));
  connect(worker, SIGNAL(sigUpdateProgress(int, int)), this, SLOT(UpdateProgress(int, int)));
  connect(worker, SIGNAL(sigSetLabelText(QString)), this, SLOT(SetLabelText(QString)));
  connect(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateProgress(int, int)), this,
          SLOT(UpdateProgress(int, int)));
  connect(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateDialogText(QString)), this,
          SLOT(SetLabelText(QString)));
}

Launcher::~Launcher() {
  // LaunchDone has already joined the thread, unless the system ended the event loop during an
  // upgrade: the upgrade then finishes here, without a window.
  worker->QuitThread();
  worker->JoinThread();
  delete worker;
  delete dialog;
}

void Launcher::Run() { worker->StartThread(); }

void Launcher::Start() { emit sigStart(); }

void Launcher::ShowMsgBox() { dialog->show(); }

void Launcher::UpdateProgress(int total, int steps) { dialog->setValue(steps * 100 / total); }

void Launcher::SetLabelText(const QString& text) { dialog->setLabelText(text); }

void Launcher::LaunchDone() {
  // The client has already been started, so nobody waits for this.
  LetItBeSeen(dialog);
  dialog->setValue(100);
  dialog->hide();
  // Join before quitting the loop: main may then delete this object at once.
  worker->QuitThread();
  worker->JoinThread();
  QCoreApplication::quit();
}
