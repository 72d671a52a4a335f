#include "client-files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QSettings>

namespace {

QByteArray ReadAll(QString const& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

QString BundlePath() { return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../.."); }

QString UserRoot() { return QDir::homePath() + "/.Larkmoor"; }

QString BuildVersion() {
  QSettings const info(BundlePath() + "/Contents/Resources/INFO", QSettings::IniFormat);
  return info.value("Version/build_version", "unknown").toString();
}

bool IsToldToIgnoreTermination() {
  return QFile::exists(BundlePath() + "/Contents/Resources/ignore-sigterm") ||
         QFile::exists(UserRoot() + "/data/ignore-sigterm");
}

PidFile::PidFile()
    : path_(UserRoot() + "/ui.pid"),
      content_("pid=\"" + QByteArray::number(QCoreApplication::applicationPid()) + "\"\n") {
  QDir().mkpath(UserRoot());
  QSaveFile file(path_);
  if (!file.open(QIODevice::WriteOnly) || file.write(content_) != content_.size() ||
      !file.commit()) {
    qWarning("Can't write %s: %s", qUtf8Printable(path_), qUtf8Printable(file.errorString()));
  }
}

PidFile::~PidFile() {
  if (ReadAll(path_) == content_) QFile::remove(path_);
}
