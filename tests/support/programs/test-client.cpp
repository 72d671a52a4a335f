// A fake client without a window: writes its pid file, then waits for SIGTERM.
//
//     test-client PID_FILE obey|ignore
#include <signal.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>

namespace {

void End(int) { _exit(0); }

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  signal(SIGTERM, strcmp(argv[2], "obey") == 0 ? End : SIG_IGN);
  FILE* const file = fopen(argv[1], "w");
  if (file == nullptr) return 1;
  fprintf(file, "pid=\"%d\"\n", static_cast<int>(getpid()));
  if (fclose(file) != 0) return 1;
  for (;;) pause();
}
