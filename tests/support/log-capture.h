#pragma once

#include <string>
#include <vector>

#include "support/files.h"
#include "support/level-check.h"

namespace test {

/// Captures the log, with every component at 7, until the end of the scope. The level of each
/// record must match its tag.
class LogCapture {
 public:
  LogCapture();
  ~LogCapture();
  LogCapture(LogCapture const&) = delete;
  LogCapture& operator=(LogCapture const&) = delete;

  /// The log so far, normalised like Sandbox::Log().
  std::vector<std::string> Lines() const;
  /// The same without the lines of the file operations.
  std::vector<std::string> OwnLines() const;

 private:
  LevelCheck levels_;
  TempDir folder_;
};

}  // namespace test
