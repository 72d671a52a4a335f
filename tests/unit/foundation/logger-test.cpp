#include "foundation/logger.h"

#include <gmock/gmock.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdarg>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <future>
#include <map>
#include <mutex>
#include <regex>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "logger-fixture.h"
#include "support/files.h"
#include "support/logger-probe.h"
#include "support/process.h"

namespace fs = std::filesystem;
using test::kStampLength;
using test::LoggerTest;
using test::LogThrough2;
using test::ReadFile;
using test::StandardErrorOf;
using test::StandardOutputOf;
using test::WithoutStamps;
using test::WriteFile;
using ::testing::MatchesRegex;

namespace {

/// The state of the Logger before main, as seen by an object that may be constructed before it.
struct AtProcessStart {
  AtProcessStart()
      : type(LoggerProbe::Type()),
        rotate_count(LoggerProbe::RotateCount()),
        file_lock(LoggerProbe::FileLock()),
        is_initialized(LoggerProbe::IsInitialized()),
        level_count(LoggerProbe::Levels().size()),
        stream(LoggerProbe::Stream()),
        size(LoggerProbe::Size()),
        path(LoggerProbe::Path()),
        lock(LoggerProbe::Lock()),
        is_process_safe(LoggerProbe::IsProcessSafe()),
        shared_count(LoggerProbe::SharedCount()),
        private_count(LoggerProbe::PrivateCount()) {
    int ends[2];
    if (pipe(ends) != 0) return;
    int const err = dup(STDERR_FILENO);
    dup2(ends[1], STDERR_FILENO);
    LOG_MSG(LEVEL_ERROR, log_component::file_op(), "[ERROR] start(%d): %s\n", "before main");
    dup2(err, STDERR_FILENO);
    close(err);
    close(ends[1]);
    char text[200] = {};
    if (read(ends[0], text, sizeof(text) - 1) > 0) record = text;
    close(ends[0]);
  }

  int type;
  int rotate_count;
  int file_lock;
  bool is_initialized;
  std::size_t level_count;
  FILE* stream;
  int* size;
  std::string path;
  std::mutex* lock;
  bool is_process_safe;
  std::uint64_t* shared_count;
  std::uint64_t private_count;
  std::string record;
};

AtProcessStart const at_process_start;

void LogThroughC(int level, char* component, char const* format, ...)
    __attribute__((format(printf, 3, 4)));
void LogThroughC(int level, char* component, char const* format, ...) {
  va_list args;
  va_start(args, format);
  LogMSG_c(level, component, format, args);
  va_end(args);
}

}  // namespace

TEST_F(LoggerTest, HasItsInitialValuesBeforeMain) {
  EXPECT_EQ(at_process_start.type, 2);
  EXPECT_EQ(at_process_start.rotate_count, 50);
  EXPECT_EQ(at_process_start.file_lock, -1);
  EXPECT_TRUE(at_process_start.is_initialized);
  EXPECT_EQ(at_process_start.level_count, 0U);
  EXPECT_EQ(at_process_start.stream, stderr);
  EXPECT_EQ(at_process_start.size, nullptr);
  EXPECT_EQ(at_process_start.path, "");
  EXPECT_EQ(at_process_start.lock, nullptr);
  EXPECT_FALSE(at_process_start.is_process_safe);
  EXPECT_EQ(at_process_start.shared_count, nullptr);
  EXPECT_EQ(at_process_start.private_count, 0U);
}

TEST_F(LoggerTest, TypesHaveTheirNumbers) {
  EXPECT_EQ(Logger::TYPE_SYSLOG, 1);
  EXPECT_EQ(Logger::TYPE_STDOUT, 2);
  EXPECT_EQ(Logger::TYPE_STDERR, 3);
  EXPECT_EQ(Logger::TYPE_FILE, 4);
}

TEST_F(LoggerTest, WritesARecordBeforeMain) {
  EXPECT_THAT(at_process_start.record,
              MatchesRegex("[A-Z][a-z]+ [0-9]+ [0-9:]+ .ERROR. start.[0-9]+.: before main\n"));
}

/// Runs a program that logs from its first constructor to its last destructor.
class LogOutsideMain : public LoggerTest {
 protected:
  std::string ErrorOutput(std::map<std::string, std::string> environment = {}) {
    WriteFile(folder_ / "levels", "service_debug=7\n");
    environment["LARKMOOR_TEST_LOG"] = LogPath();
    environment["LARKMOOR_TEST_LEVELS"] = folder_ / "levels";
    test::Process::Options options;
    options.arguments = {LARKMOOR_TEST_LOG_OUTSIDE_MAIN};
    options.environment = environment;
    test::Outcome const outcome = test::Run(options);
    EXPECT_EQ(outcome.status, 0);
    return WithoutStamps(outcome.err);
  }
  /// The rotated generation without its filler.
  std::string Rotated() const {
    std::string const text = ReadFile(Generation(0));
    return WithoutStamps(text.substr(0, text.find("xx") - kStampLength));
  }
};

TEST_F(LogOutsideMain, RecordsBeforeInitializeGoToStandardError) {
  EXPECT_EQ(ErrorOutput(), "E first constructor\nE object made\n");
}

TEST_F(LogOutsideMain, DestructorsLogWithLevelsAndPath) {
  ErrorOutput();
  EXPECT_EQ(Rotated(),
            "E main\nD main\nE object destroyed\nD object destroyed\n"
            "E last destructor\nD last destructor\n");
  EXPECT_EQ(WithoutStamps(Text()), "E after the rotation\nD after the rotation\n");
}

TEST_F(LogOutsideMain, RotationByTheFirstConstructorSilencesTheLogUntilInitialize) {
  EXPECT_EQ(ErrorOutput({{"LARKMOOR_TEST_ROTATE_FIRST", "1"}}), "");
  EXPECT_EQ(Rotated(),
            "E main\nD main\nE object destroyed\nD object destroyed\n"
            "E last destructor\nD last destructor\n");
}

TEST_F(LogOutsideMain, LogOpenedByTheFirstConstructorStaysOpen) {
  EXPECT_EQ(ErrorOutput({{"LARKMOOR_TEST_LOG_FROM_THE_BEGINNING", "1"}}), "");
  EXPECT_EQ(Rotated(),
            "E first constructor\nD first constructor\nE object made\nD object made\n"
            "E main\nD main\nE object destroyed\nD object destroyed\n"
            "E last destructor\nD last destructor\n");
}

TEST_F(LoggerTest, BeforeInitializeWritesStampedRecordsToStandardError) {
  std::string out;
  std::string const text = StandardErrorOf([&] {
    out = StandardOutputOf(
        [] { LOG_MSG(LEVEL_ERROR, log_component::launcher(), "[ERROR] main(%d): %s\n", "early"); });
  });
  EXPECT_THAT(text, MatchesRegex("[A-Z][a-z][a-z] [0-9][0-9] [0-9][0-9]:[0-9][0-9]:[0-9][0-9] "
                                 ".ERROR. main.[0-9]+.: early\n"));
  EXPECT_EQ(out, "");
}

TEST_F(LoggerTest, BeforeInitializeDropsRecordsBelowWarning) {
  std::string const text = StandardErrorOf([] {
    LOG_MSG(LEVEL_WARNING, log_component::launcher(), "w%d\n");
    LOG_MSG(LEVEL_NOTE, log_component::launcher(), "n%d\n");
  });
  EXPECT_THAT(WithoutStamps(text), MatchesRegex("w[0-9]+\n"));
}

TEST_F(LoggerTest, StampsWithTheLocalTime) {
  ASSERT_EQ(OpenFile(), 0);
  time_t const before = std::time(nullptr);
  LOG_MSG(LEVEL_ERROR, log_component::service(), "x%d\n");
  time_t const after = std::time(nullptr);
  std::vector<std::string> possible;
  for (time_t t = before; t <= after; ++t) {
    char stamp[100];
    std::strftime(stamp, sizeof(stamp), "%b %d %H:%M:%S ", std::localtime(&t));
    possible.push_back(stamp);
  }
  EXPECT_THAT(possible, testing::Contains(Text().substr(0, kStampLength)));
}

TEST_F(LoggerTest, NoticesAChangeOfTheTimeZone) {
  ASSERT_EQ(OpenFile(), 0);
  char const* const zone = std::getenv("TZ");
  std::string const former = zone == nullptr ? "" : zone;
  auto const hour = [&] {
    fs::resize_file(LogPath(), 0);
    *LoggerProbe::Size() = 0;  // this many records would otherwise rotate the log
    LOG_MSG(LEVEL_ERROR, log_component::service(), "x%d\n");
    return std::stoi(Text().substr(7, 2));
  };
  auto const hours_from_utc = [&] {
    time_t const now = std::time(nullptr);
    tm utc;
    return (hour() - gmtime_r(&now, &utc)->tm_hour + 24) % 24;
  };
  for (auto const& [name, offset] : {std::pair("UTC0", 0), std::pair("ICT-7", 7)}) {
    setenv("TZ", name, 1);
    time_t const last = std::time(nullptr);
    while (std::time(nullptr) == last) std::this_thread::yield();
    EXPECT_EQ(hours_from_utc(), offset);  // the first record of its second
  }
  zone == nullptr ? unsetenv("TZ") : setenv("TZ", former.c_str(), 1);
  tzset();
}

TEST_F(LoggerTest, ComponentsHaveTheirNamesInTheLevelFile) {
  EXPECT_EQ(log_component::launcher(), "launcher_debug");
  EXPECT_EQ(log_component::service(), "service_debug");
  EXPECT_EQ(log_component::extractor(), "extractor_debug");
  EXPECT_EQ(log_component::file_op(), "file_op_debug");
  EXPECT_EQ(log_component::default_component(), "default_component");
}

TEST_F(LoggerTest, PassesTheSourceLineAfterTheFormat) {
  ASSERT_EQ(OpenFile(), 0);
  int const line = __LINE__ + 1;
  LOG_MSG(LEVEL_ERROR, log_component::service(), "bare %d\n");
  LOG_MSG(LEVEL_ERROR, log_component::service(), "one %d %s\n", "a");
  LOG_MSG(LEVEL_ERROR, log_component::service(), "six %d %d %d %d %d %d %d\n", 1, 2, 3, 4, 5, 6);
  std::ostringstream expected;
  expected << "bare " << line << "\none " << line + 1 << " a\nsix " << line + 2 << " 1 2 3 4 5 6\n";
  EXPECT_EQ(WithoutStamps(Text()), expected.str());
}

TEST_F(LoggerTest, NextRecordFollowsOneWithoutLineBreakOnTheSameLine) {
  ASSERT_EQ(OpenFile(), 0);
  LOG_MSG(LEVEL_ERROR, log_component::service(), "one %d ");
  LOG_MSG(LEVEL_ERROR, log_component::service(), "two %d\n");
  EXPECT_THAT(Text(), MatchesRegex(".* one [0-9]+ [A-Z][a-z]+ [0-9]+ [0-9:]+ two [0-9]+\n"));
}

TEST_F(LoggerTest, FlushesEachRecord) {
  ASSERT_EQ(OpenFile(), 0);
  LOG_MSG(LEVEL_ERROR, log_component::service(), "one %d\n");
  EXPECT_GT(fs::file_size(LogPath()), 0U);
}

TEST_F(LoggerTest, ThresholdAcceptsItsOwnLevelAndMoreSevereOnes) {
  std::vector<int> const levels = {3, 4, 5, 6, 7};
  for (int const threshold : levels) {
    LoggerProbe::Restart();
    fs::remove(LogPath());
    ASSERT_EQ(OpenFile(50, "service_debug=" + std::to_string(threshold) + "\n"), 0);
    std::string expected;
    for (int const level : levels) {
      LogThrough2(level, "%d ", level);
      if (level <= threshold) expected += std::to_string(level) + " ";
    }
    std::regex const stamp("[A-Z][a-z]{2} [0-9]{2} [0-9:]{8} ");
    EXPECT_EQ(std::regex_replace(Text(), stamp, ""), expected) << "threshold " << threshold;
  }
}

TEST_F(LoggerTest, ThresholdOfTheDefaultComponentDoesNotApplyToOthers) {
  ASSERT_EQ(OpenFile(50, "default_component=7\n"), 0);
  LOG_MSG(LEVEL_DEBUG, log_component::service(), "%d\n");
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(LoggerProbe::Levels()["default_component"], 7);
}

TEST_F(LoggerTest, ThresholdOfAComponentAcceptsItsDebugRecords) {
  ASSERT_EQ(OpenFile(50, "service_debug=7\n"), 0);
  LOG_MSG(LEVEL_DEBUG, log_component::service(), "in %d\n");
  LOG_MSG(LEVEL_DEBUG, log_component::extractor(), "out %d\n");
  EXPECT_THAT(WithoutStamps(Text()), MatchesRegex("in [0-9]+\n"));
}

TEST_F(LoggerTest, ThresholdThatIsNotANumberSilencesTheComponent) {
  ASSERT_EQ(OpenFile(50, "service_debug=loud\n"), 0);
  LOG_MSG(LEVEL_ERROR, log_component::service(), "%d\n");
  EXPECT_EQ(Text(), "");
}

TEST_F(LoggerTest, FilteredRecordIsNotFormatted) {
  ASSERT_EQ(OpenFile(), 0);
  // Reading the argument would crash.
  LOG_MSG(LEVEL_DEBUG, log_component::service(), "%d %s\n", reinterpret_cast<char const*>(1));
  EXPECT_EQ(Text(), "");
}

TEST_F(LoggerTest, LockIsMadeOnceAndDestroyed) {
  Logger::InitializeLock();
  std::mutex* const lock = LoggerProbe::Lock();
  Logger::InitializeLock();
  EXPECT_EQ(LoggerProbe::Lock(), lock);
  Logger::Lock();
  EXPECT_FALSE(std::async(std::launch::async, [&] { return lock->try_lock(); }).get());
  Logger::Unlock();
  Logger::DestroyLock();
  EXPECT_EQ(LoggerProbe::Lock(), nullptr);
}

TEST_F(LoggerTest, CFunctionLogsUnderItsComponent) {
  ASSERT_EQ(OpenFile(50, "plug_in=6\n"), 0);
  char component[] = "plug_in";
  LogThroughC(6, component, "%s\n", "in");
  LogThroughC(7, component, "%s\n", "out");
  EXPECT_EQ(WithoutStamps(Text()), "in\n");
}

TEST_F(LoggerTest, RecordsOfManyThreadsStayIntactAcrossRotations) {
  constexpr int kThreads = 8;
  constexpr int kRecords = 4000;
  ASSERT_EQ(OpenFile(), 0);
  std::string const filling(80, '.');
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([t, &filling] {
      for (int i = 0; i < kRecords; ++i) LogThrough2(3, "%d %d %s end\n", t, i, filling.c_str());
    });
  }
  for (std::thread& thread : threads) thread.join();

  std::string text;
  auto const generations = Generations();
  EXPECT_GE(generations.size(), 2U);
  for (auto it = generations.rbegin(); it != generations.rend(); ++it) text += it->second;
  text += Text();
  std::vector<int> next(kThreads, 0);
  std::istringstream lines(text);
  std::string line;
  while (std::getline(lines, line)) {
    std::istringstream words(line.substr(kStampLength));
    int thread = -1;
    int number = -1;
    std::string dots;
    std::string end;
    ASSERT_TRUE(words >> thread >> number >> dots >> end) << line;
    ASSERT_TRUE(words.eof() && dots == filling && end == "end") << line;
    ASSERT_EQ(number, next.at(static_cast<std::size_t>(thread))++) << line;
  }
  EXPECT_EQ(next, std::vector<int>(kThreads, kRecords));
}

TEST_F(LoggerTest, FirstRecordsOfManyThreadsCreateASingleLock) {
  constexpr int kThreads = 8;
  std::string const text = StandardErrorOf([] {
    std::atomic<int> ready{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < kThreads; ++t) {
      threads.emplace_back([&ready] {
        ++ready;
        while (ready < kThreads) std::this_thread::yield();
        LogThrough2(3, "%s\n", "record");
      });
    }
    for (std::thread& thread : threads) thread.join();
  });
  std::string expected;
  for (int t = 0; t < kThreads; ++t) expected += "record\n";
  EXPECT_EQ(WithoutStamps(text), expected);
}

TEST_F(LoggerTest, ChildOfAForkAppendsToTheSameFile) {
  ASSERT_EQ(OpenFile(), 0);
  LogThrough2(3, "%s\n", "parent");
  pid_t const child = fork();
  if (child == 0) {
    LogThrough2(3, "%s\n", "child");
    _exit(0);
  }
  ASSERT_EQ(waitpid(child, nullptr, 0), child);
  LogThrough2(3, "%s\n", "parent");
  EXPECT_EQ(WithoutStamps(Text()), "parent\nchild\nparent\n");
}
