#include "foundation/logger.h"

#include <fcntl.h>
#include <syslog.h>

#include <cstdlib>
#include <ctime>
#include <new>

#include "service/config.h"

namespace {

constexpr int kDefaultThreshold = Logger::LEVEL_WARNING;
constexpr int kRotateAtBytes = 1024 * 1024 + 1;
constexpr int kRotateCountAfterDestroy = 32;

/// Allocates what `slot` points to, unless another thread was faster.
template <typename T>
void AllocateOnce(std::atomic<T*>& slot) {
  if (slot.load(std::memory_order_acquire) != nullptr) return;
  T* const fresh = static_cast<T*>(std::malloc(sizeof(T)));
  T* expected = nullptr;
  if (!slot.compare_exchange_strong(expected, fresh, std::memory_order_acq_rel)) std::free(fresh);
}

/// Opens for appending, close-on-exec.
FILE* OpenForAppending(ustring const& path) {
  FILE* const stream = std::fopen(path.c_str(), "a");
  if (stream != nullptr) fcntl(fileno(stream), F_SETFD, FD_CLOEXEC);
  return stream;
}

/// Local time. localtime_r doesn't have to notice changes of the time zone, and tzset costs more
/// than the rest of a record, so it runs once a second. The caller holds the lock.
tm LocalTime(time_t now) {
  static time_t zone_read_at = 0;
  if (zone_read_at != now) tzset();
  zone_read_at = now;
  tm local = {};
  localtime_r(&now, &local);
  return local;
}

int WriteTimeStamp(FILE* stream) {
  tm const local = LocalTime(std::time(nullptr));
  char stamp[512];
  std::strftime(stamp, sizeof(stamp), "%b %d %H:%M:%S ", &local);
  return std::fprintf(stream, "%s", stamp);
}

struct GenerationName {
  GenerationName(ustring const& path, int generation) {
    std::snprintf(text, sizeof(text), "%s_%d", path.c_str(), generation);
  }
  char text[1024];
};

}  // namespace

// Never destroyed: a destructor may log.
namespace log_component {

ustring const& launcher() {
  static ustring const& name = *new ustring("launcher_debug");
  return name;
}

ustring const& service() {
  static ustring const& name = *new ustring("service_debug");
  return name;
}

ustring const& extractor() {
  static ustring const& name = *new ustring("extractor_debug");
  return name;
}

ustring const& file_op() {
  static ustring const& name = *new ustring("file_op_debug");
  return name;
}

ustring const& default_component() {
  static ustring const& name = *new ustring("default_component");
  return name;
}

}  // namespace log_component

int Logger::Initialize(Type type, ustring const& log_file, ustring const& level_file,
                       int rotate_count) {
  Start();
  DestroySharedData();
  DestroyLock();  // InitializeLock keeps a lock that exists
  InitializeLock();
  InitializeFileLock();
  InitializeSharedData();
  if (!HasSharedData()) return -1;

  log_level[log_component::default_component()] = kDefaultThreshold;
  if (!level_file.empty()) {
    Config levels;
    levels.read(level_file);
    for (auto const& pair : levels) log_level[pair.first] = levels.get_int(pair.first);
  }

  log_type = type;
  if (IsStandardType()) {
    log_fp = type == TYPE_STDOUT ? stdout : type == TYPE_STDERR ? stderr : nullptr;
    log_path.clear();
    *log_size = -1;
  } else {
    if (log_file.empty() || !OpenLogFile(log_file)) return -1;
    log_path = log_file;
    rotate_cnt = rotate_count;
  }
  *log_rotated_count_shared = 0;
  log_rotated_count_private = 0;
  shared_data_set = true;
  log_initialized = true;
  return 0;
}

void Logger::Destroy() {
  log_initialized = false;
  if (log_type == TYPE_FILE) {
    CloseLogFile();
    log_fp = stdout;
    log_type = TYPE_STDERR;
    log_path.clear();
    rotate_cnt = kRotateCountAfterDestroy;
  }
  DestroySharedData();
  DestroyLock();
}

void Logger::LogMsg(Level level, ustring const& component, char const* format, ...) {
  va_list args;
  va_start(args, format);
  LogMsg2(level, component, format, args);
  va_end(args);
}

void Logger::LogMsg2(Level level, ustring const& component, char const* format, va_list args) {
  if (!log_initialized) return;
  Start();
  InitializeLock();
  InitializeSharedData();
  if (!HasSharedData()) return;
  if (log_type != TYPE_SYSLOG && log_fp.load(std::memory_order_relaxed) == nullptr) return;

  Lock();
  SetSharedData();
  FollowRotation();
  if (IsPassing(level, component)) CountWritten(WriteRecord(format, args));
  Unlock();
}

void Logger::ReloadLogFile() {
  if (IsStandardType()) return;
  CloseLogFile();
  if (!OpenLogFile(log_path)) log_fp = nullptr;
}

int Logger::Rotate() {
  Start();
  for (int i = rotate_cnt - 2; i >= 0; --i) {
    std::rename(GenerationName(log_path, i).text, GenerationName(log_path, i + 1).text);
  }
  std::remove(GenerationName(log_path, rotate_cnt - 1).text);

  CloseLogFile();
  // Only a failure may leave a null stream: a thread that reads it without the lock in the meantime
  // would drop its record.
  bool const is_renamed = std::rename(log_path.c_str(), GenerationName(log_path, 0).text) == 0;
  FILE* const stream = is_renamed ? OpenForAppending(log_path) : nullptr;
  log_fp = stream;
  if (stream == nullptr) return -1;
  SetSharedData();
  ++*log_rotated_count_shared;
  ++log_rotated_count_private;
  return 0;
}

void Logger::InitializeLock() {
  if (log_lock.load(std::memory_order_acquire) != nullptr) return;
  auto* const fresh = new std::mutex;
  std::mutex* expected = nullptr;
  if (!log_lock.compare_exchange_strong(expected, fresh, std::memory_order_acq_rel)) delete fresh;
}

void Logger::DestroyLock() { delete log_lock.exchange(nullptr); }

void Logger::Lock() { log_lock.load(std::memory_order_acquire)->lock(); }

void Logger::Unlock() { log_lock.load(std::memory_order_acquire)->unlock(); }

void Logger::InitializeFileLock() {}

void Logger::DestroyFileLock() {}

void Logger::InitializeSharedData() {
  AllocateOnce(log_size);
  AllocateOnce(log_rotated_count_shared);
}

void Logger::DestroySharedData() {
  std::free(log_size.exchange(nullptr));
  std::free(log_rotated_count_shared.exchange(nullptr));
  shared_data_set = false;
}

/// Makes what can't be initialised at compile time. Safe from any thread at any time.
bool Logger::Start() {
  static bool const made = [] {
    new (&log_level_room.object) std::map<ustring, int>;
    new (&log_path_room.object) ustring;
    log_fp = stderr;
    return true;  // for `made`, which only runs this once
  }();
  return made;
}

bool Logger::HasSharedData() {
  return log_size.load(std::memory_order_acquire) != nullptr &&
         log_rotated_count_shared.load(std::memory_order_acquire) != nullptr;
}

/// Initialises the shared data if Initialize hasn't, because it never ran or failed. No rotation is
/// then pending, and a stream that isn't our log file is never rotated. The caller holds the lock.
void Logger::SetSharedData() {
  if (shared_data_set) return;
  *log_rotated_count_shared = log_rotated_count_private;
  *log_size = IsStandardType() || log_path.empty() ? -1 : 0;
  shared_data_set = true;
}

bool Logger::IsStandardType() {
  return log_type == TYPE_SYSLOG || log_type == TYPE_STDOUT || log_type == TYPE_STDERR;
}

bool Logger::IsPassing(Level level, ustring const& component) {
  auto const found = log_level.find(component);
  int const threshold = found == log_level.end() ? kDefaultThreshold : found->second;
  return threshold >= level;
}

bool Logger::OpenLogFile(ustring const& path) {
  FILE* const stream = OpenForAppending(path);
  if (stream == nullptr) return false;
  log_fp = stream;
  *log_size = 0;
  return true;
}

void Logger::CloseLogFile() {
  if (FILE* const stream = log_fp) std::fclose(stream);
}

void Logger::FollowRotation() {
  if (log_rotated_count_private == *log_rotated_count_shared) return;
  ReloadLogFile();
  log_rotated_count_private = *log_rotated_count_shared;
}

/// Returns the bytes written to a stream whose size is counted, or 0.
int Logger::WriteRecord(char const* format, va_list args) {
  if (log_type == TYPE_SYSLOG) {
    vsyslog(LOG_ERR, format, args);
    return 0;  // of a stream that isn't counted
  }
  if (log_type != TYPE_FILE && !IsStandardType()) {
    std::vfprintf(stderr, format, args);
    return 0;  // of a stream that isn't counted
  }
  FILE* const stream = log_fp;
  if (stream == nullptr) return 0;  // another thread's rotation has failed since
  int written = WriteTimeStamp(stream);
  written += std::vfprintf(stream, format, args);
  std::fflush(stream);
  return written;
}

void Logger::CountWritten(int written) {
  if (log_type != TYPE_FILE || *log_size < 0 || written < 0) return;
  std::int64_t const size = std::int64_t{*log_size} + written;
  if (size < kRotateAtBytes) {
    *log_size = static_cast<int>(size);
    return;
  }
  Rotate();
  *log_size = 0;
}

void LogMSG_c(int level, char* component, char const* format, va_list args) {
  Logger::LogMsg2(static_cast<Logger::Level>(level), ustring(component), format, args);
}
