// Only the system calls of a copy: read and write blocks of 32 MiB, then flush.
//
// usage: copy-floor SOURCE DESTINATION

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>

int main(int argc, char** argv) {
  constexpr size_t kPiece = 32U << 20;
  if (argc != 3) return 2;
  int const source = open(argv[1], O_RDONLY | O_CLOEXEC);
  int const target = open(argv[2], O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  void* const buffer = std::malloc(kPiece);
  if (source < 0 || target < 0 || buffer == nullptr) return 1;
  ssize_t count = 0;
  while ((count = read(source, buffer, kPiece)) > 0) {
    if (write(target, buffer, static_cast<size_t>(count)) != count) return 1;
  }
  std::free(buffer);
  return count == 0 && fsync(target) == 0 ? 0 : 1;
}
