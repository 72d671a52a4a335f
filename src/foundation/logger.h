#pragma once

#include <atomic>
#include <cstdarg>  // IWYU pragma: keep
#include <cstdint>
#include <cstdio>
#include <map>
#include <mutex>

#include "foundation/ustring.h"

/// Logs one record. `level` is a bare name of Logger::Level; the format is a literal that carries
/// everything but the time stamp, its line break included, and takes the source line as its first
/// argument:
///
///     LOG_MSG(LEVEL_ERROR, log_component::file_op(), "[ERROR] file-op(%d): open(%s)\n", path);
///
/// The macro supplies the line. At most six arguments follow the format.
#define LOG_MSG(level, component, ...)                                                   \
  LOG_MSG_PICK_(__VA_ARGS__, LOG_MSG_ARGS_, LOG_MSG_ARGS_, LOG_MSG_ARGS_, LOG_MSG_ARGS_, \
                LOG_MSG_ARGS_, LOG_MSG_ARGS_, LOG_MSG_BARE_, unused)                     \
  (level, component, __VA_ARGS__)

// A macro can't be given an empty "..." before C++20, so a format without arguments needs a form
// of its own. The arguments push the right form's name into place.
#define LOG_MSG_PICK_(format, a1, a2, a3, a4, a5, a6, form, ...) form
#define LOG_MSG_BARE_(level, component, format) \
  Logger::LogMsg(Logger::level, component, format, __LINE__)
#define LOG_MSG_ARGS_(level, component, format, ...) \
  Logger::LogMsg(Logger::level, component, format, __LINE__, __VA_ARGS__)

/// The components that records are filtered by, each made once.
namespace log_component {
ustring const& launcher();
ustring const& service();
ustring const& extractor();
ustring const& file_op();
ustring const& default_component();
}  // namespace log_component

/// Room for an object of static storage that is made on demand and never destroyed. It stands
/// outside its user, because a class can't set up its own static members with what it nests.
template <class T>
union Lasting {
  constexpr Lasting() : none() {}
  ~Lasting() {}
  char none;
  T object;
};

/// The process-wide log. Works from the first instruction of the process to the last, constructors
/// and destructors of static objects included: until Initialize has run, records of LEVEL_ERROR and
/// LEVEL_WARNING go to standard error.
///
/// Threads: LogMsg, LogMsg2, LogMSG_c may be called from any thread at any time. Initialize,
/// Destroy, ReloadLogFile and the functions that make and destroy the lock and the shared data may
/// run only while no other thread logs.
///
/// Processes: nothing keeps apart those that share a log file. A rotation goes unnoticed by the
/// others, which write on into the renamed file; where two rotate at the same time, records are
/// lost.
///
/// No failure of logging is ever reported through the log or to the writer of a record.
class Logger {
 public:
  /// Where records go. A number that has no name opens the log file and then writes to standard
  /// error, without time stamp.
  enum Type : int {
    TYPE_SYSLOG = 1,  ///< syslog, everything with priority LOG_ERR, without time stamp
    TYPE_STDOUT = 2,
    TYPE_STDERR = 3,
    TYPE_FILE = 4,  ///< a file that is rotated by size
  };

  /// The severities, numbered as syslog does: a lower number is more severe.
  enum Level : int {
    LEVEL_ERROR = 3,
    LEVEL_WARNING = 4,
    LEVEL_NOTE = 5,
    LEVEL_INFO = 6,
    LEVEL_DEBUG = 7,
  };

  /// Sets up output and thresholds; may be called again. `level_file` names a Config file of
  /// component=threshold lines, or is empty; when it is missing or malformed the thresholds stay
  /// as they are. A log file keeps `rotate_count` - 1 old generations, and one also for a count of
  /// 1; for the standard streams and syslog the count is ignored.
  /// Returns 0, or -1 when memory is short, which leaves type and stream as they were, or when the
  /// log file has no name or can't be opened. In that case the type is the new one, but the stream
  /// is still the earlier one: standard error at first; an earlier log file, which goes on
  /// rotating; none after syslog, so that records are dropped. An earlier log file is never closed.
  static int Initialize(Type type, ustring const& log_file, ustring const& level_file,
                        int rotate_count);
  /// Ends logging and closes the log file. Records written from now on are dropped.
  static void Destroy();

  /// Writes one record when the component's threshold is at least `level`; a component without
  /// threshold has LEVEL_WARNING. The record is flushed before the call returns.
  static void LogMsg(Level level, ustring const& component, char const* format, ...)
      __attribute__((format(printf, 3, 4)));
  /// The same with an open argument list, which is used up.
  static void LogMsg2(Level level, ustring const& component, char const* format, va_list args)
      __attribute__((format(printf, 3, 0)));

  /// Closes the stream and opens the log file's path anew. When that fails, also for want of a path
  /// after a failed Initialize, the log is silent until the next Initialize. Nothing to do when the
  /// type is no file.
  static void ReloadLogFile();
  /// Shifts the old generations ("PATH_0" is the youngest), makes the live file generation 0 and
  /// starts a new one. The caller holds the lock. Returns 0, or -1 when the live file couldn't be
  /// renamed or the new one not be opened: the log is then silent until the next Initialize.
  static int Rotate();

  static void InitializeLock();
  static void DestroyLock();
  static void Lock();
  static void Unlock();
  /// There is no lock between processes: these do nothing.
  static void InitializeFileLock();
  static void DestroyFileLock();
  /// The size and the shared rotation counter, uncleared: Initialize or the next record gives them
  /// their values.
  static void InitializeSharedData();
  static void DestroySharedData();

 private:
  friend struct LoggerProbe;  // lets the tests look at the members below

  static bool Start();
  static bool HasSharedData();
  static void SetSharedData();
  static bool IsStandardType();
  static bool IsPassing(Level level, ustring const& component);
  static bool OpenLogFile(ustring const& path);
  static void CloseLogFile();
  static void FollowRotation();
  static int WriteRecord(char const* format, va_list args) __attribute__((format(printf, 1, 0)));
  static void CountWritten(int written);

  // A record may be written before any constructor of static objects has run, and after all of
  // their destructors. So these members are set up by the compiler; what it can't set up is made by
  // Start(), with which every function begins that touches it. What is read ahead of the lock, or
  // made on demand by whichever thread logs first, is atomic.
  inline static Lasting<std::map<ustring, int>> log_level_room;
  inline static Lasting<ustring> log_path_room;

  inline static Type log_type = TYPE_STDOUT;
  inline static int rotate_cnt = 50;
  inline static int log_flock = -1;           // reserved for a lock between processes
  inline static bool log_initialized = true;  // false only after Destroy
  inline static std::map<ustring, int>& log_level = log_level_room.object;
  // Standard error from Start() on. On purpose not the stream that the type names: an early record
  // belongs there.
  inline static std::atomic<FILE*> log_fp{nullptr};
  inline static std::atomic<int*> log_size{nullptr};  // bytes written since the file was opened
  inline static ustring& log_path = log_path_room.object;
  inline static std::atomic<std::mutex*> log_lock{nullptr};
  inline static bool inter_process_safe = false;  // reserved
  // Rotations done, and those that this process has followed. They differ only when the first one
  // lives in memory that another process writes too, which isn't so here.
  inline static std::atomic<std::uint64_t*> log_rotated_count_shared{nullptr};
  inline static std::uint64_t log_rotated_count_private = 0;

  // Whether the shared data have their values; they are allocated without any.
  inline static bool shared_data_set = false;
  inline static bool const started = Start();
};

/// LogMsg2 for callers that hold neither a ustring nor a Logger::Level.
void LogMSG_c(int level, char* component, char const* format, va_list args)
    __attribute__((format(printf, 3, 0)));
