#include "support/fifo-package.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <stdexcept>
#include <system_error>

namespace fs = std::filesystem;

namespace test {

FifoPackage::FifoPackage(Sandbox& box) : path_(box.Package()), bytes_(ReadFile(path_)) {
  signal(SIGPIPE, SIG_IGN);
  fs::remove(path_);
  if (mkfifo(path_.c_str(), 0600) != 0) {
    throw std::system_error(errno, std::generic_category(), "mkfifo");
  }
}

FifoPackage::~FifoPackage() {
  if (fd_ >= 0) close(fd_);
  fs::remove(path_);
}

int FifoPackage::OpenForWriting() const {
  // Without a reader, a non-blocking open fails, so the loop can give up in time.
  int fd = -1;
  bool const open_now = WaitUntil([&] {
    fd = open(path_.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    return fd >= 0;
  });
  if (!open_now) throw std::runtime_error("nobody reads the package");
  fcntl(fd, F_SETFL, 0);
  return fd;
}

void FifoPackage::Write(int fd, std::string const& bytes) {
  size_t done = 0;
  while (done < bytes.size()) {
    ssize_t const written = write(fd, bytes.data() + done, bytes.size() - done);
    if (written <= 0) throw std::system_error(errno, std::generic_category(), "package pipe");
    done += static_cast<size_t>(written);
  }
}

bool FifoPackage::IsOpenIn(pid_t process) const {
  std::error_code ignored;
  for (auto const& entry :
       fs::directory_iterator("/proc/" + std::to_string(process) + "/fd", ignored)) {
    if (fs::read_symlink(entry.path(), ignored) == path_) return true;
  }
  return false;
}

void FifoPackage::FeedUntilHalfWritten(pid_t launcher) {
  int const counting = OpenForWriting();
  Write(counting, bytes_);
  // The next writer must not meet this pass's reader, which reads on until we close. A reader lets
  // a writer in while its own open is still in progress: only then does it show up.
  bool const began = WaitUntil([&] { return IsOpenIn(launcher); });
  close(counting);
  if (!began || !WaitUntil([&] { return !IsOpenIn(launcher); })) {
    throw std::runtime_error("the package was not counted");
  }
  fd_ = OpenForWriting();
  fed_ = bytes_.size() / 2;
  Write(fd_, bytes_.substr(0, fed_));
}

void FifoPackage::FeedTheRest() {
  Write(fd_, bytes_.substr(fed_));
  close(fd_);
  fd_ = -1;
}

}  // namespace test
