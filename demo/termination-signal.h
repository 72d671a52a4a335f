#pragma once

#include <QObject>

/// Turns SIGTERM into a Qt signal on the event loop. One object at a time; create it on the main
/// thread, after the application object.
class TerminationSignal : public QObject {
  Q_OBJECT

 public:
  explicit TerminationSignal(QObject* parent = nullptr);

 Q_SIGNALS:
  void Received();

 private:
  void Drain();

  int read_end_ = -1;
};

/// From now on, this process ignores SIGTERM.
void IgnoreTermination();
