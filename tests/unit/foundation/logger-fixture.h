#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "foundation/logger.h"
#include "support/files.h"

// Shared by the tests of the Logger.

namespace test {

inline constexpr int kStampLength = 16;
inline constexpr int kRotateAt = 1048577;

/// Resets the Logger to its state at process start, before and after each test.
class LoggerTest : public ::testing::Test {
 protected:
  LoggerTest();
  ~LoggerTest() override;

  std::string LogPath() const { return folder_ / "test.log"; }
  std::string Generation(int number) const { return LogPath() + "_" + std::to_string(number); }
  std::string Text() const { return ReadFile(LogPath()); }

  /// Initialises the Logger for LogPath() with this level file.
  int OpenFile(int rotate_count = 50, std::string const& levels = "");
  /// The existing generations: number and content.
  std::vector<std::pair<int, std::string>> Generations() const;

  TempDir folder_;
};

/// A log without time stamps.
std::string WithoutStamps(std::string const& text);

/// Logs a record of this many bytes, time stamp included.
void WriteRecordOf(int length, char const* end = "\n");

/// Logs through Logger::LogMsg2 for the service's component.
void LogThrough2(int level, char const* format, ...) __attribute__((format(printf, 2, 3)));

/// Rotates under the lock, as LogMsg does.
void RotateLocked();

/// Runs the body and returns what it writes to the stream.
std::string StandardErrorOf(std::function<void()> const& body);
std::string StandardOutputOf(std::function<void()> const& body);

}  // namespace test
