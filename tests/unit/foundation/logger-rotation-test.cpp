#include "foundation/logger.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "logger-fixture.h"
#include "support/files.h"
#include "support/logger-probe.h"

namespace fs = std::filesystem;
using test::kRotateAt;
using test::LoggerTest;
using test::LogThrough2;
using test::ReadFile;
using test::RotateLocked;
using test::StandardErrorOf;
using test::WithoutStamps;
using test::WriteFile;
using test::WriteRecordOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

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

TEST_F(LoggerTest, RotationLeavesFilesOfSimilarNamesAlone) {
  std::string const other = LogPath() + "_-1";
  WriteFile(other, "other");
  ASSERT_EQ(OpenFile(), 0);
  WriteRecordOf(kRotateAt);
  EXPECT_EQ(ReadFile(other), "other");
}

TEST_F(LoggerTest, RotatesAtExactlyTheLimit) {
  ASSERT_EQ(OpenFile(), 0);
  WriteRecordOf(kRotateAt);
  EXPECT_EQ(fs::file_size(Generation(0)), kRotateAt + 0U);
}

TEST_F(LoggerTest, SizeOfAnExistingFileDoesNotCount) {
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

TEST_F(LoggerTest, RecordsAreNotCountedAfterAReloadThatFails) {
  ASSERT_EQ(OpenFile(), 0);
  WriteRecordOf(100);
  fs::remove_all(folder_.path());
  ++*LoggerProbe::SharedCount();
  WriteRecordOf(100);
  EXPECT_EQ(LoggerProbe::Stream(), nullptr);
  EXPECT_EQ(*LoggerProbe::Size(), 100);
}

TEST_F(LoggerTest, RotationRemovesAFolderInTheWay) {
  ASSERT_EQ(OpenFile(2), 0);
  fs::create_directory(Generation(0));
  LogThrough2(3, "%s\n", "old");
  RotateLocked();
  EXPECT_EQ(WithoutStamps(ReadFile(Generation(0))), "old\n");
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

long OpenFiles() {
  return std::distance(fs::directory_iterator("/dev/fd"), fs::directory_iterator());
}

TEST_F(LoggerTest, FormerLogFilesAreClosed) {
  ASSERT_EQ(OpenFile(), 0);
  long const open = OpenFiles();
  RotateLocked();
  EXPECT_EQ(OpenFiles(), open);
  Logger::ReloadLogFile();
  EXPECT_EQ(OpenFiles(), open);
  Logger::Destroy();
  EXPECT_EQ(OpenFiles(), open - 1);
}

/// A path of this many bytes below a folder; makes the folders above its last name.
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

TEST_F(LoggerTest, NameOfAGenerationIsTruncatedTo1023Bytes) {
  std::string const path = PathOfLength(folder_.path(), 1022);
  ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, path.c_str(), "", 1), 0);
  LogThrough2(3, "%s\n", "old");
  RotateLocked();
  EXPECT_EQ(WithoutStamps(ReadFile(path + "_")), "old\n");
}

TEST_F(LoggerTest, FailedRotationSilencesTheLogUntilInitialize) {
  // Generation 0 can be neither removed nor replaced.
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

TEST_F(LoggerTest, ReloadCreatesTheFileAgainAfterARename) {
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

TEST_F(LoggerTest, RotationByAnotherProcessIsFollowedAtTheNextRecord) {
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
