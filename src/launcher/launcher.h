#pragma once

#include <QObject>
#include <QString>
#include <QThread>

class ProcessingProgressDialog;
class Service;

/// The worker thread: just an event loop for the Worker.
class HandlerThread : public QThread {
  Q_OBJECT

 public:
  HandlerThread();
  ~HandlerThread() override;

 protected:
  void run() override;
};

/// Owns the upgrade service and runs the whole upgrade on its own thread. Created and destroyed on
/// the main thread; its slot runs on the worker thread. It never waits for the main thread and
/// reports only through queued signals.
class Worker : public QObject {
  Q_OBJECT

 public:
  Worker();
  /// The thread must have ended: call QuitThread, then JoinThread.
  ~Worker() override;

  void StartThread();
  void QuitThread();
  /// Blocks until the thread has ended, without a timeout.
  void JoinThread();

 signals:
  /// Emitted last on the worker thread.
  void sigServiceDone();
  void sigShowMsg();
  /// The total, then how much of it is done.
  void sigUpdateProgress(int, int);
  void sigSetLabelText(const QString&);

 private slots:
  /// Upgrades if needed, then cleans up and starts the client, whatever happened before. Runs once.
  void HandleServicce();

 private:
  HandlerThread* thread;
  Service* service;
};

/// Lives on the main thread. Owns the dialog and the worker, and forwards the worker's signals to
/// the dialog.
class Launcher : public QObject {
  Q_OBJECT

 public:
  Launcher();
  ~Launcher() override;

  /// Starts the worker thread.
  void Run();
  /// Starts the upgrade sequence. May be called before the event loop runs; the end of the sequence
  /// ends the loop.
  void Start();

 signals:
  void sigStart();

 private slots:
  void LaunchDone();
  /// `steps` of `total` are done; `total` is at least 1.
  void UpdateProgress(int total, int steps);
  void SetLabelText(const QString& text);
  void ShowMsgBox();

 private:
  Worker* worker;
  ProcessingProgressDialog* dialog;
};
