#include "launcher/progress-dialog.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCoreApplication>
#include <QFont>
#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QTranslator>

#include "localisation/str-table.h"
#include "service/larkmoor-service.h"
#include "support/files.h"

namespace {

class ProgressDialog : public testing::Test {
 protected:
  ProgressDialog() { StrTable::InitStrTable(); }
};

TEST_F(ProgressDialog, HasItsFixedLook) {
  QFont const former = QApplication::font();
  QApplication::setFont(QFont(QStringLiteral("Another")));
  ProcessingProgressDialog const dialog;
  EXPECT_EQ(dialog.parent(), nullptr);
  EXPECT_EQ(dialog.windowTitle(), "Larkmoor Drive");
  EXPECT_EQ(dialog.labelText(), "Larkmoor Drive is initializing...");
  EXPECT_EQ(dialog.minimum(), 0);
  EXPECT_EQ(dialog.maximum(), 100);
  EXPECT_EQ(dialog.value(), 0);
  EXPECT_EQ(dialog.minimumWidth(), 400);
  EXPECT_EQ(dialog.maximumWidth(), 400);
  EXPECT_EQ(dialog.windowModality(), Qt::WindowModal);
  EXPECT_EQ(dialog.font().family(), "Arial");
  EXPECT_EQ(dialog.font().weight(), QFont::Normal);
  EXPECT_FALSE(dialog.font().italic());
  EXPECT_EQ(dialog.styleSheet(),
            " QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } ");
  EXPECT_FALSE(dialog.isVisible());
  QApplication::setFont(former);
}

TEST_F(ProgressDialog, HasNoCloseButton) {
  ProcessingProgressDialog const dialog;
  Qt::WindowFlags const hints = dialog.windowFlags() & ~Qt::WindowType_Mask;
  EXPECT_EQ(static_cast<int>(hints), 0x3000);
}

TEST_F(ProgressDialog, KeepsQtsDefaultsOtherwise) {
  ProcessingProgressDialog const dialog;
  EXPECT_EQ(dialog.minimumDuration(), 4000);
  EXPECT_TRUE(dialog.autoClose());
  EXPECT_TRUE(dialog.autoReset());
}

TEST_F(ProgressDialog, LoadsItsIconFromTheBundleIfItExists) {
  std::string const icon = std::string(Service::GetRootLarkmoorResourceInstallPath().c_str()) +
                           "/images/ico_72_larkmoor.png";
  std::filesystem::remove(icon);
  EXPECT_TRUE(ProcessingProgressDialog().windowIcon().availableSizes().isEmpty());
  QImage image(72, 72, QImage::Format_RGB32);
  image.fill(Qt::red);
  std::filesystem::create_directories(std::filesystem::path(icon).parent_path());
  ASSERT_TRUE(image.save(QString::fromStdString(icon)));
  EXPECT_EQ(ProcessingProgressDialog().windowIcon().availableSizes(), QList<QSize>{QSize(72, 72)});
  std::filesystem::remove(icon);
}

TEST_F(ProgressDialog, IsFourHundredPixelsWideInEveryLanguageAndWithAnyLabel) {
  for (char const* name : {"enu", "cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb",
                           "rus", "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk", "csy"}) {
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(":/%1.qm").arg(QLatin1String(name)))) << name;
    QCoreApplication::installTranslator(&translator);
    ProcessingProgressDialog dialog;
    dialog.show();
    EXPECT_EQ(dialog.width(), 400) << name;
    dialog.setLabelText(QString(300, QLatin1Char('W')));
    EXPECT_EQ(dialog.width(), 400) << name;
    QCoreApplication::removeTranslator(&translator);
  }
}

// Run once as it is and once at scale 2.
TEST_F(ProgressDialog, IsPaintedAtTheScaleOfItsScreen) {
  double const scale = qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble();
  ProcessingProgressDialog dialog;
  dialog.show();
  QPixmap const picture = dialog.grab();
  EXPECT_EQ(picture.devicePixelRatio(), scale);
  EXPECT_EQ(picture.width(), 400 * scale);
}

}  // namespace
