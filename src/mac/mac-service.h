#pragma once

#include "service/larkmoor-service.h"

/// The upgrade on a desktop with application bundles. Adds no state to Service. Created on the main
/// thread, used only on the worker thread.
class MacService : public Service {
 public:
  MacService();
  ~MacService() override;

  /// An instance for callers that have none, created on first use and destroyed at exit. The Worker
  /// creates its own.
  static MacService* GetInstace();

  void LoadSourceVerInfo();
  void LoadTargetVerInfo();
  /// Whether the client's executable exists in the user's installation, executable or not.
  bool PerUserBinPathExist();
  /// Unregisters the user's bundle and opens it. Returns 0 if the start was requested, else -1.
  /// Blocks while the registration tool runs, but doesn't wait for the client.
  static int LaunchPerUserBin();

  void StopService() override;
  int HandlePackageUpgrade() override;
  void PostUpgrade() override;
  void PreUpgrade() override;
  /// True if the carried build is newer than the installed one, or the user's executable is
  /// missing. Only build numbers count; PreUpgrade reads them.
  bool IsNeedUpgrade() override;
};
