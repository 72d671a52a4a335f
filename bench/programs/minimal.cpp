// The least that a program with Qt's widgets does: an application object that enters its loop and
// leaves it.

#include <QApplication>
#include <QTimer>

#include "bundled-plugins.h"

int main(int argc, char** argv) {
  UseBundledPlugins(argv[0]);
  QApplication app(argc, argv);
  QTimer::singleShot(0, &app, &QApplication::quit);
  return QApplication::exec();
}
