// Tells ThreadSanitizer how Qt synchronises threads. Qt's libraries aren't instrumented, so it sees
// neither their atomics nor their locks, and would report false races where a queued signal, a
// mutex or the end of a thread synchronises.
//
// Linked into every program of a ThreadSanitizer build. Each annotation is as narrow as Qt's own
// synchronisation: from the emission of one sender's signals to their delivery, not for all
// signals.
#include <dlfcn.h>
#include <private/qobject_p.h>
#include <sanitizer/tsan_interface.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QMutex>
#include <QThread>
#include <QWaitCondition>

namespace {

void Release(QObject const* object) { __tsan_release(const_cast<QObject*>(object)); }
void Acquire(QObject const* object) { __tsan_acquire(const_cast<QObject*>(object)); }

/// Runs on the emitting thread, before any receiver is called or queued.
void OnSignal(QObject* sender, int /*signal*/, void** /*arguments*/) { Release(sender); }

/// Runs on the receiving thread, before the receiver gets its event.
bool OnDelivery(void** parameters) {
  auto* event = static_cast<QEvent*>(parameters[1]);
  __tsan_acquire(event);
  if (event->type() == QEvent::MetaCall) {
    if (QObject const* sender = static_cast<QAbstractMetaCallEvent*>(event)->sender()) {
      Acquire(sender);
    }
  }
  return false;  // don't filter the event
}

[[maybe_unused]] bool const watching = [] {
  static QSignalSpyCallbackSet callbacks{OnSignal, nullptr, nullptr, nullptr};
  qt_register_signal_spy_callbacks(&callbacks);
  return QInternal::registerCallback(QInternal::EventNotifyCallback, OnDelivery);
}();

/// Qt's function that a definition below hides.
template <typename Function>
Function* Real(char const* symbol) {
  void* address = dlsym(RTLD_NEXT, symbol);
  if (address == nullptr) qFatal("Qt has no %s", symbol);
  return reinterpret_cast<Function*>(address);
}

}  // namespace

// The definitions below replace Qt's for the project's code and for Qt's other libraries.
// libQt5Core itself doesn't call them.

void QCoreApplication::postEvent(QObject* receiver, QEvent* event, int priority) {
  static auto* const real =
      Real<void(QObject*, QEvent*, int)>("_ZN16QCoreApplication9postEventEP7QObjectP6QEventi");
  __tsan_release(event);
  real(receiver, event, priority);
}

// The end of a thread is its signal "finished".
bool QThread::wait(unsigned long time) {
  static auto* const real = Real<bool(QThread*, unsigned long)>("_ZN7QThread4waitEm");
  bool const ended = real(this, time);
  if (ended) Acquire(this);
  return ended;
}

bool QThread::wait(QDeadlineTimer deadline) {
  static auto* const real =
      Real<bool(QThread*, QDeadlineTimer)>("_ZN7QThread4waitE14QDeadlineTimer");
  bool const ended = real(this, deadline);
  if (ended) Acquire(this);
  return ended;
}

void QMutex::lock() QT_MUTEX_LOCK_NOEXCEPT {
  static auto* const real = Real<void(QMutex*)>("_ZN6QMutex4lockEv");
  real(this);
  __tsan_acquire(this);
}

bool QMutex::tryLock(int timeout) QT_MUTEX_LOCK_NOEXCEPT {
  static auto* const real = Real<bool(QMutex*, int)>("_ZN6QMutex7tryLockEi");
  bool const locked = real(this, timeout);
  if (locked) __tsan_acquire(this);
  return locked;
}

void QMutex::unlock() noexcept {
  static auto* const real = Real<void(QMutex*)>("_ZN6QMutex6unlockEv");
  __tsan_release(this);
  real(this);
}

bool QWaitCondition::wait(QMutex* mutex, unsigned long time) {
  static auto* const real =
      Real<bool(QWaitCondition*, QMutex*, unsigned long)>("_ZN14QWaitCondition4waitEP6QMutexm");
  __tsan_release(mutex);
  bool const woken = real(this, mutex, time);
  __tsan_acquire(mutex);
  return woken;
}

bool QWaitCondition::wait(QMutex* mutex, QDeadlineTimer deadline) {
  static auto* const real = Real<bool(QWaitCondition*, QMutex*, QDeadlineTimer)>(
      "_ZN14QWaitCondition4waitEP6QMutex14QDeadlineTimer");
  __tsan_release(mutex);
  bool const woken = real(this, mutex, deadline);
  __tsan_acquire(mutex);
  return woken;
}
