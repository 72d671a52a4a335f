#pragma once

#include <cstdint>
#include <string>

#include "foundation/logger.h"

/// The private data of the Logger, for tests.
struct LoggerProbe {
  /// Resets every member to its value at process start. Closes an open log file.
  static void Restart() {
    FILE* const stream = Logger::log_fp;
    if (stream != nullptr && stream != stdout && stream != stderr) std::fclose(stream);
    Logger::DestroySharedData();
    Logger::DestroyLock();
    Logger::log_type = Logger::TYPE_STDOUT;
    Logger::rotate_cnt = 50;
    Logger::log_initialized = true;
    Logger::log_level.clear();
    Logger::log_fp = stderr;
    Logger::log_path.clear();
    Logger::log_rotated_count_private = 0;
  }

  static Logger::Type Type() { return Logger::log_type; }
  static int RotateCount() { return Logger::rotate_cnt; }
  static int FileLock() { return Logger::log_flock; }
  static bool IsInitialized() { return Logger::log_initialized; }
  static std::map<ustring, int>& Levels() { return Logger::log_level; }
  static FILE* Stream() { return Logger::log_fp; }
  static void SetStream(FILE* stream) { Logger::log_fp = stream; }
  static int* Size() { return Logger::log_size; }
  static std::string Path() { return Logger::log_path.c_str(); }
  static std::mutex* Lock() { return Logger::log_lock; }
  static bool IsProcessSafe() { return Logger::inter_process_safe; }
  static std::uint64_t* SharedCount() { return Logger::log_rotated_count_shared; }
  static std::uint64_t PrivateCount() { return Logger::log_rotated_count_private; }
};
