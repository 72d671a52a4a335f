#include "support/level-check.h"

#include <gtest/gtest.h>

#include <atomic>
#include <string>

#include "foundation/logger.h"

namespace {

std::atomic<int> checks_alive{0};

void ExpectLevelOfTag(Logger::Level level, std::string const& format) {
  static constexpr struct {
    char const* tag;
    int number;
  } kTags[] = {{"[ERROR] ", 3}, {"[WARNING] ", 4}, {"[NOTE] ", 5}, {"[INFO] ", 6}, {"[DEBUG] ", 7}};
  for (auto const& [tag, number] : kTags) {
    if (format.rfind(tag, 0) != 0) continue;
    EXPECT_EQ(level, number) << "the level of: " << format;
  }
}

}  // namespace

namespace test {

LevelCheck::LevelCheck() { ++checks_alive; }
LevelCheck::~LevelCheck() { --checks_alive; }

}  // namespace test

// The linker (--wrap) redirects calls of Logger::LogMsg here.
extern "C" void __wrap__ZN6Logger6LogMsgENS_5LevelERK7ustringPKcz(Logger::Level level,
                                                                  ustring const& component,
                                                                  char const* format, ...)
    __attribute__((format(printf, 3, 4)));
extern "C" void __wrap__ZN6Logger6LogMsgENS_5LevelERK7ustringPKcz(Logger::Level level,
                                                                  ustring const& component,
                                                                  char const* format, ...) {
  if (checks_alive != 0) ExpectLevelOfTag(level, format);
  va_list args;
  va_start(args, format);
  Logger::LogMsg2(level, component, format, args);
  va_end(args);
}
