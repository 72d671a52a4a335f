// main() for tests of code with a window, which stays offscreen.
#include <gmock/gmock.h>
#include <stdlib.h>

#include <QApplication>

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  // The build lists the tests, which needs no window and none of the files that Qt keeps for one.
  if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  Q_INIT_RESOURCE(texts);
  QApplication const app(argc, argv);
  return RUN_ALL_TESTS();
}
