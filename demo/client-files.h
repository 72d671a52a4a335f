// The files of the sample client: the version in its bundle and the pid file in the user's home.
#pragma once

#include <QString>

/// The bundle of the running program: two folders above the executable's.
QString BundlePath();

/// ".Larkmoor" in the user's home, where the launcher expects the pid file.
QString UserRoot();

/// The "build_version" in the bundle's INFO file; "unknown" if there is none.
QString BuildVersion();

/// Whether a file named "ignore-sigterm" in the bundle's resources or the user's data folder tells
/// the client to ignore SIGTERM. The launcher starts the client without arguments, so a
/// command-line option couldn't.
bool IsToldToIgnoreTermination();

/// The pid file, for as long as the client runs. Readers see a complete file or none.
class PidFile {
 public:
  /// Writes this process's pid. A failure is reported on standard error only.
  PidFile();

  /// Removes the file unless another process has written its own pid since.
  ~PidFile();

  PidFile(PidFile const&) = delete;
  PidFile& operator=(PidFile const&) = delete;

 private:
  QString const path_;
  QByteArray const content_;
};
