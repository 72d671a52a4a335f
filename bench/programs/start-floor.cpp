// The minimum of a plain start: the minimal program with the dialog as the user sees it, a lock, a
// log file, both versions read and the client started by the thread. No checks, no log records, and
// no signal between the threads except the last.

#include <fcntl.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QSettings>
#include <QThread>
#include <QTranslator>
#include <memory>

#include "bundled-plugins.h"
#include "launcher/progress-dialog.h"
#include "localisation/str-table.h"
#include "platform/bundle.h"

namespace {

void ReadVersion(QString const& bundle) {
  QSettings settings(bundle + "/Contents/Resources/INFO", QSettings::IniFormat);
  settings.beginGroup("Version");
  for (char const* part : {"major", "minor", "build", "icon_overlay"}) {
    settings.value(QString(part) + "_version").toString();
  }
}

}  // namespace

int main(int argc, char** argv) {
  Q_INIT_RESOURCE(texts);
  UseBundledPlugins(argv[0]);
  QApplication app(argc, argv);
  QString const ours = QDir::cleanPath(QApplication::applicationDirPath() + "/../..");
  QString const root = QDir::homePath() + "/.Larkmoor";
  QString const theirs = root + "/Larkmoor.app";
  QDir().mkpath(root + "/log");
  QByteArray const log = QFile::encodeName(root + "/log/launcher.log");
  if (open(log.constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644) < 0) return 1;
  QLockFile lock(QApplication::applicationDirPath() + "/start-floor.lock");
  if (!lock.tryLock(0)) return 1;
  QTranslator translator;
  if (!translator.load(QStringLiteral(":/enu.qm"))) return 1;
  QCoreApplication::installTranslator(&translator);
  StrTable::InitStrTable();

  ProcessingProgressDialog::SetApplicationFont();
  ProcessingProgressDialog dialog;
  dialog.setCancelButton(nullptr);

  bool started = false;
  std::unique_ptr<QThread> const thread(QThread::create([&] {
    ReadVersion(ours);
    ReadVersion(theirs);
    started = platform::OpenBundle(theirs);
  }));
  QObject::connect(thread.get(), &QThread::finished, &app, &QApplication::quit);
  thread->start();
  QApplication::exec();
  thread->wait();
  return started ? 0 : 1;
}
