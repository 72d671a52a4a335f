// Logs before the first static constructor and after the last static destructor. This file must not
// include the logger's header, which would change the order of construction.

#include "support/programs/log-outside-main.h"

#include <cstdlib>

namespace {

[[gnu::constructor(101)]] void Begin() {
  if (std::getenv("LARKMOOR_TEST_ROTATE_FIRST") != nullptr) RotateLog();
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
