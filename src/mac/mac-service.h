#pragma once

#include "service/larkmoor-service.h"

/// The upgrade on a desktop with application bundles. Adds no state to Service; made on the main
/// thread, used on the worker thread alone.
class MacService : public Service {
 public:
  MacService();
  ~MacService() override;

  /// One object for callers that have none at hand, made at first use and destroyed at exit. The
  /// Worker makes its own.
  static MacService* GetInstace();

  void LoadSourceVerInfo();
  void LoadTargetVerInfo();
  /// Whether anything stands where the user's sync client is started from, executable or not.
  bool PerUserBinPathExist();
  /// Unregisters the per-user bundle and opens it. 0 when the start was requested, -1 otherwise.
  /// Blocks while the registration tool runs; does not wait for the client.
  static int LaunchPerUserBin();

  void StopService() override;
  int HandlePackageUpgrade() override;
  void PostUpgrade() override;
  void PreUpgrade() override;
  /// True when the carried build is newer than the installed one, or when the user's executable is
  /// missing. Only the build numbers count, and PreUpgrade reads them.
  bool IsNeedUpgrade() override;
};
