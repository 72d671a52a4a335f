#include <QDesktopServices>
#include <QProcess>
#include <QString>
#include <QUrl>

#include "platform/bundle.h"

namespace platform {

int ForgetBundle(QString const& bundle) {
  return QProcess::execute(QStringLiteral(LARKMOOR_REGISTRATION_TOOL),
                           {QStringLiteral("-u"), bundle});
}

bool OpenBundle(QString const& bundle) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(bundle));
}

}  // namespace platform
