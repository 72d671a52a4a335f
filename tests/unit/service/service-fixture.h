#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "localisation/str-table.h"
#include "service/larkmoor-service.h"
#include "support/archive-builder.h"
#include "support/files.h"
#include "support/log-capture.h"
#include "support/volume-flushes.h"

namespace test {

/// A Service independent of the platform, whose unpacking can be replaced.
class PlainService : public Service {
 public:
  PlainService() { app_path = GetUserLarkmoorAppInstallPath(); }

  void StopService() override {}
  int HandlePackageUpgrade() override { return PrepareUserEnv(); }
  void PostUpgrade() override {}
  void PreUpgrade() override {}
  bool IsNeedUpgrade() override { return true; }
  int ExtractPackage() override { return unpack ? unpack() : Service::ExtractPackage(); }

  std::function<int()> unpack;

  using Service::app_path;
  using Service::source_build_version;
  using Service::source_icon_overlay_version;
  using Service::source_major_version;
  using Service::source_minor_version;
  using Service::target_build_version;
  using Service::target_icon_overlay_version;
  using Service::target_major_version;
  using Service::target_minor_version;
};

/// A temporary home, set in the environment on construction.
class Home : public TempDir {
 public:
  Home() { setenv("HOME", path().c_str(), 1); }
};

class ServiceTest : public testing::Test {
 protected:
  ServiceTest() {
    StrTable::InitStrTable();
    std::filesystem::remove_all(Resources());
  }
  ~ServiceTest() override { std::filesystem::remove_all(Resources()); }

  std::string Root() const { return Service::GetRootLarkmoorInstallPath().c_str(); }
  std::string Resources() const { return Root() + "/Contents/Resources"; }
  std::string UserRoot() const { return home / ".Larkmoor"; }
  std::string App() const { return UserRoot() + "/Larkmoor.app"; }
  std::string Backup(int index) const {
    return App() + "_tmp" + (index == 0 ? "" : std::to_string(index));
  }
  std::string UserInfo() const { return App() + "/Contents/Resources/INFO"; }

  /// The log line of a backup that failed.
  std::string RefusedBackup(int index, std::string const& end = "") const {
    return "[ERROR] larkmoor-service(0): failed to backup app from '" + App() + "' -> '" +
           Backup(index) + "'" + end;
  }

  /// Makes the path of the user's home lead through a symlink. The other functions' paths don't.
  void MoveHomeBehindSymlink() {
    std::filesystem::create_directory_symlink(".", home / "link");
    setenv("HOME", (home / "link").c_str(), 1);
    service.app_path = Service::GetUserLarkmoorAppInstallPath();
  }

  void CarryPackage(std::vector<Entry> const& entries) {
    WriteFile(Resources() + "/package/larkmoor.lpk", MakeArchive(entries));
  }

  Home home;
  LogCapture log;
  VolumeFlushes flushes;
  PlainService service;
};

}  // namespace test
