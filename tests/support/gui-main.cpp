// main() for tests of code with a window, which nobody needs to see.
#include <gmock/gmock.h>
#include <stdlib.h>

#include <QApplication>

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  Q_INIT_RESOURCE(texts);
  QApplication const app(argc, argv);
  return RUN_ALL_TESTS();
}
