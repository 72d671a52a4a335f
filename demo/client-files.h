// The files that the sample client reads and writes: its version inside its bundle, and its pid
// file under the user's home.
#pragma once

#include <QString>

/// The bundle that the running program is part of: two folders above the executable's.
QString BundlePath();

/// ".Larkmoor" in the user's home, where the launcher looks for the pid file.
QString UserRoot();

/// The "build_version" of the bundle's INFO; "unknown" where there is none.
QString BuildVersion();

/// Whether a file named "ignore-sigterm" in the bundle's resources or in the user's data folder
/// asks the client to outlive SIGTERM. The launcher starts the client without arguments, so a
/// command-line switch alone couldn't reach it.
bool IsToldToIgnoreTermination();

/// The pid file while the client runs. Readers see the whole file or none.
class PidFile {
 public:
  /// Writes the pid of this process. A failure is told on standard error and is no reason to end.
  PidFile();

  /// Removes the file unless another process has put its own pid there since.
  ~PidFile();

  PidFile(PidFile const&) = delete;
  PidFile& operator=(PidFile const&) = delete;

 private:
  QString const path_;
  QByteArray const content_;
};
