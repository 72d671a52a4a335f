#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QCryptographicHash>  // IWYU pragma: keep
#include <QString>

#include "platform/qtsingleapplication.h"

namespace {

/// The longest time a start may take from creating the lock file to locking it.
constexpr int kUnlockedMs = 10000;

bool IsPrivateFolder(QByteArray const& path) {
  struct stat info {};
  return lstat(path.constData(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == geteuid() &&
         (info.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

/// A folder that no other user can write to, or an empty string. It must not depend on the
/// environment: starts from the desktop and from a terminal must agree. Memory-backed folders come
/// first, because taking the lock flushes it to disk.
QByteArray LockFolder() {
  QByteArray const uid = QByteArray::number(geteuid());
  QByteArray runtime = "/run/user/" + uid;
  if (IsPrivateFolder(runtime)) return runtime;
  for (char const* shared : {"/dev/shm", "/tmp"}) {
    QByteArray own = QByteArray(shared) + "/larkmoor-launcher-" + uid;
    mkdir(own.constData(), S_IRWXU);  // fails if it exists; the check decides
    if (IsPrivateFolder(own)) return own;
  }
  return {};
}

/// The lock file's name for this executable.
QString LockName() {
  QByteArray const path = QCoreApplication::applicationFilePath().toUtf8();
  QByteArray const id = QCryptographicHash::hash(path, QCryptographicHash::Sha1).toHex();
  return QStringLiteral("/larkmoor-launcher-") + QString::fromLatin1(id) + QStringLiteral(".lock");
}

}  // namespace

// In Qt 5, every QApplication has a GUI.
QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool /*GUIenabled*/)
    : QApplication(argc, argv) {}

QtSingleApplication::~QtSingleApplication() = default;

bool QtSingleApplication::isRunning() {
  if (!lock_) {
    QByteArray const folder = LockFolder();
    if (folder.isEmpty()) return false;
    lock_ = std::make_unique<QLockFile>(QString::fromUtf8(folder) + LockName());
    // A running holder's file is locked, however old it is. The age matters only if the file can't
    // show that its holder has ended: it was killed before writing its pid, or another process has
    // that pid now.
    lock_->setStaleLockTime(kUnlockedMs);
  }
  return !lock_->isLocked() && !lock_->tryLock(0) && lock_->error() == QLockFile::LockFailedError;
}
