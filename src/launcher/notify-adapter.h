#pragma once

#include <QObject>
#include <QString>

/// The way from deep inside the worker thread to the dialog: code that knows no Worker calls the
/// adapter, whose signals the Launcher has connected to its slots.
///
/// Any thread may call it. It holds no data, and with nobody connected its calls do nothing.
class Notify_Adapter : public QObject {
  Q_OBJECT

 public:
  /// The one object of the process. Made by the first caller, whose thread it belongs to; destroyed
  /// at process exit, never by a caller.
  static Notify_Adapter* GetInstance();

  /// Emits sigUpdateProgress: `current` of `total` entries are done, counted from 1.
  void UpdateProgress(int total, int current);
  /// Emits sigUpdateDialogText with the label to show.
  void UpdateDialogText(QString text);

 signals:
  void sigUpdateProgress(int total, int current);
  void sigUpdateDialogText(QString);

 private:
  explicit Notify_Adapter(QObject* parent);
};
