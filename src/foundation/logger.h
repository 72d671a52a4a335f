#pragma once

#include <atomic>
#include <cstdarg>  // IWYU pragma: keep
#include <cstdint>
#include <cstdio>
#include <map>
#include <mutex>

#include "foundation/ustring.h"

/// Logs one record. `level` is a bare name of Logger::Level. The format is a literal that holds
/// everything but the time stamp, line break included; its first argument is the source line:
///
///     LOG_MSG(LEVEL_ERROR, log_component::file_op(), "[ERROR] file-op(%d): open(%s)\n", path);
///
/// The macro supplies the line. At most six arguments follow the format.
#define LOG_MSG(level, component, ...)                                                   \
  LOG_MSG_PICK_(__VA_ARGS__, LOG_MSG_ARGS_, LOG_MSG_ARGS_, LOG_MSG_ARGS_, LOG_MSG_ARGS_, \
                LOG_MSG_ARGS_, LOG_MSG_ARGS_, LOG_MSG_BARE_, unused)                     \
  (level, component, __VA_ARGS__)

// Before C++20 a macro's "..." can't be empty, so a format without arguments needs a form of its
// own. The number of arguments selects it.
#define LOG_MSG_PICK_(format, a1, a2, a3, a4, a5, a6, form, ...) form
#define LOG_MSG_BARE_(level, component, format) \
  Logger::LogMsg(Logger::level, component, format, __LINE__)
#define LOG_MSG_ARGS_(level, component, format, ...) \
  Logger::LogMsg(Logger::level, component, format, __LINE__, __VA_ARGS__)

/// The components that thresholds are set for, each constructed once.
namespace log_component {
ustring const& launcher();
ustring const& service();
ustring const& extractor();
ustring const& file_op();
ustring const& default_component();
}  // namespace log_component

/// Storage for a static object that is constructed on demand and never destroyed. Declared outside
/// its user, since a class can't initialise its own static members with a nested class.
template <class T>
union Lasting {
  constexpr Lasting() : none() {}
  ~Lasting() {}
  char none;
  T object;
};

/// The process-wide log. It works for the whole life of the process, constructors and destructors
/// of static objects included: before Initialize, records of LEVEL_ERROR and LEVEL_WARNING go to
/// standard error.
///
/// Threads: any thread may call LogMsg, LogMsg2 and LogMSG_c at any time. Initialize, Destroy,
/// ReloadLogFile and the functions that create and destroy the lock and the shared data may run
/// only while no other thread logs.
///
/// Processes: nothing synchronises processes that share a log file. They don't notice each other's
/// rotations and go on writing to the renamed file; if two rotate at the same time, records are
/// lost.
///
/// No failure to log is ever reported, neither in the log nor to the caller.
class Logger {
 public:
  /// Where records go. Any other number opens the log file, but then writes to standard error,
  /// without time stamps.
  enum Type : int {
    TYPE_SYSLOG = 1,  ///< syslog, everything with priority LOG_ERR, without time stamp
    TYPE_STDOUT = 2,
    TYPE_STDERR = 3,
    TYPE_FILE = 4,  ///< a file that is rotated by size
  };

  /// Severities, numbered as in syslog: lower is more severe.
  enum Level : int {
    LEVEL_ERROR = 3,
    LEVEL_WARNING = 4,
    LEVEL_NOTE = 5,
    LEVEL_INFO = 6,
    LEVEL_DEBUG = 7,
  };

  /// Sets up output and thresholds; may be called again. `level_file` names a Config file with
  /// lines of the form component=threshold, or is empty; if it is missing or malformed, the
  /// thresholds stay as they are. `rotate_count` - 1 old generations of a log file are kept, but at
  /// least one; standard streams and syslog ignore the count.
  /// Returns 0; or -1 if memory is short, with type and stream unchanged, or if the log file has no
  /// name or can't be opened. Then the type is the new one, but the stream is still the previous
  /// one: standard error at first; a previous log file, which keeps rotating; none after syslog, so
  /// that records are dropped. A previous log file is never closed.
  static int Initialize(Type type, ustring const& log_file, ustring const& level_file,
                        int rotate_count);
  /// Ends logging and closes the log file. Records are dropped from now on.
  static void Destroy();

  /// Writes and flushes a record if the component's threshold is at least `level`. A component
  /// without a threshold has LEVEL_WARNING.
  static void LogMsg(Level level, ustring const& component, char const* format, ...)
      __attribute__((format(printf, 3, 4)));
  /// The same with a va_list, which it consumes.
  static void LogMsg2(Level level, ustring const& component, char const* format, va_list args)
      __attribute__((format(printf, 3, 0)));

  /// Closes and reopens the log file. On failure, which includes having no path after a failed
  /// Initialize, the log is silent until the next Initialize. Does nothing for other types.
  static void ReloadLogFile();
  /// Renames the old generations ("PATH_0" is the youngest), makes the live file generation 0 and
  /// starts a new one. The caller holds the lock. Returns 0, or -1 if the live file can't be
  /// renamed or the new one can't be opened: the log is then silent until the next Initialize.
  static int Rotate();

  static void InitializeLock();
  static void DestroyLock();
  static void Lock();
  static void Unlock();
  /// No lock between processes is implemented: these do nothing.
  static void InitializeFileLock();
  static void DestroyFileLock();
  /// The size and the shared rotation counter, uninitialised: Initialize or the next record sets
  /// them.
  static void InitializeSharedData();
  static void DestroySharedData();

 private:
  friend struct LoggerProbe;  // lets the tests read the members below

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

  // A record may be written before any static constructor has run and after every static
  // destructor. So these members are initialised at compile time, and Start(), which every function
  // that needs more calls first, makes the rest. What is read without the lock, or made by
  // whichever thread logs first, is atomic.
  inline static Lasting<std::map<ustring, int>> log_level_room;
  inline static Lasting<ustring> log_path_room;

  inline static Type log_type = TYPE_STDOUT;
  inline static int rotate_cnt = 50;
  inline static int log_flock = -1;           // reserved for a lock between processes
  inline static bool log_initialized = true;  // false only after Destroy
  inline static std::map<ustring, int>& log_level = log_level_room.object;
  // Standard error once Start() has run. Deliberately not the stream of the type: early records
  // belong there.
  inline static std::atomic<FILE*> log_fp{nullptr};
  inline static std::atomic<int*> log_size{nullptr};  // bytes written since the file was opened
  inline static ustring& log_path = log_path_room.object;
  inline static std::atomic<std::mutex*> log_lock{nullptr};
  inline static bool inter_process_safe = false;  // reserved
  // Rotations done, and those this process has followed. They would differ only if the first were
  // in memory shared with another process, which isn't implemented.
  inline static std::atomic<std::uint64_t*> log_rotated_count_shared{nullptr};
  inline static std::uint64_t log_rotated_count_private = 0;

  // Whether the shared data are initialised; they are allocated uninitialised.
  inline static bool shared_data_set = false;
  inline static bool const started = Start();
};

/// LogMsg2 for callers without a ustring or a Logger::Level.
void LogMSG_c(int level, char* component, char const* format, va_list args)
    __attribute__((format(printf, 3, 0)));
