// The minimum that the launcher needs: an application object, a progress dialog that is never
// shown, a thread that is started and joined, one catalogue.

#include <QApplication>
#include <QProgressDialog>
#include <QThread>
#include <QTimer>
#include <QTranslator>

#include "bundled-plugins.h"

int main(int argc, char** argv) {
  Q_INIT_RESOURCE(texts);
  UseBundledPlugins(argv[0]);
  QApplication app(argc, argv);
  QTranslator translator;
  if (!translator.load(QStringLiteral(":/enu.qm"))) return 1;
  QCoreApplication::installTranslator(&translator);
  QProgressDialog const dialog;
  QThread thread;
  thread.start();
  thread.quit();
  thread.wait();
  QTimer::singleShot(0, &app, SLOT(quit()));
  return QApplication::exec();
}
