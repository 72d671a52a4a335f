// Allocates memory, touches it and frees it, so that the next program gets pages that the machine
// already has. A virtual machine may have returned free memory to the host; touching it first then
// takes up to three times as long as copying into it.
//
// usage: warm-memory BYTES

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdlib>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  std::size_t const size = std::strtoull(argv[1], nullptr, 10);
  void* const taken =
      mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (taken == MAP_FAILED) return 1;
  std::size_t const page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  auto* const bytes = static_cast<char volatile*>(taken);
  for (std::size_t i = 0; i < size; i += page) bytes[i] = 1;
  return 0;
}
