#pragma once

#include <string>
#include <vector>

#include "support/files.h"
#include "support/level-check.h"

namespace test {

/// Sends the log, with every component at 7, to a file of its own for as long as it lives. Each
/// record has to be logged with the level of its tag.
class LogCapture {
 public:
  LogCapture();
  ~LogCapture();
  LogCapture(LogCapture const&) = delete;
  LogCapture& operator=(LogCapture const&) = delete;

  /// What was logged so far, normalised as Sandbox::Log() says.
  std::vector<std::string> Lines() const;
  /// The same without the lines of the file operations, which accompany everything.
  std::vector<std::string> OwnLines() const;

 private:
  LevelCheck levels_;
  TempDir folder_;
};

}  // namespace test
