// Logs before the first constructor of a static object and after the last destructor. This file
// knows nothing of the logger's header, which would bring its own order of construction.

#include "support/programs/log-outside-main.h"

#include <cstdlib>

namespace {

[[gnu::constructor(101)]] void Begin() {
  if (std::getenv("LARKMOOR_TEST_LOG_FROM_THE_BEGINNING") != nullptr) OpenLog();
  Log("first constructor");
}

[[gnu::destructor(101)]] void End() {
  Log("last destructor");
  FillLog();
  Log("after the rotation");
}

struct Object {
  Object() { Log("object made"); }
  ~Object() { Log("object destroyed"); }
} const object;

}  // namespace

int main() {
  if (std::getenv("LARKMOOR_TEST_LOG_FROM_THE_BEGINNING") == nullptr) OpenLog();
  Log("main");
  return 0;
}
