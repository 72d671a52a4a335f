#include "foundation/logger.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <functional>
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
using test::ReadFile;
using test::RotateLocked;
using test::StandardErrorOf;
using test::StandardOutputOf;
using test::WithoutStamps;
using test::WorkingFolder;
using test::WriteFile;
using test::WriteRecordOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;

namespace {

std::vector<std::string> EntriesHere() {
  std::vector<std::string> names;
  for (auto const& entry : fs::directory_iterator(".")) names.push_back(entry.path().filename());
  std::sort(names.begin(), names.end());
  return names;
}

/// Values that uninitialised memory may hold.
struct Found {
  int size;
  std::uint64_t count;
};
constexpr Found kFound[] = {{0, 0}, {kRotateAt - 1, 1}, {INT_MAX, ~0ULL}, {-7, 2}};

void LeaveInMemory(Found const& found) {
  *LoggerProbe::Size() = found.size;
  *LoggerProbe::SharedCount() = found.count;
}

}  // namespace

TEST_F(LoggerTest, InitializeSeedsTheDefaultComponent) {
  ASSERT_EQ(OpenFile(), 0);
  EXPECT_THAT(LoggerProbe::Levels(), ElementsAre(testing::Pair(ustring("default_component"), 4)));
}

TEST_F(LoggerTest, InitializeIgnoresALevelFileWithASyntaxError) {
  ASSERT_EQ(OpenFile(50, "service_debug=7\noops\n"), 0);
  EXPECT_EQ(LoggerProbe::Levels().size(), 1U);
}

TEST_F(LoggerTest, InitializeIgnoresAMissingLevelFile) {
  EXPECT_EQ(Logger::Initialize(Logger::TYPE_STDERR, "", (folder_ / "none").c_str(), 1), 0);
  EXPECT_EQ(Logger::Initialize(Logger::TYPE_STDERR, "", "", 1), 0);
}

TEST_F(LoggerTest, InitializeKeepsEarlierThresholds) {
  ASSERT_EQ(OpenFile(50, "service_debug=7\ndefault_component=5\n"), 0);
  ASSERT_EQ(OpenFile(50, "file_op_debug=6\n"), 0);
  EXPECT_EQ(LoggerProbe::Levels()["service_debug"], 7);
  EXPECT_EQ(LoggerProbe::Levels()["file_op_debug"], 6);
  EXPECT_EQ(LoggerProbe::Levels()["default_component"], 4);
}

TEST_F(LoggerTest, InitializeFailsForAFileWithoutPath) {
  EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, "", "", 7), -1);
  EXPECT_EQ(LoggerProbe::Type(), Logger::TYPE_FILE);
  EXPECT_EQ(LoggerProbe::Stream(), stderr);
  EXPECT_EQ(LoggerProbe::RotateCount(), 50);
  EXPECT_TRUE(LoggerProbe::IsInitialized());
}

TEST_F(LoggerTest, InitializeFailsForAFileThatCannotBeOpenedAndKeepsTheStream) {
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_STDOUT, "", "", 50), 0);
  EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, (folder_ / "none/log").c_str(), "", 7), -1);
  EXPECT_EQ(LoggerProbe::Type(), Logger::TYPE_FILE);
  EXPECT_EQ(LoggerProbe::Stream(), stdout);
  EXPECT_EQ(LoggerProbe::Path(), "");
  EXPECT_EQ(LoggerProbe::RotateCount(), 50);
}

TEST_F(LoggerTest, RecordsGoToStandardErrorIfTheFileCannotBeOpened) {
  fs::create_directory(folder_ / "here");
  WorkingFolder const here(folder_ / "here");
  std::vector<std::string> const names = {"_0", "_1", "_48", "_49"};
  for (std::string const& name : names) WriteFile(name, name);
  for (Found const& found : kFound) {
    LoggerProbe::Restart();
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, folder_.path().c_str(), "", 50), -1);
    LeaveInMemory(found);
    std::string const text = StandardErrorOf([] {
      LogThrough2(3, "%s\n", "first");
      for (int i = 0; i < 3; ++i) WriteRecordOf(kRotateAt);
      LogThrough2(7, "%s\n", "filtered");
      LogThrough2(4, "%s\n", "last");
    });
    EXPECT_EQ(text.size(), 3U * kRotateAt + 2U * kStampLength + std::strlen("first\nlast\n"));
    EXPECT_THAT(text.substr(0, kStampLength + 6),
                MatchesRegex("[A-Z][a-z][a-z] [0-9][0-9] [0-9:]+ first\n"));
    EXPECT_THAT(text, testing::EndsWith(" last\n"));
    EXPECT_NE(fcntl(STDERR_FILENO, F_GETFD), -1);
    EXPECT_EQ(LoggerProbe::Stream(), stderr);
    EXPECT_EQ(LoggerProbe::Type(), Logger::TYPE_FILE);
    EXPECT_EQ(LoggerProbe::Path(), "");
    EXPECT_EQ(EntriesHere(), names);
    for (std::string const& name : names) EXPECT_EQ(ReadFile(name), name);
  }
}

TEST_F(LoggerTest, FileOfAnUnknownTypeThatCannotBeOpenedLeavesStandardErrorOpen) {
  fs::create_directory(folder_ / "here");
  WorkingFolder const here(folder_ / "here");
  for (Found const& found : kFound) {
    LoggerProbe::Restart();
    ASSERT_EQ(Logger::Initialize(static_cast<Logger::Type>(0), "", "", 50), -1);
    LeaveInMemory(found);
    EXPECT_EQ(StandardErrorOf([] {
                for (char const* text : {"one", "two"}) LogThrough2(3, "%s\n", text);
              }),
              "one\ntwo\n");
    EXPECT_EQ(LoggerProbe::Stream(), stderr);
  }
}

TEST_F(LoggerTest, SecondFileThatCannotBeOpenedLeavesTheFirstInUse) {
  for (Found const& found : kFound) {
    LoggerProbe::Restart();
    fs::remove(LogPath());
    fs::remove(Generation(0));
    ASSERT_EQ(OpenFile(3), 0);
    RotateLocked();
    LogThrough2(3, "%s\n", "before");
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, folder_.path().c_str(), "", 50), -1);
    LeaveInMemory(found);
    EXPECT_EQ(LoggerProbe::Path(), LogPath());
    EXPECT_EQ(LoggerProbe::RotateCount(), 3);
    FILE* const stream = LoggerProbe::Stream();
    LogThrough2(3, "%s\n", "after");
    EXPECT_EQ(LoggerProbe::Stream(), stream);
    EXPECT_EQ(WithoutStamps(Text()), "before\nafter\n");
    // Rotates as if the failed Initialize hadn't happened.
    WriteRecordOf(kRotateAt - 1 - (kStampLength + 6));
    EXPECT_EQ(*LoggerProbe::Size(), kRotateAt - 1);
    WriteRecordOf(20);
    EXPECT_EQ(fs::file_size(Generation(0)), kRotateAt + 19U + kStampLength + 7U);
    EXPECT_EQ(*LoggerProbe::SharedCount(), LoggerProbe::PrivateCount());
    LogThrough2(3, "%s\n", "last");
    EXPECT_EQ(WithoutStamps(Text()), "last\n");
  }
}

TEST_F(LoggerTest, FirstFileCanBeReloadedAndRotatedIfTheSecondCannotBeOpened) {
  for (Found const& found : kFound) {
    LoggerProbe::Restart();
    fs::remove(LogPath());
    ASSERT_EQ(OpenFile(), 0);
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, folder_.path().c_str(), "", 50), -1);
    LeaveInMemory(found);
    Logger::ReloadLogFile();
    EXPECT_EQ(*LoggerProbe::Size(), 0);
    LogThrough2(3, "%s\n", "reloaded");
    EXPECT_EQ(WithoutStamps(Text()), "reloaded\n");

    ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, folder_.path().c_str(), "", 50), -1);
    LeaveInMemory(found);
    RotateLocked();
    EXPECT_EQ(*LoggerProbe::SharedCount(), LoggerProbe::PrivateCount());
    FILE* const stream = LoggerProbe::Stream();
    LogThrough2(3, "%s\n", "rotated");
    EXPECT_EQ(LoggerProbe::Stream(), stream);
    EXPECT_EQ(WithoutStamps(ReadFile(Generation(0))), "reloaded\n");
    EXPECT_EQ(WithoutStamps(Text()), "rotated\n");
  }
}

TEST_F(LoggerTest, ReloadAndRotationWithoutALogFileSilenceTheLog) {
  fs::create_directory(folder_ / "here");
  WorkingFolder const here(folder_ / "here");
  auto const expect_silence = [&](std::function<void()> const& act) {
    pid_t const child = fork();
    if (child == 0) {  // in a child, because this closes standard error
      LoggerProbe::Restart();
      Logger::Initialize(Logger::TYPE_FILE, "", "", 50);
      act();
      bool const is_silent = LoggerProbe::Stream() == nullptr;
      LogThrough2(3, "%s\n", "lost");
      _exit(is_silent && LoggerProbe::Stream() == nullptr ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
  };
  expect_silence([] { Logger::ReloadLogFile(); });
  expect_silence([] {
    Logger::Lock();
    if (Logger::Rotate() != -1) _exit(2);
    Logger::Unlock();
  });
  EXPECT_THAT(EntriesHere(), IsEmpty());
}

TEST_F(LoggerTest, FileThatCannotBeOpenedAfterSyslogLeavesTheLogSilent) {
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_SYSLOG, "", "", 50), 0);
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, "", "", 50), -1);
  EXPECT_EQ(LoggerProbe::Stream(), nullptr);
  EXPECT_EQ(StandardErrorOf([] { WriteRecordOf(100); }), "");
}

TEST_F(LoggerTest, InitializeAfterAFailedOneLogsToTheFile) {
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, "", "", 50), -1);
  EXPECT_NE(StandardErrorOf([] { WriteRecordOf(100); }), "");
  ASSERT_EQ(OpenFile(), 0);
  EXPECT_EQ(StandardErrorOf([] { WriteRecordOf(kRotateAt); }), "");
  EXPECT_EQ(fs::file_size(Generation(0)), kRotateAt + 0U);
}

TEST_F(LoggerTest, FailedInitializeDoesNotEndTheSilenceAfterDestroy) {
  Logger::Destroy();
  EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, "", "", 7), -1);
  EXPECT_FALSE(LoggerProbe::IsInitialized());
  EXPECT_EQ(Logger::Initialize(Logger::TYPE_STDERR, "", "", 7), 0);
  EXPECT_TRUE(LoggerProbe::IsInitialized());
}

TEST_F(LoggerTest, InitializeCreatesLockAndSharedDataAgain) {
  ASSERT_EQ(OpenFile(9), 0);
  EXPECT_NE(LoggerProbe::Lock(), nullptr);
  EXPECT_EQ(*LoggerProbe::Size(), 0);
  EXPECT_EQ(*LoggerProbe::SharedCount(), 0U);
  EXPECT_EQ(LoggerProbe::PrivateCount(), 0U);
  EXPECT_EQ(LoggerProbe::Path(), LogPath());
  EXPECT_EQ(LoggerProbe::RotateCount(), 9);
  RotateLocked();
  ASSERT_EQ(OpenFile(9), 0);
  EXPECT_EQ(*LoggerProbe::SharedCount(), 0U);
  EXPECT_EQ(LoggerProbe::PrivateCount(), 0U);
}

TEST_F(LoggerTest, AStandardStreamForgetsThePathOfAnEarlierFile) {
  ASSERT_EQ(OpenFile(), 0);
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_STDERR, "", "", 50), 0);
  EXPECT_EQ(LoggerProbe::Path(), "");
}

TEST_F(LoggerTest, DestroyEndsLogging) {
  ASSERT_EQ(OpenFile(7), 0);
  LogThrough2(3, "%s\n", "last");
  Logger::Destroy();
  std::string out;
  std::string const err = StandardErrorOf([&] {
    out = StandardOutputOf([] {
      LOG_MSG(LEVEL_ERROR, log_component::service(), "%d\n");
      LogThrough2(3, "%s\n", "later");
    });
  });
  EXPECT_EQ(out, "");
  EXPECT_EQ(err, "");
  EXPECT_EQ(WithoutStamps(Text()), "last\n");
  EXPECT_EQ(LoggerProbe::Lock(), nullptr);
}

TEST_F(LoggerTest, DestroyOfALogFileSetsStandardOutputAndDepth32) {
  ASSERT_EQ(OpenFile(7), 0);
  Logger::Destroy();
  EXPECT_FALSE(LoggerProbe::IsInitialized());
  EXPECT_EQ(LoggerProbe::Type(), Logger::TYPE_STDERR);
  EXPECT_EQ(LoggerProbe::Stream(), stdout);
  EXPECT_EQ(LoggerProbe::Path(), "");
  EXPECT_EQ(LoggerProbe::RotateCount(), 32);
  EXPECT_EQ(LoggerProbe::Size(), nullptr);
  EXPECT_EQ(LoggerProbe::SharedCount(), nullptr);
}

TEST_F(LoggerTest, DestroyOfAStandardStreamLeavesItAsItIs) {
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_STDERR, "", "", 7), 0);
  Logger::Destroy();
  EXPECT_EQ(LoggerProbe::Type(), Logger::TYPE_STDERR);
  EXPECT_EQ(LoggerProbe::Stream(), stderr);
  EXPECT_EQ(LoggerProbe::RotateCount(), 50);
}

TEST_F(LoggerTest, DestroyAfterAFailedRotationIsHarmless) {
  WriteFile(fs::path(Generation(0)) / "file", "");
  ASSERT_EQ(OpenFile(1), 0);
  WriteRecordOf(kRotateAt);
  Logger::Destroy();
  EXPECT_EQ(LoggerProbe::Stream(), stdout);
}

TEST_F(LoggerTest, InitializeAfterDestroyLogsAgain) {
  ASSERT_EQ(OpenFile(), 0);
  Logger::Destroy();
  ASSERT_EQ(OpenFile(), 0);
  LogThrough2(3, "%s\n", "again");
  EXPECT_EQ(WithoutStamps(Text()), "again\n");
}
