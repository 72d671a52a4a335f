#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>

#include "foundation/logger.h"
#include "support/files.h"
#include "support/logger-probe.h"
#include "system-calls.h"

TEST(LoggerFault, InitializeFailsWithoutMemoryAndARecordDoesNothing) {
  test::TempDir folder;
  ustring const path = folder / "log";
  LoggerProbe::Restart();
  for (std::size_t const missing : {sizeof(int), sizeof(std::uint64_t)}) {
    test::SystemCalls calls;
    calls.malloc = [missing](std::size_t size) {
      return size == missing ? nullptr : test::LibraryMalloc(size);
    };
    EXPECT_EQ(Logger::Initialize(Logger::TYPE_FILE, path, path, 50), -1);
    Logger::LogMsg(Logger::LEVEL_ERROR, path, "lost\n");
  }
  EXPECT_FALSE(std::filesystem::exists(path.c_str()));
  LoggerProbe::Restart();
}
