#include "launcher/progress-dialog.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QString>

#include "localisation/str-table.h"
#include "service/larkmoor-service.h"

namespace {

constexpr int kAppName = 438;    // app_name
constexpr int kPreparing = 371;  // desc_lkmr_env_preparing
constexpr int kWidth = 400;      // pixels

QString FontFamily() { return QStringLiteral("Arial"); }

}  // namespace

ProcessingProgressDialog::ProcessingProgressDialog() : QProgressDialog(nullptr, {}) {
  QFont const font(FontFamily(), -1, -1, false);
  QString const icon =
      QString::fromUtf8(Service::GetRootLarkmoorResourceInstallPath().c_str_utf8()) +
      "/images/ico_72_larkmoor.png";
  setWindowTitle(StrTable::LoadStr(kAppName));
  setWindowIcon(QIcon(icon));
  setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
  setValue(0);
  setRange(0, 100);
  setLabelText(StrTable::LoadStr(kPreparing));
  setFont(font);
  setFixedWidth(kWidth);
  setModal(true);
  setWindowModality(Qt::WindowModal);
  setStyleSheet(QStringLiteral(
      " QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } "));
}

ProcessingProgressDialog::~ProcessingProgressDialog() = default;

void ProcessingProgressDialog::SetApplicationFont() {
  QFont font = QApplication::font();
  font.setFamily(FontFamily());
  QApplication::setFont(font);
}
