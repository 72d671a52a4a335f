// The minimum of a Qt Widgets program: an application object that enters its event loop and leaves
// it.

#include <QApplication>
#include <QTimer>

#include "bundled-plugins.h"

int main(int argc, char** argv) {
  UseBundledPlugins(argv[0]);
  QApplication app(argc, argv);
  QTimer::singleShot(0, &app, &QApplication::quit);
  return QApplication::exec();
}
