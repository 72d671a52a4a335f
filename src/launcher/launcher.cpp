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
constexpr int kOutOfSightMs = 1000;  // when no paint event comes, as for a minimised window

/// Ends an event loop once the screen has shown what a window paints.
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

/// Returns when the screen has shown the window as it is now. Painting comes after the signals that
/// wait in the queue, and the window system may still be about to map the window of a short run: if
/// it were hidden right away, its last label would never be seen.
void LetItBeSeen(QWidget* window) {
  if (!window->isVisible()) return;
  QEventLoop loop;
  PaintWatch const watch(window, &loop);
  QTimer::singleShot(kOutOfSightMs, &loop, SLOT(quit()));
  // Not update(): the event that it posts may wait behind the one that is being delivered, and the
  // loop would not look at it. What can't be painted yet is painted when the window is mapped.
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
  // A window that is closed in the middle of an upgrade must not end the event loop: the worker
  // would still be at work when its owner is deleted.
  QApplication::setQuitOnLastWindowClosed(false);
  // An archive of small files sends a notification every few microseconds, and waking this thread
  // for each costs both threads more than writing the file. Too short to be seen in a window.
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
  // LaunchDone has joined the thread already, unless the system ended the event loop in the middle
  // of the work: then the work goes on to its end here, without a window.
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
  // The worker has started the client already, so nobody waits for this.
  LetItBeSeen(dialog);
  dialog->setValue(100);
  dialog->hide();
  // Joined before the loop is asked to end, so that main may delete us at once.
  worker->QuitThread();
  worker->JoinThread();
  QCoreApplication::quit();
}
