#pragma once

#include <QObject>

/// Turns SIGTERM into a Qt signal on the event loop. At most one object at a time; create it on the
/// main thread, behind the application object.
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

/// From here on SIGTERM has no effect on this process.
void IgnoreTermination();
