// A disk that records what reaches it: a file system with one file, "disk", for a loop device. It
// records each write and flush on arrival and on completion, so that the disk can be reconstructed
// as a power loss at any moment leaves it. What the test writes to the file "note" is recorded as
// well.
//
// usage: recording-disk IMAGE LOG LATENCY RATE SEED MOUNT-POINT, in the foreground. Each request
// takes a random latency, LATENCY microseconds on average, plus the transfer time at RATE MB/s.
//
// The log is a sequence of records: a byte for the kind (W and w for the arrival and the completion
// of a write, F and f for those of a flush, N for a note), the request's number (8 bytes), the
// offset (8), the length (4) and, for W and N, that many bytes. Numbers are in native byte order.
#define FUSE_USE_VERSION 31
#include <fcntl.h>
#include <fuse.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <random>
#include <string>
#include <thread>

namespace {

using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::duration<double, std::micro>;

constexpr char kDisk[] = "/disk";
constexpr char kNote[] = "/note";

int image = -1;
int log_file = -1;
double latency = 0;
double rate = 1;
Clock::time_point transferred;  ///< when the bytes of all requests so far have been transferred
std::atomic<uint64_t> requests{0};
std::mutex lock;
std::mt19937_64 random_bits;

void Record(char kind, uint64_t request, off_t place = 0, uint32_t size = 0,
            char const* bytes = nullptr) {
  std::string entry(1, kind);
  auto const add = [&entry](auto number) {
    entry.append(reinterpret_cast<char const*>(&number), sizeof(number));
  };
  add(request);
  add(static_cast<uint64_t>(place));
  add(size);
  if (bytes != nullptr) entry.append(bytes, size);
  std::lock_guard<std::mutex> const guard(lock);
  if (write(log_file, entry.data(), entry.size()) != static_cast<ssize_t>(entry.size())) abort();
}

void TakeTime(size_t size) {
  Clock::time_point end;
  {
    std::lock_guard<std::mutex> const guard(lock);
    transferred =
        std::max(transferred, Clock::now()) +
        std::chrono::duration_cast<Clock::duration>(Microseconds(static_cast<double>(size) / rate));
    end = transferred + std::chrono::duration_cast<Clock::duration>(Microseconds(
                            std::exponential_distribution<>(1)(random_bits) * latency));
  }
  std::this_thread::sleep_until(end);
}

int Getattr(char const* path, struct stat* info, fuse_file_info* /*file*/) {
  if (strcmp(path, kDisk) == 0) return fstat(image, info) == 0 ? 0 : -errno;
  *info = {};
  if (strcmp(path, "/") == 0) {
    info->st_mode = S_IFDIR | 0700;
  } else if (strcmp(path, kNote) == 0) {
    info->st_mode = S_IFREG | 0600;
  } else {
    return -ENOENT;
  }
  return 0;
}

int Open(char const* /*path*/, fuse_file_info* file) {
  file->direct_io = 1;  // no page cache
  return 0;
}

int Truncate(char const* path, off_t /*size*/, fuse_file_info* /*file*/) {
  return strcmp(path, kNote) == 0 ? 0 : -EPERM;
}

int Read(char const* path, char* buffer, size_t size, off_t at, fuse_file_info* /*file*/) {
  if (strcmp(path, kDisk) != 0) return 0;
  ssize_t const count = pread(image, buffer, size, at);
  return count < 0 ? -errno : static_cast<int>(count);
}

int Write(char const* path, char const* bytes, size_t size, off_t at, fuse_file_info* /*file*/) {
  if (strcmp(path, kNote) == 0) {
    Record('N', 0, 0, static_cast<uint32_t>(size), bytes);
    return static_cast<int>(size);
  }
  uint64_t const request = ++requests;
  Record('W', request, at, static_cast<uint32_t>(size), bytes);
  TakeTime(size);
  ssize_t const count = pwrite(image, bytes, size, at);
  if (count != static_cast<ssize_t>(size)) return -EIO;
  Record('w', request);
  return static_cast<int>(count);
}

int Fsync(char const* /*path*/, int /*data_only*/, fuse_file_info* /*file*/) {
  uint64_t const request = ++requests;
  Record('F', request);
  TakeTime(0);
  Record('f', request);
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 7) return 2;
  image = open(argv[1], O_RDWR | O_CLOEXEC);
  log_file = open(argv[2], O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
  if (image < 0 || log_file < 0) return 1;
  latency = strtod(argv[3], nullptr);
  rate = strtod(argv[4], nullptr);
  random_bits.seed(strtoull(argv[5], nullptr, 10));

  fuse_operations operations = {};
  operations.getattr = Getattr;
  operations.open = Open;
  operations.truncate = Truncate;
  operations.read = Read;
  operations.write = Write;
  operations.fsync = Fsync;
  char foreground[] = "-f";
  char* arguments[] = {argv[0], foreground, argv[6], nullptr};
  return fuse_main(3, arguments, &operations, nullptr);
}
