#include "foundation/logger.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <syslog.h>

#include <cstdarg>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "logger-fixture.h"
#include "support/files.h"
#include "support/logger-probe.h"

namespace fs = std::filesystem;
using test::kRotateAt;
using test::kStampLength;
using test::LoggerTest;
using test::LogThrough2;
using test::RotateLocked;
using test::StandardErrorOf;
using test::StandardOutputOf;
using test::WithoutStamps;
using test::WriteFile;
using test::WriteRecordOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

/// The records that syslog received.
std::vector<std::string> syslog_records;

}  // namespace

// Replaces the C library's: the program's own definition comes first.
extern "C" void vsyslog(int priority, char const* format, va_list args)
    __attribute__((format(printf, 2, 0)));
extern "C" void vsyslog(int priority, char const* format, va_list args) {
  char text[1000];
  std::vsnprintf(text, sizeof(text), format, args);
  syslog_records.push_back(std::to_string(priority) + " " + text);
}

TEST_F(LoggerTest, StandardOutputGetsStampedRecords) {
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_STDOUT, LogPath().c_str(), "", 7), 0);
  EXPECT_EQ(*LoggerProbe::Size(), -1);
  EXPECT_EQ(LoggerProbe::Path(), "");
  EXPECT_EQ(LoggerProbe::RotateCount(), 50);
  std::string const text = StandardOutputOf([] { WriteRecordOf(kStampLength + 2); });
  EXPECT_EQ(text.size(), kStampLength + 2U);
  EXPECT_EQ(WithoutStamps(text), "x\n");
  EXPECT_FALSE(fs::exists(LogPath()));
  EXPECT_EQ(*LoggerProbe::Size(), -1);
}

TEST_F(LoggerTest, StandardErrorGetsStampedRecords) {
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_STDERR, LogPath().c_str(), "", 7), 0);
  EXPECT_EQ(*LoggerProbe::Size(), -1);
  EXPECT_EQ(WithoutStamps(StandardErrorOf([] { WriteRecordOf(kStampLength + 2); })), "x\n");
}

TEST_F(LoggerTest, SyslogGetsAllLevelsAsErrorsWithoutStamp) {
  syslog_records.clear();
  std::string const levels = folder_ / "levels";
  WriteFile(levels, "service_debug=7\n");
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_SYSLOG, LogPath().c_str(), levels.c_str(), 7), 0);
  EXPECT_EQ(LoggerProbe::Stream(), nullptr);
  LogThrough2(3, "e %s\n", "a");
  LogThrough2(7, "d %s\n", "b");
  EXPECT_THAT(syslog_records, ElementsAre("3 e a\n", "3 d b\n"));
}

TEST_F(LoggerTest, SyslogCountsNoSizeAndNeverRotates) {
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_SYSLOG, LogPath().c_str(), "", 7), 0);
  for (int i = 0; i < 3; ++i) WriteRecordOf(kRotateAt);
  EXPECT_EQ(*LoggerProbe::Size(), -1);
  EXPECT_EQ(*LoggerProbe::SharedCount(), 0U);
}

TEST_F(LoggerTest, UnknownTypeOpensTheFileAndWritesUnstampedToStandardError) {
  auto const type = static_cast<Logger::Type>(9);
  ASSERT_EQ(Logger::Initialize(type, LogPath().c_str(), "", 7), 0);
  std::string const text = StandardErrorOf([] {
    LogThrough2(3, "%s\n", "plain");
    for (int i = 0; i < 2; ++i) WriteRecordOf(kRotateAt);
  });
  EXPECT_EQ(text.substr(0, 6), "plain\n");
  EXPECT_EQ(Text(), "");
  EXPECT_THAT(Generations(), IsEmpty());
  EXPECT_EQ(Logger::Initialize(type, "", "", 7), -1);
}

TEST_F(LoggerTest, AppendsToAnExistingFile) {
  WriteFile(LogPath(), "former\n");
  ASSERT_EQ(OpenFile(), 0);
  LogThrough2(3, "%s\n", "new");
  EXPECT_EQ(WithoutStamps(Text()), "former\nnew\n");
}

TEST_F(LoggerTest, FileIsClosedOnExec) {
  auto const is_closed_on_exec = [] {
    return (fcntl(fileno(LoggerProbe::Stream()), F_GETFD) & FD_CLOEXEC) != 0;
  };
  ASSERT_EQ(OpenFile(), 0);
  EXPECT_TRUE(is_closed_on_exec());
  RotateLocked();
  EXPECT_TRUE(is_closed_on_exec());
  Logger::ReloadLogFile();
  EXPECT_TRUE(is_closed_on_exec());
}
