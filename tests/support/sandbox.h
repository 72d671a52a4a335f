#pragma once

#include <string>
#include <vector>

#include "support/archive-builder.h"
#include "support/files.h"
#include "support/process.h"

namespace test {

/// A throw-away bundle with the built launcher in it, and a throw-away home: everything that one
/// start of the program gets to see and to change.
class Sandbox {
 public:
  /// `launcher` is the program to put into the bundle, `home` the name of the home.
  explicit Sandbox(std::string launcher = LARKMOOR_TEST_LAUNCHER, std::string home = "home");
  ~Sandbox();

  std::string Bundle() const { return folder_ / "Start me.app"; }
  std::string Home() const { return folder_ / home_; }
  /// Where fontconfig writes where it may not mend the system's cache, outside the home.
  std::string Caches() const { return folder_ / "caches"; }
  std::string Runtime() const { return folder_ / "runtime"; }
  std::string UserRoot() const { return Home() + "/.Larkmoor"; }
  std::string App() const { return UserRoot() + "/Larkmoor.app"; }
  std::string Package() const { return Bundle() + "/Contents/Resources/package/larkmoor.lpk"; }
  std::string LogFile() const { return UserRoot() + "/log/launcher.log"; }
  /// The sample client of an installed tree adds a line here at each start: its build number.
  std::string Starts() const { return Home() + "/starts"; }

  /// What an installed tree of this build looks like, as entries of a package.
  static std::vector<Entry> Client(int build);

  /// The same, behind this many empty files.
  static std::vector<Entry> ClientWithFiles(int build, int files);

  /// Puts the version file of this build beside the package.
  void CarryVersion(int build);
  void CarryPackage(std::string const& bytes);
  /// Both of them, sound.
  void Carry(int build);
  /// Sets up a per-user installation as if unpacked earlier.
  void Install(int build);
  /// The level file: everything at 7 unless another text is given.
  void LogEverything();
  void WriteLevelFile(std::string const& text);

  /// How the launcher is to be started: offscreen, in English, in an empty folder.
  Process::Options Start() const;
  /// Starts it, waits for its end, and then for the sample client to have started if one stands.
  Outcome Launch();

  /// Lines of Starts(), once there are `count` of them. Throws at the deadline.
  std::vector<std::string> AwaitStarts(size_t count) const;
  /// The log without time stamps and with 0 for each source line. A record without a line break is
  /// followed by the stamp of the next on the same line: that one stays, as "<stamp>".
  std::vector<std::string> Log() const;
  std::string RawLog() const;
  /// Empties the log, for a test that only wants to see the next run's.
  void ForgetLog();

  TempDir const& folder() const { return folder_; }

 private:
  TempDir folder_;
  std::string home_;
};

/// A log's text as lines, normalised as Sandbox::Log() says.
std::vector<std::string> NormaliseLog(std::string const& text);

}  // namespace test
