#include "logger-fixture.h"

#include <cstdarg>
#include <cstring>
#include <filesystem>
#include <regex>

#include "support/logger-probe.h"

namespace fs = std::filesystem;

namespace test {

LoggerTest::LoggerTest() { LoggerProbe::Restart(); }
LoggerTest::~LoggerTest() { LoggerProbe::Restart(); }

int LoggerTest::OpenFile(int rotate_count, std::string const& levels) {
  std::string const level_file = folder_ / "levels";
  WriteFile(level_file, levels);
  return Logger::Initialize(Logger::TYPE_FILE, LogPath().c_str(), level_file.c_str(), rotate_count);
}

std::vector<std::pair<int, std::string>> LoggerTest::Generations() const {
  std::vector<std::pair<int, std::string>> found;
  for (int i = -1; i < 100; ++i) {
    if (fs::is_regular_file(Generation(i))) found.emplace_back(i, ReadFile(Generation(i)));
  }
  return found;
}

std::string WithoutStamps(std::string const& text) {
  static std::regex const stamp("(^|\n)[A-Z][a-z]{2} [0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2} ");
  return std::regex_replace(text, stamp, "$1");
}

void WriteRecordOf(int length, char const* end) {
  std::string const text(static_cast<std::size_t>(length - kStampLength) - std::strlen(end), 'x');
  Logger::LogMsg(Logger::LEVEL_ERROR, log_component::service(), "%s%s", text.c_str(), end);
}

void LogThrough2(int level, char const* format, ...) {
  va_list args;
  va_start(args, format);
  Logger::LogMsg2(static_cast<Logger::Level>(level), log_component::service(), format, args);
  va_end(args);
}

void RotateLocked() {
  Logger::Lock();
  EXPECT_EQ(Logger::Rotate(), 0);
  Logger::Unlock();
}

std::string StandardErrorOf(std::function<void()> const& body) {
  testing::internal::CaptureStderr();
  body();
  return testing::internal::GetCapturedStderr();
}

std::string StandardOutputOf(std::function<void()> const& body) {
  testing::internal::CaptureStdout();
  body();
  return testing::internal::GetCapturedStdout();
}

}  // namespace test
