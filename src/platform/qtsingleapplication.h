#pragma once

#ifdef LARKMOOR_HAVE_QTSINGLEAPPLICATION

#include <QtSingleApplication>

#else

#include <QApplication>
#include <QLockFile>
#include <memory>

/// A replacement for the Qt Solutions component of this name where it isn't installed: an
/// application object that knows whether it is the first of its executable and user. It lacks the
/// component's messages and window activation. Main thread only.
class QtSingleApplication : public QApplication {
 public:
  /// `argc` and `argv` must outlive the object, as for QApplication.
  QtSingleApplication(int& argc, char** argv, bool GUIenabled = true);
  ~QtSingleApplication() override;

  /// False in the process that holds the guard, which is the first to ask, until it ends, however
  /// it ends; true in all others. Doesn't wait. If no lock can be made, for lack of a folder or of
  /// space, returns false: two launchers at once are a smaller risk than no launcher at all. A
  /// holder that is killed within its first moments may still count for ten seconds.
  bool isRunning();

 private:
  std::unique_ptr<QLockFile> lock_;
};

#endif
