#pragma once

#include <string>
#include <vector>

#include "support/archive-builder.h"
#include "support/files.h"
#include "support/process.h"

namespace test {

/// A temporary bundle with the built launcher, and a temporary home: everything that a start of the
/// launcher reads and changes.
class Sandbox {
 public:
  /// `launcher` is the program for the bundle, `home` the name of the home.
  explicit Sandbox(std::string launcher = LARKMOOR_TEST_LAUNCHER, std::string home = "home");
  ~Sandbox();

  std::string Bundle() const { return folder_ / "Start me.app"; }
  std::string Home() const { return folder_ / home_; }
  /// Where fontconfig writes if it can't update the system's cache; outside the home.
  std::string Caches() const { return folder_ / "caches"; }
  std::string Runtime() const { return folder_ / "runtime"; }
  std::string UserRoot() const { return Home() + "/.Larkmoor"; }
  std::string App() const { return UserRoot() + "/Larkmoor.app"; }
  std::string Package() const { return Bundle() + "/Contents/Resources/package/larkmoor.lpk"; }
  std::string LogFile() const { return UserRoot() + "/log/launcher.log"; }
  /// The sample client of an installation adds a line here at each start: its build number.
  std::string Starts() const { return Home() + "/starts"; }

  /// The installed tree of a build, as entries of a package.
  static std::vector<Entry> Client(int build);

  /// The same after this many empty files.
  static std::vector<Entry> ClientWithFiles(int build, int files);

  /// Writes the INFO file of this build next to the package.
  void CarryVersion(int build);
  void CarryPackage(std::string const& bytes);
  /// Both of them, valid.
  void Carry(int build);
  /// Creates an installation as if unpacked earlier.
  void Install(int build);
  /// Writes the level file: everything at 7, unless given otherwise.
  void LogEverything();
  void WriteLevelFile(std::string const& text);

  /// How to start the launcher: offscreen, in English, in an empty folder.
  Process::Options Start() const;
  /// Starts it, waits until it ends and, if a client is installed, until the client has started.
  Outcome Launch();

  /// The lines of Starts(), once there are `count` of them. Throws at the deadline.
  std::vector<std::string> AwaitStarts(size_t count) const;
  /// The log without time stamps and with 0 for each line number. After a record without a line
  /// break, the next record's time stamp stays, as "<stamp>".
  std::vector<std::string> Log() const;
  std::string RawLog() const;
  /// Empties the log before the next run.
  void ForgetLog();

  TempDir const& folder() const { return folder_; }

 private:
  TempDir folder_;
  std::string home_;
};

/// The lines of a log, normalised like Sandbox::Log().
std::vector<std::string> NormaliseLog(std::string const& text);

}  // namespace test
