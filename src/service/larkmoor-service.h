#pragma once

#include "foundation/ustring.h"

/// The steps of an upgrade, and all paths on disk.
///
/// "Root" is the bundle that the user started; it holds the package and is only read. "User" is the
/// installation in the user's home, which is upgraded and started. "Source" is what is installed
/// now, "target" what the started bundle carries.
///
/// One thread at a time may use an object (the worker thread, once it runs); there is no lock. Any
/// thread may call the static functions.
class Service {
 public:
  Service();
  virtual ~Service();
  Service(Service const&) = delete;
  Service& operator=(Service const&) = delete;

  /// Ends the running client, so that its files may be replaced. Blocks for up to five seconds.
  /// Reports nothing, because the upgrade goes on in any case.
  virtual void StopService() = 0;
  /// Stores a timeout in milliseconds. No step has one: the value is never read.
  virtual void SetTimeout(int value);
  /// Stops the client and installs the package. Returns 0 if the new tree is in place, anything
  /// else on failure; PrepareUserEnv says what is then left behind.
  virtual int HandlePackageUpgrade() = 0;
  /// Starts the user's installation, whatever is there.
  virtual void PostUpgrade() = 0;
  /// Reads the two versions that IsNeedUpgrade compares.
  virtual void PreUpgrade() = 0;
  /// Whether the package is to be installed.
  virtual bool IsNeedUpgrade() = 0;
  /// Unpacks the package into the user's application folder, creating it if it is missing. Returns
  /// 0 or -1; after a failure, what was written stays.
  virtual int ExtractPackage();
  /// Fills the source_ (target_) fields from the "INFO" file of the user (root) installation. A
  /// field whose key is absent, or whose file can't be read, keeps its value.
  virtual void LoadSourceVersion();
  virtual void LoadTargetVersion();
  /// Renames the installed tree aside, unpacks the package in its place and rolls back if that
  /// fails. Returns 0 if the new tree is in place, else -1. Blocks on disk. Not atomic: a crash
  /// leaves one of the states listed in docs/upgrade-transaction.md.
  virtual int PrepareUserEnv();

  /// Removes the folder "app" that old versions left, if it exists. Reports no failure.
  void RemoveAgedFolders();
  /// Copies a file, or a folder with everything in it, without times, modes or owners. Returns 0,
  /// or -1 with what was copied so far left behind. A single file that can't be copied counts as
  /// copied.
  int FSCopyPath(ustring const& source, ustring const& destination);

  /// Paths, whether or not anything exists there. The root paths need the application object.
  static ustring GetUserInstallPath();
  static ustring GetUserLarkmoorInstallPath();
  static ustring GetUserLarkmoorAppInstallPath();
  static ustring GetUserLarkmoorDataInstallPath();
  static ustring GetRootLarkmoorInstallPath();
  static ustring GetRootLarkmoorResourceInstallPath();

 protected:
  int timeout;
  ustring app_path;
  ustring target_major_version;
  ustring target_minor_version;
  ustring target_build_version;
  ustring target_icon_overlay_version;
  ustring source_major_version;
  ustring source_minor_version;
  ustring source_build_version;
  ustring source_icon_overlay_version;
};
