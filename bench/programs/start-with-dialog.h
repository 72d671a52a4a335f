#pragma once

#include <QApplication>
#include <QProgressDialog>
#include <QThread>
#include <QTimer>
#include <QTranslator>
#include <memory>

#include "bundled-plugins.h"

/// What the launcher can't do without, and nothing else: an application object, a progress dialog
/// that is never shown, a thread started and joined, one catalogue. `make` gives the dialog as a
/// std::unique_ptr. The result is the exit status.
template <class Make>
int StartWithDialog(int argc, char** argv, Make make) {
  Q_INIT_RESOURCE(texts);
  UseBundledPlugins(argv[0]);
  QApplication app(argc, argv);
  QTranslator translator;
  if (!translator.load(QStringLiteral(":/enu.qm"))) return 1;
  QCoreApplication::installTranslator(&translator);
  std::unique_ptr<QProgressDialog> const dialog = make();
  QThread thread;
  thread.start();
  thread.quit();
  thread.wait();
  QTimer::singleShot(0, &app, &QApplication::quit);
  return QApplication::exec();
}
