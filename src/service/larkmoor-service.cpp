#include "service/larkmoor-service.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QString>
#include <QVariant>
#include <cstdio>

#include "foundation/file-op.h"
#include "foundation/logger.h"
#include "platform/volume-flush.h"
#include "service/extractor.h"

namespace {

/// How many backup names an upgrade tries before it gives up.
constexpr int kBackupNames = 10;

/// A key of the INFO file and the field for its value.
struct VersionField {
  char const* key;
  ustring* field;
};

/// Copies the values of the group "Version" into the fields. The field of an absent key stays
/// unchanged. Nothing is set, so QSettings doesn't write the file.
template <size_t N>
void ReadVersions(ustring const& path, VersionField const (&fields)[N]) {
  QSettings settings(QString::fromUtf8(path.c_str_utf8()), QSettings::IniFormat, nullptr);
  settings.beginGroup(QStringLiteral("Version"));
  for (VersionField const& version : fields) {
    QString const key = QString::fromLatin1(version.key);
    if (settings.contains(key)) {
      *version.field = settings.value(key).toString().toUtf8().constData();
    }
  }
}

/// The path of a backup.
ustring GetAppBackupDir(ustring const& path, int index) {
  ustring first = path + "_tmp";
  if (index == 0) return first;
  char postfix[8];
  if (snprintf(postfix, sizeof postfix, "%d", index) < 0) {
    LOG_MSG(LEVEL_ERROR, log_component::service(),  // %d fails on no known system
            "[ERROR] larkmoor-service(%d): snprintf failed (continuing without postfix)");
    postfix[0] = '\0';
  }
  return first + postfix;
}

/// FSCopyPath of a folder.
int CopyFolder(Service& service, ustring const& source, ustring const& destination) {
  if (FSMKDir(destination, true) < 0) {
    LOG_MSG(LEVEL_ERROR, log_component::service(),
            "[ERROR] larkmoor-service(%d): FSCopyPath: failed to create dest folder '%s'\n",
            destination.c_str());
    return -1;
  }
  DIR_HANDLE handle;
  if (FSOpenDir(source, 0, handle) < 0) {
    LOG_MSG(LEVEL_WARNING, log_component::service(),
            "[WARNING] larkmoor-service(%d): FSCopyPath: failed to create handle  for src '%s' "
            "failed\n",
            source.c_str());
    return 0;
  }
  int result = 0;
  DIR_ENTRY entry;
  while (FSReadDir(handle, entry) > 0) {
    if (entry.name == "." || entry.name == "..") continue;
    ustring const from = source + "/" + entry.name;
    ustring const to = destination + "/" + entry.name;
    result =
        entry.type == FILE_TYPE_DIRECTORY ? service.FSCopyPath(from, to) : FSCopy(from, to, false);
    if (result < 0) {
      LOG_MSG(LEVEL_ERROR, log_component::service(),
              "[ERROR] larkmoor-service(%d): FSCopyPath: failed to copy from '%s' to '%s'\n",
              from.c_str(), to.c_str());
      result = -1;
      break;
    }
  }
  FSCloseDir(handle);
  return result;
}

}  // namespace

// timeout stays uninitialised: only a platform's service knows its value.
// cppcheck-suppress uninitMemberVar
Service::Service() {}  // NOLINT(cppcoreguidelines-pro-type-member-init)

Service::~Service() = default;

void Service::SetTimeout(int value) { timeout = value; }

ustring Service::GetUserInstallPath() { return QDir::homePath().toUtf8().constData(); }

ustring Service::GetUserLarkmoorInstallPath() { return GetUserInstallPath() + "/" + ".Larkmoor"; }

ustring Service::GetUserLarkmoorAppInstallPath() {
  return GetUserLarkmoorInstallPath() + "/" + "Larkmoor.app";
}

ustring Service::GetUserLarkmoorDataInstallPath() {
  return GetUserLarkmoorInstallPath() + "/" + "data";
}

ustring Service::GetRootLarkmoorInstallPath() {
  // The executable is two levels below the bundle root, whatever the bundle's name.
  QString const root = QDir::cleanPath(QCoreApplication::applicationDirPath() + "/" + "../..");
  return root.toUtf8().constData();
}

ustring Service::GetRootLarkmoorResourceInstallPath() {
  return GetRootLarkmoorInstallPath() + "/Contents/Resources";
}

void Service::LoadSourceVersion() {
  ustring const path = GetUserLarkmoorAppInstallPath() + "/Contents/Resources" + "/" + "INFO";
  if (!IsFileExist(path, false)) {
    LOG_MSG(LEVEL_INFO, log_component::service(),
            "[INFO] larkmoor-service(%d): source does not exist\n");
    return;
  }
  ReadVersions(path, {{"major_version", &source_major_version},
                      {"minor_version", &source_minor_version},
                      {"build_version", &source_build_version},
                      {"icon_overlay_version", &source_icon_overlay_version}});
  LOG_MSG(LEVEL_INFO, log_component::service(),
          "[INFO] larkmoor-service(%d): source_version = (%s, %s, %s, %s)\n",
          source_major_version.c_str(), source_minor_version.c_str(), source_build_version.c_str(),
          source_icon_overlay_version.c_str());
}

// Unlike the user's file, the bundle's own isn't checked for existence: a bundle without it is
// broken, and its four empty values belong in the log.
void Service::LoadTargetVersion() {
  ReadVersions(GetRootLarkmoorResourceInstallPath() + "/" + "INFO",
               {{"major_version", &target_major_version},
                {"minor_version", &target_minor_version},
                {"build_version", &target_build_version},
                {"icon_overlay_version", &target_icon_overlay_version}});
  LOG_MSG(LEVEL_INFO, log_component::service(),
          "[INFO] larkmoor-service(%d): target_version = (%s, %s, %s, %s)\n",
          target_major_version.c_str(), target_minor_version.c_str(), target_build_version.c_str(),
          target_icon_overlay_version.c_str());
}

int Service::PrepareUserEnv() {
  ustring const app = app_path;
  ustring backup;
  int index = 0;
  if (IsFileExist(app, false)) {
    for (;; ++index) {
      if (index == kBackupNames) {
        LOG_MSG(LEVEL_ERROR, log_component::service(),
                "[ERROR] larkmoor-service(%d): failed to backup app from '%s' -> '%s' at max "
                "retries, exiting\n",
                app.c_str(), backup.c_str());
        return -1;
      }
      backup = GetAppBackupDir(app, index);
      if (FSRename(app, backup, false) == 0) break;
      LOG_MSG(LEVEL_ERROR, log_component::service(),
              "[ERROR] larkmoor-service(%d): failed to backup app from '%s' -> '%s'\n", app.c_str(),
              backup.c_str());
    }
  }

  if (ExtractPackage() != 0) {
    if (backup.empty()) {
      LOG_MSG(LEVEL_ERROR, log_component::service(),
              "[ERROR] larkmoor-service(%d): Failed to extract package, and no old installation to "
              "rollback\n");
      return -1;
    }
    LOG_MSG(LEVEL_ERROR, log_component::service(),
            "[ERROR] larkmoor-service(%d): Failed to extract package, rollback to old "
            "installation\n");
    FSRemove(app, false);
    FSRename(backup, app, false);
    return -1;
  }

  // The removal of the backup must not reach the disk before the new tree does: a power loss would
  // leave neither. The flush also covers a bundle that was just copied to this volume. If it fails,
  // the new tree is no worse, so the upgrade goes on.
  platform::FlushVolume(GetUserLarkmoorInstallPath().c_str_utf8());
  LOG_MSG(LEVEL_INFO, log_component::service(),
          "[INFO] larkmoor-service(%d): user installation is ready, removing backup app\n");
  // Lower numbers are leftovers of crashed runs, which made this one climb.
  for (int j = 0; j <= index; ++j) FSRemove(GetAppBackupDir(app, j), false);
  return 0;
}

int Service::ExtractPackage() {
  ustring const package = GetRootLarkmoorResourceInstallPath() + "/package/larkmoor.lpk";
  ustring const destination = GetUserLarkmoorAppInstallPath();
  if (FSMKDir(destination, true) < 0) {
    LOG_MSG(LEVEL_ERROR, log_component::service(),
            "[ERROR] larkmoor-service(%d): failed to create folder: '%s'\n", destination.c_str());
    return -1;
  }
  LOG_MSG(LEVEL_INFO, log_component::service(),
          "[INFO] larkmoor-service(%d): extract package: '%s' -> '%s'\n", package.c_str(),
          destination.c_str());
  Extractor extractor;
  extractor.package_path = package;
  extractor.dest_path = destination;
  return extractor.Extract();
}

void Service::RemoveAgedFolders() {
  ustring const path = GetUserLarkmoorInstallPath() + "/app";
  LOG_MSG(LEVEL_INFO, log_component::service(),
          "[INFO] larkmoor-service(%d): removing aged app folder %s\n", path.c_str());
  FSRemove(path, false);
}

int Service::FSCopyPath(ustring const& source, ustring const& destination) {
  LOG_MSG(LEVEL_DEBUG, log_component::service(),
          "[DEBUG] larkmoor-service(%d): copy from '%s' to '%s'\n", source.c_str(),
          destination.c_str());
  _FILE_INFO_tag info;
  if (FSStat(source, info, false) < 0) {
    LOG_MSG(LEVEL_ERROR, log_component::service(),
            "[ERROR] larkmoor-service(%d): FSCopyPath: failed to stat source '%s'\n",
            source.c_str());
    return -1;
  }
  if (!info.exists) {
    LOG_MSG(LEVEL_ERROR, log_component::service(),
            "[ERROR] larkmoor-service(%d): FSCopyPath: source path '%s' does not exist\n",
            source.c_str());
    return -1;
  }
  if (info.type == FILE_TYPE_DIRECTORY) return CopyFolder(*this, source, destination);
  FSCopy(source, destination, false);
  return 0;
}
