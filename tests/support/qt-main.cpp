// main() for tests of code that needs an application object but no window.
#include <gmock/gmock.h>

#include <QCoreApplication>

int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  QCoreApplication const app(argc, argv);
  return RUN_ALL_TESTS();
}
