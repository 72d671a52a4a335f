// Takes memory, touches it and gives it back, so that the program that runs next finds pages that
// the machine holds. A virtual machine may have given its free memory to the host, and then whoever
// takes a page first waits for it: up to three times the time of a copy into memory.
//
// usage: warm-memory BYTES

#include <sys/mman.h>

#include <cstdlib>

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  void* const taken = mmap(nullptr, std::strtoull(argv[1], nullptr, 10), PROT_READ | PROT_WRITE,
                           MAP_PRIVATE | MAP_ANONYMOUS | MAP_POPULATE, -1, 0);
  return taken == MAP_FAILED ? 1 : 0;
}
