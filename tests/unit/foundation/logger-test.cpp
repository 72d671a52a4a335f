#include "foundation/logger.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <syslog.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <functional>
#include <future>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "support/files.h"
#include "support/logger-probe.h"
#include "support/process.h"

namespace fs = std::filesystem;
using test::ReadFile;
using test::TempDir;
using test::WriteFile;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;

namespace {

/// What syslog was given.
std::vector<std::string> syslog_records;

constexpr int kStampLength = 16;
constexpr int kRotateAt = 1048577;

/// What the Logger holds before main, seen by an object that may well be made ahead of it.
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

class LoggerTest : public ::testing::Test {
 protected:
  LoggerTest() { LoggerProbe::Restart(); }
  ~LoggerTest() override { LoggerProbe::Restart(); }

  std::string LogPath() const { return folder_ / "test.log"; }
  std::string Generation(int number) const { return LogPath() + "_" + std::to_string(number); }
  std::string Text() const { return ReadFile(LogPath()); }

  int OpenFile(int rotate_count = 50, std::string const& levels = "") {
    std::string const level_file = folder_ / "levels";
    WriteFile(level_file, levels);
    return Logger::Initialize(Logger::TYPE_FILE, LogPath().c_str(), level_file.c_str(),
                              rotate_count);
  }

  /// The generations that stand, by their first line.
  std::vector<std::pair<int, std::string>> Generations() const {
    std::vector<std::pair<int, std::string>> found;
    for (int i = -1; i < 100; ++i) {
      if (fs::is_regular_file(Generation(i))) found.emplace_back(i, ReadFile(Generation(i)));
    }
    return found;
  }

  TempDir folder_;
};

/// The text of the log with the stamp cut off each line.
std::string WithoutStamps(std::string const& text) {
  static std::regex const stamp("(^|\n)[A-Z][a-z]{2} [0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2} ");
  return std::regex_replace(text, stamp, "$1");
}

/// A record of a given length, the stamp included.
void WriteRecordOf(int length, char const* end = "\n") {
  std::string const text(static_cast<std::size_t>(length - kStampLength) - std::strlen(end), 'x');
  Logger::LogMsg(Logger::LEVEL_ERROR, log_component::service(), "%s%s", text.c_str(), end);
}

/// The working folder for as long as it lives, made anew.
class WorkingFolder {
 public:
  explicit WorkingFolder(fs::path const& folder) : former_(fs::current_path()) {
    fs::create_directory(folder);
    fs::current_path(folder);
  }
  ~WorkingFolder() { fs::current_path(former_); }
  WorkingFolder(WorkingFolder const&) = delete;
  WorkingFolder& operator=(WorkingFolder const&) = delete;

 private:
  fs::path former_;
};

std::vector<std::string> EntriesHere() {
  std::vector<std::string> names;
  for (auto const& entry : fs::directory_iterator(".")) names.push_back(entry.path().filename());
  std::sort(names.begin(), names.end());
  return names;
}

/// What memory may hold where nobody has written.
struct Found {
  int size;
  std::uint64_t count;
};
constexpr Found kFound[] = {{0, 0}, {kRotateAt - 1, 1}, {INT_MAX, ~0ULL}, {-7, 2}};

void LeaveInMemory(Found const& found) {
  *LoggerProbe::Size() = found.size;
  *LoggerProbe::SharedCount() = found.count;
}

void RotateLocked() {
  Logger::Lock();
  EXPECT_EQ(Logger::Rotate(), 0);
  Logger::Unlock();
}

void LogThrough2(int level, char const* format, ...) __attribute__((format(printf, 2, 3)));
void LogThrough2(int level, char const* format, ...) {
  va_list args;
  va_start(args, format);
  Logger::LogMsg2(static_cast<Logger::Level>(level), log_component::service(), format, args);
  va_end(args);
}

void LogThroughC(int level, char* component, char const* format, ...)
    __attribute__((format(printf, 3, 4)));
void LogThroughC(int level, char* component, char const* format, ...) {
  va_list args;
  va_start(args, format);
  LogMSG_c(level, component, format, args);
  va_end(args);
}

/// Runs with standard error going to a file, and returns what it got.
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

}  // namespace

// Stands in for the C library's: a program's own function comes first.
extern "C" void vsyslog(int priority, char const* format, va_list args)
    __attribute__((format(printf, 2, 0)));
extern "C" void vsyslog(int priority, char const* format, va_list args) {
  char text[1000];
  std::vsnprintf(text, sizeof(text), format, args);
  syslog_records.push_back(std::to_string(priority) + " " + text);
}

TEST_F(LoggerTest, HasItsStartValuesBeforeMain) {
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
  /// The generation that the rotation has made, without what it was filled with.
  std::string Rotated() const {
    std::string const text = ReadFile(Generation(0));
    return WithoutStamps(text.substr(0, text.find("xx") - kStampLength));
  }
};

TEST_F(LogOutsideMain, RecordsAheadOfInitializeGoToStandardError) {
  EXPECT_EQ(ErrorOutput(), "E first constructor\nE object made\n");
}

TEST_F(LogOutsideMain, RecordsOfDestructorsFindLevelsAndPath) {
  ErrorOutput();
  EXPECT_EQ(Rotated(),
            "E main\nD main\nE object destroyed\nD object destroyed\n"
            "E last destructor\nD last destructor\n");
  EXPECT_EQ(WithoutStamps(Text()), "E after the rotation\nD after the rotation\n");
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

TEST_F(LoggerTest, BeforeInitializeDropsWhatIsLessThanAWarning) {
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
    *LoggerProbe::Size() = 0;  // so many records would rotate the log meanwhile
    LOG_MSG(LEVEL_ERROR, log_component::service(), "x%d\n");
    return std::stoi(Text().substr(7, 2));
  };
  auto const hours_from_utc = [&] {
    time_t const now = std::time(nullptr);
    tm utc;
    return (hour() - gmtime_r(&now, &utc)->tm_hour + 24) % 24;
  };
  auto const deadline = std::chrono::steady_clock::now() + std::chrono::seconds(30);
  for (auto const& [name, offset] : {std::pair("UTC0", 0), std::pair("ICT-7", 7)}) {
    setenv("TZ", name, 1);
    while (hours_from_utc() != offset) {
      ASSERT_LT(std::chrono::steady_clock::now(), deadline) << name;
      std::this_thread::yield();
    }
  }
  zone == nullptr ? unsetenv("TZ") : setenv("TZ", former.c_str(), 1);
  tzset();
}

TEST_F(LoggerTest, PassesTheSourceLineBehindTheFormat) {
  ASSERT_EQ(OpenFile(), 0);
  int const line = __LINE__ + 1;
  LOG_MSG(LEVEL_ERROR, log_component::service(), "bare %d\n");
  LOG_MSG(LEVEL_ERROR, log_component::service(), "one %d %s\n", "a");
  LOG_MSG(LEVEL_ERROR, log_component::service(), "six %d %d %d %d %d %d %d\n", 1, 2, 3, 4, 5, 6);
  std::ostringstream expected;
  expected << "bare " << line << "\none " << line + 1 << " a\nsix " << line + 2 << " 1 2 3 4 5 6\n";
  EXPECT_EQ(WithoutStamps(Text()), expected.str());
}

TEST_F(LoggerTest, RunsARecordWithoutLineBreakIntoTheNext) {
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

TEST_F(LoggerTest, ThresholdLetsItsOwnLevelAndTheMoreSeverePass) {
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

TEST_F(LoggerTest, ThresholdOfTheDefaultComponentDoesNotCountForOthers) {
  ASSERT_EQ(OpenFile(50, "default_component=7\n"), 0);
  LOG_MSG(LEVEL_DEBUG, log_component::service(), "%d\n");
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(LoggerProbe::Levels()["default_component"], 7);
}

TEST_F(LoggerTest, ThresholdOfTheComponentItselfLetsDebugRecordsIn) {
  ASSERT_EQ(OpenFile(50, "service_debug=7\n"), 0);
  LOG_MSG(LEVEL_DEBUG, log_component::service(), "in %d\n");
  LOG_MSG(LEVEL_DEBUG, log_component::extractor(), "out %d\n");
  EXPECT_THAT(WithoutStamps(Text()), MatchesRegex("in [0-9]+\n"));
}

TEST_F(LoggerTest, ThresholdThatIsNoNumberSilencesTheComponent) {
  ASSERT_EQ(OpenFile(50, "service_debug=loud\n"), 0);
  LOG_MSG(LEVEL_ERROR, log_component::service(), "%d\n");
  EXPECT_EQ(Text(), "");
}

TEST_F(LoggerTest, FilteredRecordIsNotFormatted) {
  ASSERT_EQ(OpenFile(), 0);
  // Reading the argument would end the process.
  LOG_MSG(LEVEL_DEBUG, log_component::service(), "%d %s\n", reinterpret_cast<char const*>(1));
  EXPECT_EQ(Text(), "");
}

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

TEST_F(LoggerTest, InitializeKeepsTheThresholdsOfAnEarlierOne) {
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

TEST_F(LoggerTest, InitializeFailsForAFileThatCannotBeOpenedAndKeepsTheFormerStream) {
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_STDOUT, "", "", 50), 0);
  EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, (folder_ / "none/log").c_str(), "", 7), -1);
  EXPECT_EQ(LoggerProbe::Type(), Logger::TYPE_FILE);
  EXPECT_EQ(LoggerProbe::Stream(), stdout);
  EXPECT_EQ(LoggerProbe::Path(), "");
  EXPECT_EQ(LoggerProbe::RotateCount(), 50);
}

TEST_F(LoggerTest, FileThatCannotBeOpenedLeavesEveryRecordToStandardError) {
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
    // Rotates as if it had been opened when the second one wasn't.
    WriteRecordOf(kRotateAt - 1 - (kStampLength + 6));
    EXPECT_EQ(*LoggerProbe::Size(), kRotateAt - 1);
    WriteRecordOf(20);
    EXPECT_EQ(fs::file_size(Generation(0)), kRotateAt + 19U + kStampLength + 7U);
    EXPECT_EQ(*LoggerProbe::SharedCount(), LoggerProbe::PrivateCount());
    LogThrough2(3, "%s\n", "last");
    EXPECT_EQ(WithoutStamps(Text()), "last\n");
  }
}

TEST_F(LoggerTest, FirstFileCanBeReloadedAndRotatedWhereTheSecondCannotBeOpened) {
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
  WorkingFolder const here(folder_ / "here");
  auto const expect_silence = [&](std::function<void()> const& act) {
    pid_t const child = fork();
    if (child == 0) {  // closing standard error is nothing for a test to go on with
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

TEST_F(LoggerTest, InitializeMakesLockAndSharedDataAnew) {
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

TEST_F(LoggerTest, AStandardStreamForgetsThePathOfTheFileBefore) {
  ASSERT_EQ(OpenFile(), 0);
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_STDERR, "", "", 50), 0);
  EXPECT_EQ(LoggerProbe::Path(), "");
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

TEST_F(LoggerTest, AppendsToAFileThatExists) {
  WriteFile(LogPath(), "former\n");
  ASSERT_EQ(OpenFile(), 0);
  LogThrough2(3, "%s\n", "new");
  EXPECT_EQ(WithoutStamps(Text()), "former\nnew\n");
}

TEST_F(LoggerTest, FileIsNotPassedOnToOtherPrograms) {
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

TEST_F(LoggerTest, RotatesOnceOneMebibyteAndOneByteAreWritten) {
  ASSERT_EQ(OpenFile(), 0);
  WriteRecordOf(kRotateAt - 1 - 20);
  WriteRecordOf(20);
  EXPECT_EQ(*LoggerProbe::Size(), kRotateAt - 1);
  EXPECT_THAT(Generations(), IsEmpty());
  WriteRecordOf(20);
  EXPECT_EQ(*LoggerProbe::Size(), 0);
  EXPECT_EQ(Text(), "");
  EXPECT_EQ(fs::file_size(Generation(0)), kRotateAt + 19U);
  EXPECT_EQ(*LoggerProbe::SharedCount(), 1U);
  EXPECT_EQ(LoggerProbe::PrivateCount(), 1U);
}

TEST_F(LoggerTest, RotatesAtExactlyTheLimit) {
  ASSERT_EQ(OpenFile(), 0);
  WriteRecordOf(kRotateAt);
  EXPECT_EQ(fs::file_size(Generation(0)), kRotateAt + 0U);
}

TEST_F(LoggerTest, SizeOfAFileThatExistsDoesNotCount) {
  WriteFile(LogPath(), std::string(2 * kRotateAt, 'o'));
  ASSERT_EQ(OpenFile(), 0);
  WriteRecordOf(kRotateAt - 1);
  EXPECT_THAT(Generations(), IsEmpty());
  WriteRecordOf(20);
  EXPECT_EQ(fs::file_size(Generation(0)), 3U * kRotateAt + 19U);
}

TEST_F(LoggerTest, FailedWritesAreNotCounted) {
  ASSERT_EQ(OpenFile(), 0);
  WriteRecordOf(100);
  std::fclose(LoggerProbe::Stream());
  LoggerProbe::SetStream(std::fopen(LogPath().c_str(), "r"));
  WriteRecordOf(100);
  EXPECT_EQ(*LoggerProbe::Size(), 100);
}

TEST_F(LoggerTest, DepthOf1KeepsOneOldFile) {
  ASSERT_EQ(OpenFile(1), 0);
  for (int i = 0; i < 3; ++i) {
    std::fprintf(LoggerProbe::Stream(), "%d", i);
    RotateLocked();
  }
  EXPECT_THAT(Generations(), ElementsAre(testing::Pair(0, "2")));
}

TEST_F(LoggerTest, DepthOf2KeepsOneOldFile) {
  ASSERT_EQ(OpenFile(2), 0);
  for (int i = 0; i < 4; ++i) {
    std::fprintf(LoggerProbe::Stream(), "%d", i);
    RotateLocked();
    EXPECT_THAT(Generations(), ElementsAre(testing::Pair(0, std::to_string(i))));
  }
}

TEST_F(LoggerTest, DepthOf50Keeps49OldFilesTheYoungestFirst) {
  ASSERT_EQ(OpenFile(50), 0);
  for (int i = 0; i < 120; ++i) {
    std::fprintf(LoggerProbe::Stream(), "%d", i);
    RotateLocked();
  }
  std::vector<std::pair<int, std::string>> expected;
  for (int i = 0; i < 49; ++i) expected.emplace_back(i, std::to_string(119 - i));
  EXPECT_EQ(Generations(), expected);
  EXPECT_EQ(*LoggerProbe::SharedCount(), 120U);
  EXPECT_EQ(LoggerProbe::PrivateCount(), 120U);
}

/// A path of so many bytes below a folder, the folders above its last name made.
std::string PathOfLength(std::string path, std::size_t length) {
  while (length - path.size() > 250) path += "/" + std::string(200, 'f');
  fs::create_directories(path);
  return path + "/" + std::string(length - path.size() - 1, 'n');
}

TEST_F(LoggerTest, NameOfAGenerationMayHave1023Bytes) {
  std::string const path = PathOfLength(folder_.path(), 1021);
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, path.c_str(), "", 1), 0);
  LogThrough2(3, "%s\n", "old");
  RotateLocked();
  EXPECT_EQ(WithoutStamps(ReadFile(path + "_0")), "old\n");
}

TEST_F(LoggerTest, NameOfAGenerationIsCutAfter1023Bytes) {
  std::string const path = PathOfLength(folder_.path(), 1022);
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, path.c_str(), "", 1), 0);
  LogThrough2(3, "%s\n", "old");
  RotateLocked();
  EXPECT_EQ(WithoutStamps(ReadFile(path + "_")), "old\n");
}

TEST_F(LoggerTest, FailedRotationSilencesTheLogUntilInitialize) {
  // Generation 0 can neither be removed nor replaced.
  WriteFile(fs::path(Generation(0)) / "file", "");
  ASSERT_EQ(OpenFile(1), 0);
  WriteRecordOf(kRotateAt);
  EXPECT_EQ(LoggerProbe::Stream(), nullptr);
  EXPECT_EQ(LoggerProbe::Type(), Logger::TYPE_FILE);
  EXPECT_EQ(*LoggerProbe::Size(), 0);
  EXPECT_EQ(*LoggerProbe::SharedCount(), 0U);

  EXPECT_EQ(StandardErrorOf([] { WriteRecordOf(100); }), "");
  EXPECT_EQ(fs::file_size(LogPath()), kRotateAt + 0U);

  ASSERT_EQ(OpenFile(1), 0);
  WriteRecordOf(100);
  EXPECT_EQ(fs::file_size(LogPath()), kRotateAt + 100U);
}

TEST_F(LoggerTest, RotationThatCannotOpenTheNewFileSilencesTheLog) {
  ASSERT_EQ(OpenFile(3), 0);
  rlimit former;
  getrlimit(RLIMIT_NOFILE, &former);
  rlimit const none = {1, former.rlim_max};
  Logger::Lock();
  setrlimit(RLIMIT_NOFILE, &none);
  int const result = Logger::Rotate();
  setrlimit(RLIMIT_NOFILE, &former);
  Logger::Unlock();
  EXPECT_EQ(result, -1);
  EXPECT_EQ(LoggerProbe::Stream(), nullptr);
  EXPECT_TRUE(fs::exists(Generation(0)));
  WriteRecordOf(100);
  EXPECT_FALSE(fs::exists(LogPath()));
}

TEST_F(LoggerTest, ReloadStartsTheFileAnewWhereItWasMovedAway) {
  ASSERT_EQ(OpenFile(), 0);
  LogThrough2(3, "%s\n", "old");
  fs::rename(LogPath(), Generation(0));
  Logger::ReloadLogFile();
  EXPECT_EQ(*LoggerProbe::Size(), 0);
  LogThrough2(3, "%s\n", "new");
  EXPECT_EQ(WithoutStamps(Text()), "new\n");
  EXPECT_EQ(WithoutStamps(ReadFile(Generation(0))), "old\n");
}

TEST_F(LoggerTest, ReloadThatFailsSilencesTheLog) {
  ASSERT_EQ(OpenFile(), 0);
  fs::remove(LogPath());
  fs::create_directory(LogPath());
  Logger::ReloadLogFile();
  EXPECT_EQ(LoggerProbe::Stream(), nullptr);
  EXPECT_EQ(StandardErrorOf([] { WriteRecordOf(100); }), "");
}

TEST_F(LoggerTest, ReloadLeavesTheStandardStreamsAlone) {
  for (auto const type : {Logger::TYPE_SYSLOG, Logger::TYPE_STDOUT, Logger::TYPE_STDERR}) {
    ASSERT_EQ(Logger::Initialize(type, "", "", 1), 0);
    FILE* const stream = LoggerProbe::Stream();
    Logger::ReloadLogFile();
    EXPECT_EQ(LoggerProbe::Stream(), stream);
    EXPECT_EQ(*LoggerProbe::Size(), -1);
  }
}

TEST_F(LoggerTest, RotationByAnotherIsFollowedWithTheNextRecord) {
  ASSERT_EQ(OpenFile(), 0);
  fs::rename(LogPath(), Generation(0));
  *LoggerProbe::SharedCount() = 5;
  LogThrough2(7, "%s\n", "filtered");
  EXPECT_EQ(LoggerProbe::PrivateCount(), 5U);
  EXPECT_EQ(Text(), "");
  LogThrough2(3, "%s\n", "new");
  EXPECT_EQ(WithoutStamps(Text()), "new\n");
}

TEST_F(LoggerTest, RotationCountsOfStandardStreamsAreMadeEqual) {
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_STDERR, "", "", 1), 0);
  *LoggerProbe::SharedCount() = 5;
  LogThrough2(7, "%s\n", "filtered");
  EXPECT_EQ(LoggerProbe::PrivateCount(), 5U);
  EXPECT_EQ(LoggerProbe::Stream(), stderr);
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

TEST_F(LoggerTest, DestroyOfALogFileLeavesStandardOutputAndDepth32) {
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

TEST_F(LoggerTest, RecordsOfManyThreadsStayWholeOverRotations) {
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

TEST_F(LoggerTest, FirstRecordsOfManyThreadsMakeOneLockForAll) {
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
