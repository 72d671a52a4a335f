#include <QDir>
#include <QString>
#include <QStringList>
#include <QTranslator>
#include <clocale>
#include <cstdio>
#include <memory>

#include "foundation/logger.h"
#include "launcher/launcher.h"
#include "libcommon/TovarelLocale.h"
#include "localisation/str-table.h"
#include "platform/qtsingleapplication.h"
#include "service/larkmoor-service.h"

namespace {

constexpr int kLogGenerations = 50;

/// Replaces Qt's plug-in folders with the bundle's own. Without an application object yet, the
/// executable's folder comes from argv[0]; the first ".." removes the name.
void UseBundledPlugins(char const* executable) {
  QString const path = QDir::cleanPath(QString(executable) + "/../../Frameworks/plugins");
  QCoreApplication::setLibraryPaths(QStringList{path});
  printf("lib path = '%s'\n", path.toUtf8().constData());
}

/// Opens the log in the user's home, with thresholds from a file in the bundle. If the folder can't
/// be made, the log stays on standard error.
void OpenLog() {
  ustring const debug_marker = Service::GetRootLarkmoorInstallPath() + "/log/launcher.debug";
  ustring const folder = Service::GetUserLarkmoorInstallPath() + "/log";
  if (QDir(QString()).mkpath(QString::fromUtf8(folder.c_str_utf8()))) {
    Logger::Initialize(Logger::TYPE_FILE, folder + "/launcher.log", debug_marker, kLogGenerations);
  }
}

}  // namespace

// The order matters: the plug-in path comes before the application object; the log before the
// guard, so that a second start can be logged; the texts before the dialog.
int main(int argc, char** argv) {
  setlocale(LC_ALL, "");
  Q_INIT_RESOURCE(texts);
  UseBundledPlugins(argv[0]);
  QtSingleApplication app(argc, argv, true);
  OpenLog();
  if (app.isRunning()) {
    LOG_MSG(LEVEL_DEBUG, log_component::launcher(),
            "[DEBUG] main(%d): app has already launched, return\n");
    return 0;
  }

  QTranslator translator(nullptr);
  QString catalogue = QStringLiteral(":/enu.qm");
  catalogue = ":/" + TovarelLocale::getDefaultLanguage() + ".qm";
  // Its result tells no more than isEmpty().
  static_cast<void>(translator.load(catalogue, QString(), QString(), QString()));
  if (!translator.isEmpty()) QCoreApplication::installTranslator(&translator);
  StrTable::InitStrTable();

  auto const launcher = std::make_unique<Launcher>();
  launcher->Run();
  launcher->Start();
  return QApplication::exec();
}
