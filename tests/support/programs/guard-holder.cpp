// Queries the guard twice, or once with an argument, and prints the answer. The first instance then
// holds it until its input ends or it is killed.
#include <cstdio>

#include "platform/qtsingleapplication.h"

int main(int argc, char** argv) {
  QtSingleApplication app(argc, argv, true);
  bool const running = app.isRunning();
  puts(running ? "second" : "first");
  if (argc == 1 && running != app.isRunning()) puts("changed its mind");
  fflush(stdout);
  if (!running) {
    while (getchar() != EOF) {
    }
  }
  return 0;
}
