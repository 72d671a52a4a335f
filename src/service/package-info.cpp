#include "service/package-info.h"

#include <QCoreApplication>
#include <QDir>
#include <QString>

namespace {

ustring InAppDir(char const* inside) {
  return (QCoreApplication::applicationDirPath() + QLatin1String(inside)).toUtf8().constData();
}

}  // namespace

PackageInfo::PackageInfo()
    : images_path(InAppDir("/images")),
      log_path((QDir::homePath() + "/.Larkmoor_log").toUtf8().constData()),
      debug_marker_path(InAppDir("/log/launcher.debug")),
      package_path(InAppDir("/package/larkmoor.lpk")),
      conf_path(InAppDir("/conf")) {}
