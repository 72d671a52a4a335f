#pragma once

#include <QObject>
#include <QString>

/// Connects code deep inside the worker thread with the dialog. Code that knows no Worker calls the
/// adapter; the Launcher connects its signals to slots.
///
/// Any thread may call it. It holds no data. Without connections, calls do nothing.
class Notify_Adapter : public QObject {
  Q_OBJECT

 public:
  /// The instance of the process. Created on the first call and by that thread; destroyed at
  /// process exit, never by a caller.
  static Notify_Adapter* GetInstance();

  /// Emits sigUpdateProgress: `current` of `total` entries are done, counting from 1.
  void UpdateProgress(int total, int current);
  /// Emits sigUpdateDialogText with the new label.
  void UpdateDialogText(QString text);

 signals:
  void sigUpdateProgress(int total, int current);
  void sigUpdateDialogText(QString);

 private:
  explicit Notify_Adapter(QObject* parent);
};
