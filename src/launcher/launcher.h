#pragma once

#include <QObject>
#include <QString>
#include <QThread>

class ProcessingProgressDialog;
class Service;

/// The worker thread: nothing but an event loop for the Worker.
class HandlerThread : public QThread {
  Q_OBJECT

 public:
  HandlerThread();
  ~HandlerThread() override;

 protected:
  void run() override;
};

/// Owns the upgrade service and runs the whole upgrade sequence on a thread of its own. Made and
/// destroyed on the main thread; its slot runs on the worker thread. It never waits for the main
/// thread: all it has to say leaves as queued signals.
class Worker : public QObject {
  Q_OBJECT

 public:
  Worker();
  /// The thread must have ended: QuitThread, then JoinThread.
  ~Worker() override;

  void StartThread();
  void QuitThread();
  /// Blocks until the thread has ended, without a time limit.
  void JoinThread();

 signals:
  /// The last thing that happens on the worker thread.
  void sigServiceDone();
  void sigShowMsg();
  /// The total first, then how much of it is done.
  void sigUpdateProgress(int, int);
  void sigSetLabelText(const QString&);

 private slots:
  /// Upgrades when needed, then cleans up and starts the sync client, whatever came before. Runs
  /// once, to its end.
  void HandleServicce();

 private:
  HandlerThread* thread;
  Service* service;
};

/// Lives on the main thread, owns the dialog and the worker, and turns the worker's signals into
/// calls on the dialog.
class Launcher : public QObject {
  Q_OBJECT

 public:
  Launcher();
  ~Launcher() override;

  /// Starts the worker thread.
  void Run();
  /// Starts the sequence. May be called before the event loop is entered; the loop is then ended
  /// by the sequence's end.
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
