// A million records from eight threads, through dozens of rotations.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "foundation/logger.h"
#include "support/files.h"
#include "support/logger-probe.h"

namespace fs = std::filesystem;

namespace {

constexpr int kThreads = 8;
constexpr int kRecords = 125000;  // per thread
constexpr size_t kStamp = sizeof("Nov 16 00:07:25 ") - 1;

/// "thread/number" and padding that reveals a torn record.
constexpr char kFormat[] =
    "[ERROR] load(%d): %d/%06d the quick brown fox jumps over the lazy dog\n";

class LoggerUnderLoad : public testing::Test {
 protected:
  LoggerUnderLoad() { LoggerProbe::Restart(); }
  ~LoggerUnderLoad() override { LoggerProbe::Restart(); }

  std::string Path() const { return folder_ / "launcher.log"; }
  std::string Generation(int n) const { return Path() + "_" + std::to_string(n); }

  void WriteAll(int depth) {
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, ustring(Path()), ustring(""), depth), 0);
    std::vector<std::thread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
      threads.emplace_back([thread] {
        for (int i = 0; i < kRecords; ++i) {
          Logger::LogMsg(Logger::LEVEL_ERROR, log_component::launcher(), kFormat, 1, thread, i);
        }
      });
    }
    for (std::thread& thread : threads) thread.join();
  }

  /// The log files, oldest first.
  std::vector<std::string> Files(int depth) const {
    std::vector<std::string> files;
    for (int n = depth; n >= 0; --n) {
      if (fs::exists(Generation(n))) files.push_back(Generation(n));
    }
    files.push_back(Path());
    return files;
  }

  /// Reads a file's records; `next` has each thread's next number. Gaps are allowed only before a
  /// thread's first record.
  static void ReadRecords(std::string const& path, std::vector<int>& next, long& count) {
    std::ifstream in(path);
    for (std::string line; std::getline(in, line); ++count) {
      int source = 0;
      int thread = -1;
      int number = -1;
      ASSERT_GT(line.size(), kStamp) << path;
      ASSERT_EQ(sscanf(line.c_str() + kStamp, "[ERROR] load(%d): %d/%d", &source, &thread, &number),
                3)
          << path << ": " << line;
      char expected[128];
      snprintf(expected, sizeof(expected), kFormat, 1, thread, number);
      ASSERT_EQ(line.substr(kStamp) + "\n", expected) << "torn, in " << path;
      int& due = next.at(static_cast<size_t>(thread));
      if (due < 0) due = number;
      ASSERT_EQ(number, due) << "lost or out of order, in " << path;
      due = number + 1;
    }
  }

  test::TempDir folder_;
};

TEST_F(LoggerUnderLoad, NeitherLosesTearsNorReordersRecordsInDozensOfRotations) {
  constexpr int kDepth = 200;
  WriteAll(kDepth);
  std::vector<std::string> const files = Files(kDepth);
  EXPECT_GT(files.size(), 48U) << "too few rotations to mean anything";
  std::vector<int> next(kThreads, 0);
  long count = 0;
  for (std::string const& file : files) ASSERT_NO_FATAL_FAILURE(ReadRecords(file, next, count));
  EXPECT_EQ(count, long{kThreads} * kRecords);
  EXPECT_EQ(next, std::vector<int>(kThreads, kRecords));
}

TEST_F(LoggerUnderLoad, KeepsFortyNineGenerationsAtADepthOfFifty) {
  constexpr int kDepth = 50;
  WriteAll(kDepth);
  EXPECT_GT(LoggerProbe::PrivateCount(), 50U) << "too few rotations to mean anything";
  for (int n = 0; n <= 48; ++n) EXPECT_TRUE(fs::exists(Generation(n))) << n;
  EXPECT_FALSE(fs::exists(Generation(49)));
  EXPECT_FALSE(fs::exists(Generation(50)));
  for (int n = 0; n <= 48; ++n) {
    // At most one record beyond the limit.
    EXPECT_GE(fs::file_size(Generation(n)), 1048577U) << n;
    EXPECT_LT(fs::file_size(Generation(n)), 1048577U + 200U) << n;
  }
  // The records that are kept are complete and in order, whatever came before.
  std::vector<int> next(kThreads, -1);
  long count = 0;
  for (std::string const& file : Files(kDepth)) {
    ASSERT_NO_FATAL_FAILURE(ReadRecords(file, next, count));
  }
  EXPECT_EQ(next, std::vector<int>(kThreads, kRecords));
}

}  // namespace
