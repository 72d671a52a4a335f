#pragma once

#ifdef LARKMOOR_HAVE_QTSINGLEAPPLICATION

#include <QtSingleApplication>

#else

#include <QApplication>
#include <QLockFile>
#include <memory>

/// Stands in for the Qt Solutions component of this name where it isn't installed: the application
/// object that knows whether it is the first of its executable and user. Nothing of the component's
/// messages and window activation is here. Main thread only.
class QtSingleApplication : public QApplication {
 public:
  /// `argc` and `argv` must outlive the object, as QApplication wants it.
  QtSingleApplication(int& argc, char** argv, bool GUIenabled = true);
  ~QtSingleApplication() override;

  /// False in the one process that holds the guard, which is the first that asked, until it ends by
  /// whatever cause; true in all others. Doesn't wait. Where no lock can be had, for want of a
  /// folder or of space, the answer is false: two launchers at once are less likely than a user
  /// without any. A holder that was killed within its first moments may count as one for ten
  /// seconds.
  bool isRunning();

 private:
  std::unique_ptr<QLockFile> lock_;
};

#endif
