#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QCryptographicHash>  // IWYU pragma: keep
#include <QString>
#include <cerrno>

#include "platform/qtsingleapplication.h"

namespace {

/// How long a start may take, at the most, from making the lock file to locking it.
constexpr int kUnlockedMs = 10000;

bool IsPrivateFolder(QByteArray const& path) {
  struct stat info {};
  return lstat(path.constData(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == geteuid() &&
         (info.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

/// A folder that no other user can write, or nothing. It must not depend on the environment: a
/// start from the desktop and one from a terminal have to meet there. Memory-backed folders come
/// first, since taking the lock flushes it to its medium.
QByteArray LockFolder() {
  QByteArray const uid = QByteArray::number(geteuid());
  QByteArray runtime = "/run/user/" + uid;
  if (IsPrivateFolder(runtime)) return runtime;
  for (char const* shared : {"/dev/shm", "/tmp"}) {
    QByteArray own = QByteArray(shared) + "/larkmoor-launcher-" + uid;
    if (mkdir(own.constData(), S_IRWXU) != 0 && errno != EEXIST) continue;
    if (IsPrivateFolder(own)) return own;
  }
  return {};
}

/// One name for one executable.
QString LockName() {
  QByteArray const path = QCoreApplication::applicationFilePath().toUtf8();
  QByteArray const id = QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex();
  return QStringLiteral("/larkmoor-launcher-") + QString::fromLatin1(id) + QStringLiteral(".lock");
}

}  // namespace

// Qt 5 makes every QApplication with a GUI.
QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool /*GUIenabled*/)
    : QApplication(argc, argv) {}

QtSingleApplication::~QtSingleApplication() = default;

bool QtSingleApplication::isRunning() {
  if (!lock_) {
    QByteArray const folder = LockFolder();
    if (folder.isEmpty()) return false;
    lock_ = std::make_unique<QLockFile>(QString::fromUtf8(folder) + LockName());
    // A living holder's file is locked and stays its own, however old it gets. The age matters
    // where the file can't tell that its holder is gone: it was killed before it had written its
    // number, or another process has that number now.
    lock_->setStaleLockTime(kUnlockedMs);
  }
  return !lock_->isLocked() && !lock_->tryLock(0) && lock_->error() == QLockFile::LockFailedError;
}
