#include <fcntl.h>
#include <gmock/gmock.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "foundation/file-op.h"
#include "support/file-op-log.h"
#include "support/files.h"
#include "system-calls.h"

namespace fs = std::filesystem;
using test::FailWith;
using test::FileOpLog;
using test::ReadFile;
using test::SystemCalls;
using test::TempDir;
using test::WriteFile;
using ::testing::ElementsAre;

namespace {

constexpr std::size_t kCopyBlock = 33554432;

}  // namespace

TEST(FSCopyFault, ReadsAFileOfExactlyOneBlockInTwoCalls) {
  TempDir folder;
  WriteFile(folder / "source", std::string(kCopyBlock, 'x'));
  SystemCalls calls;
  std::vector<std::size_t> asked;
  std::vector<ssize_t> got;
  calls.read = [&](int file, void* bytes, std::size_t count) {
    asked.push_back(count);
    got.push_back(test::LibraryRead(file, bytes, count));
    return got.back();
  };
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), 0);
  calls.read = nullptr;
  EXPECT_THAT(asked, ElementsAre(kCopyBlock, kCopyBlock));
  EXPECT_THAT(got, ElementsAre(static_cast<ssize_t>(kCopyBlock), 0));
  EXPECT_EQ(fs::file_size(folder / "target"), kCopyBlock);
}

TEST(FSCopyFault, ReadsAnEmptyFileOnceAndMakesAnEmptyTarget) {
  TempDir folder;
  WriteFile(folder / "source", "");
  SystemCalls calls;
  int reads = 0;
  calls.read = [&](int file, void* bytes, std::size_t count) {
    ++reads;
    return test::LibraryRead(file, bytes, count);
  };
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), 0);
  calls.read = nullptr;
  EXPECT_EQ(reads, 1);
  EXPECT_EQ(fs::file_size(folder / "target"), 0U);
}

TEST(FSCopyFault, ClosesTheSourceThenFlushesAndClosesTheTargetThenFreesTheBuffer) {
  TempDir folder;
  for (bool const is_refused : {false, true}) {
    for (bool const remove_source : {false, true}) {
      WriteFile(folder / "source", "bytes");
      std::vector<std::string> steps;
      int source = -1;
      int target = -1;
      void* buffer = nullptr;
      {
        SystemCalls calls;
        calls.read = [&](int file, void* bytes, std::size_t count) {
          source = file;
          buffer = bytes;
          return test::LibraryRead(file, bytes, count);
        };
        calls.write = [&](int file, void const* bytes, std::size_t count) -> ssize_t {
          target = file;
          return is_refused ? FailWith(ENOSPC) : test::LibraryWrite(file, bytes, count);
        };
        calls.fsync = [&](int file) {
          if (file == target) steps.push_back("sync the target");
          return 0;
        };
        calls.close = [&](int file) {
          EXPECT_TRUE(file == source || file == target) << file;
          if (file == source) {
            steps.push_back("close the source");
            EXPECT_TRUE(fs::exists(folder / "source")) << "removed while it was open";
          }
          if (file == target) steps.push_back("close the target");
        };
        calls.free = [&](void* block) {
          if (block == buffer && block != nullptr) steps.push_back("free the buffer");
        };
        EXPECT_EQ(FSCopy(folder / "source", folder / "target", remove_source), is_refused ? -2 : 0);
      }
      EXPECT_THAT(steps, ElementsAre("close the source", "sync the target", "close the target",
                                     "free the buffer"));
    }
  }
}

TEST(FSCopyFault, ContinuesAfterShortReadsAndWrites) {
  TempDir folder;
  std::string bytes;
  for (int i = 0; i < 5000; ++i) bytes += std::to_string(i);
  WriteFile(folder / "source", bytes);
  SystemCalls calls;
  calls.read = [](int file, void* to, std::size_t count) {
    return test::LibraryRead(file, to, std::min(count, std::size_t{1000}));
  };
  calls.write = [](int file, void const* from, std::size_t count) {
    return test::LibraryWrite(file, from, std::min(count, std::size_t{7}));
  };
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), 0);
  calls.read = nullptr;
  calls.write = nullptr;
  EXPECT_EQ(ReadFile(folder / "target"), bytes);
}

TEST(FSCopyFault, DistinguishesFullDiskAndQuotaFromOtherWriteErrors) {
  TempDir folder;
  WriteFile(folder / "source", "bytes");
  auto const result_of = [&folder](ssize_t written, int code) {
    SystemCalls calls;
    calls.write = [written, code](int, void const*, std::size_t) {
      errno = code;
      return written;
    };
    return FSCopy(folder / "source", folder / "target", true);
  };
  EXPECT_EQ(result_of(-1, ENOSPC), -2);
  EXPECT_EQ(result_of(-1, EDQUOT), -2);
  EXPECT_EQ(result_of(-1, EIO), -1);
  EXPECT_EQ(result_of(0, 0), -1);
  EXPECT_TRUE(fs::exists(folder / "source"));
}

TEST(FSCopyFault, LogsTheErrorThatDeterminesTheResult) {
  TempDir folder;
  WriteFile(folder / "source", "bytes");
  FileOpLog const log;
  SystemCalls calls;
  bool is_first = true;
  calls.write = [&is_first](int file, void const* bytes, std::size_t count) {
    bool const fails = is_first;
    is_first = false;  // later writes are the log's own
    return fails ? FailWith(EDQUOT) : test::LibraryWrite(file, bytes, count);
  };
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), -2);
  EXPECT_THAT(log.Lines(), ElementsAre(std::string("[ERROR] file-op(#): CopyFile: write: ") +
                                       strerror(EDQUOT) + " (" + std::to_string(EDQUOT) + ")"));
}

TEST(FSCopyFault, FlushesTheTargetOnSuccessAndOnFailureAndIgnoresTheResult) {
  TempDir folder;
  WriteFile(folder / "source", "bytes");
  SystemCalls calls;
  int syncs = 0;
  calls.fsync = [&syncs](int) {
    ++syncs;
    return FailWith(EIO);
  };
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), 0);
  EXPECT_EQ(syncs, 1);
  calls.read = [](int, void*, std::size_t) { return FailWith(EIO); };
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), -1);
  EXPECT_EQ(syncs, 2);
  EXPECT_EQ(FSCopy(folder / "none", folder / "target", false), -1);
  EXPECT_EQ(syncs, 2);
}

TEST(FSCopyFault, FailsIfTheBufferCannotBeAllocated) {
  TempDir folder;
  WriteFile(folder / "source", "bytes");
  FileOpLog const log;
  {
    SystemCalls calls;
    calls.malloc = [](std::size_t size) {
      if (size != kCopyBlock) return test::LibraryMalloc(size);
      errno = ENOMEM;
      return static_cast<void*>(nullptr);
    };
    EXPECT_EQ(FSCopy(folder / "source", folder / "target", true), -1);
  }
  EXPECT_TRUE(fs::exists(folder / "source"));
  EXPECT_THAT(log.Lines(),
              ElementsAre(std::string("[ERROR] file-op(#): FSCopy: malloc(33554432): ") +
                          strerror(ENOMEM) + " (" + std::to_string(ENOMEM) + ")"));
}

TEST(FSCopyFault, KeepsBothFilesFromChildProcesses) {
  TempDir folder;
  WriteFile(folder / "source", "bytes");
  SystemCalls calls;
  calls.read = [](int file, void* bytes, std::size_t count) {
    EXPECT_EQ(fcntl(file, F_GETFD), FD_CLOEXEC);
    return test::LibraryRead(file, bytes, count);
  };
  calls.write = [](int file, void const* bytes, std::size_t count) {
    EXPECT_EQ(fcntl(file, F_GETFD), FD_CLOEXEC);
    return test::LibraryWrite(file, bytes, count);
  };
  EXPECT_EQ(FSCopy(folder / "source", folder / "target", false), 0);
}
