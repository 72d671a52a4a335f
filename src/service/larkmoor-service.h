#pragma once

#include "foundation/ustring.h"

/// The steps of an upgrade, and where everything lives on disk.
///
/// "Root" is the bundle that the user started; it carries the package and is only read. "User" is
/// the per-user installation under the home directory; it is what gets upgraded and launched.
/// "Source" is what is installed for the user now, "target" what the started bundle carries.
///
/// An object belongs to one thread at a time (the worker thread, once the run has begun) and holds
/// no lock. The static path operations share nothing and may be called from any thread.
class Service {
 public:
  Service();
  virtual ~Service();
  Service(Service const&) = delete;
  Service& operator=(Service const&) = delete;

  /// Ends the running sync client, so that its files may be replaced. Blocks for up to five
  /// seconds; reports nothing, because the upgrade goes on whatever came of it.
  virtual void StopService() = 0;
  /// Stores a time limit in milliseconds. No step has one: the value is kept, never read.
  virtual void SetTimeout(int value);
  /// Stops the sync client and installs the carried package. 0 when the new tree stands, anything
  /// else on failure; see PrepareUserEnv for what is left behind.
  virtual int HandlePackageUpgrade() = 0;
  /// Starts the per-user installation, whatever tree stands there.
  virtual void PostUpgrade() = 0;
  /// Reads the two versions that IsNeedUpgrade compares.
  virtual void PreUpgrade() = 0;
  /// Whether the carried package is to be installed.
  virtual bool IsNeedUpgrade() = 0;
  /// Unpacks the carried package into the user application folder, which is made when it is
  /// missing. 0 or -1; after a failure, what was written so far stays.
  virtual int ExtractPackage();
  /// Fills the source_ (target_) fields from the "INFO" file of the user (root) installation. A
  /// field whose key is absent, or whose file can't be read, keeps its value.
  virtual void LoadSourceVersion();
  virtual void LoadTargetVersion();
  /// Moves the installed tree aside, unpacks the carried package in its place and puts the old tree
  /// back if that fails. Returns 0 when the new tree stands, -1 otherwise. Blocks on disk. Not
  /// atomic: a crash leaves one of the states listed in docs/upgrade-transaction.md.
  virtual int PrepareUserEnv();

  /// Removes the folder "app" of old installations, if there is one. Never fails visibly.
  void RemoveAgedFolders();
  /// Copies a file, or a folder with everything in it, without times, modes or owners. 0, or -1
  /// with what was copied so far left behind. A single file that can't be copied counts as copied.
  int FSCopyPath(ustring const& source, ustring const& destination);

  /// All paths are plain text: nothing says that something exists there. The root family needs the
  /// application object.
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
