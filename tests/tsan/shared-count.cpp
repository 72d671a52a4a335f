// A worker thread and the main thread change a number that isn't atomic. The argument selects what
// synchronises them; values that begin with "no-" leave a race.
#include <QCoreApplication>
#include <QMutex>
#include <QObject>
#include <QThread>
#include <QWaitCondition>
#include <atomic>
#include <string>

namespace {

int count = 0;
QMutex mutex;
QWaitCondition condition;
bool counted = false;  // guarded by the mutex
/// Relaxed, so that it doesn't synchronise: it only makes sure that both threads run.
std::atomic<bool> main_is_done{false};
std::atomic<bool> worker_is_done{false};

void Await(std::atomic<bool> const& done) {
  while (!done.load(std::memory_order_relaxed)) QThread::yieldCurrentThread();
}

}  // namespace

/// Counts on the main thread in the selected way.
class Counter : public QObject {
  Q_OBJECT

 public:
  bool event(QEvent* event) override {
    if (event->type() != QEvent::User) return QObject::event(event);
    Count();
    return true;
  }

 public slots:
  void Count() {
    ++count;
    main_is_done.store(true, std::memory_order_relaxed);
    QCoreApplication::quit();
  }
};

class Worker : public QThread {
  Q_OBJECT

 public:
  Worker(std::string way, Counter* counter) : way_(std::move(way)), counter_(counter) {}

 signals:
  void Counted();

 protected:
  void run() override {
    if (way_ == "signal" || way_ == "event") {
      // This one wakes the main thread, which ThreadSanitizer sees anyway, but the next ones don't.
      QCoreApplication::postEvent(counter_, new QEvent(QEvent::None));
      ++count;
      if (way_ == "signal") {
        emit Counted();
      } else {
        QCoreApplication::postEvent(counter_, new QEvent(QEvent::User));
      }
      worker_is_done.store(true, std::memory_order_relaxed);
    } else if (way_ == "no-order-after-signal") {
      emit Counted();
      Await(main_is_done);
      ++count;
    } else if (way_ == "no-order-after-event") {
      QCoreApplication::postEvent(counter_, new QEvent(QEvent::User));
      Await(main_is_done);
      ++count;
    } else if (way_ == "mutex" || way_ == "condition") {
      QMutexLocker const locker(&mutex);
      ++count;
      counted = true;
      condition.wakeAll();
    } else {  // "start-and-end", "no-lock-on-main"
      ++count;
    }
  }

 private:
  std::string way_;
  Counter* counter_;
};

namespace {

bool CountUnderMutex() {
  QMutexLocker const locker(&mutex);
  if (counted) ++count;
  return counted;
}

void CountWhenWoken() {
  QMutexLocker const locker(&mutex);
  while (!counted) condition.wait(&mutex);
  ++count;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  std::string const way = argc > 1 ? argv[1] : "";
  Counter counter;
  Worker worker(way, &counter);
  QObject::connect(&worker, SIGNAL(Counted()), &counter, SLOT(Count()));
  ++count;
  worker.start();
  if (way == "mutex") {
    while (!CountUnderMutex()) QThread::yieldCurrentThread();
  } else if (way == "condition") {
    CountWhenWoken();
  } else if (way == "no-lock-on-main") {
    ++count;
  } else if (way == "signal" || way == "event") {
    Await(worker_is_done);
    QCoreApplication::exec();
  } else if (way != "start-and-end") {
    QCoreApplication::exec();
  }
  worker.wait();
  ++count;
  return count >= 3 ? 0 : 1;
}

#include "shared-count.moc"
