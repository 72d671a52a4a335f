// dialog-picture FOLDER: shows the launcher's dialog in the language of the locale, in the middle
// of an installation, and writes FOLDER/NAME.png, where NAME is the catalogue's. The picture shows
// the language's own name above the window and its frame. Needs a display with a window manager and
// nothing else on it.
#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <QScreen>
#include <QThread>
#include <QTranslator>
#include <cstdio>

#include "launcher/progress-dialog.h"
#include "libcommon/TovarelLocale.h"
#include "localisation/str-table.h"

namespace {

constexpr int kMargin = 8;
constexpr int kCaptionHeight = 22;
constexpr int kDeadline = 30000;   // milliseconds
constexpr int kSteadyPause = 200;  // milliseconds
constexpr int kMissesToShowAnew = 10;

/// The window on the screen, once the window manager has framed it and neither of them paints any
/// more. Null at the deadline, after printing what was missing.
QPixmap GrabFramed(QWidget& window) {
  QElapsedTimer clock;
  clock.start();
  QImage last;
  int misses = 0;
  while (clock.elapsed() < kDeadline) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, kSteadyPause);
    QThread::msleep(kSteadyPause);
    QRect const frame = window.frameGeometry();
    if (frame == window.geometry() || !window.isActiveWindow()) {
      // Windows that follow each other quickly may not get the focus, and Qt may miss the event of
      // the frame: showing the window again fixes both.
      if (++misses % kMissesToShowAnew == 0) {
        window.hide();
        window.show();
      }
      continue;
    }
    QPixmap const picture = QGuiApplication::primaryScreen()->grabWindow(
        0, frame.x(), frame.y(), frame.width(), frame.height());
    QImage const image = picture.toImage();
    if (image == last) return picture;
    last = image;
  }
  fprintf(stderr, "dialog-picture: the window %s\n",
          window.frameGeometry() == window.geometry() ? "got no frame: is there a window manager?"
          : !window.isActiveWindow()                  ? "got no focus"
                                                      : "didn't come to rest");
  return {};
}

QPixmap BelowCaption(QPixmap const& window, QString const& caption) {
  QPixmap picture(window.width() + 2 * kMargin, window.height() + kCaptionHeight + 2 * kMargin);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setPen(Qt::darkGray);
  painter.drawText(kMargin, kMargin, window.width(), kCaptionHeight - 4, Qt::AlignVCenter, caption);
  painter.drawPixmap(kMargin, kMargin + kCaptionHeight, window);
  return picture;
}

}  // namespace

int main(int argc, char** argv) {
  Q_INIT_RESOURCE(texts);
  QApplication const app(argc, argv);
  if (argc != 2) {
    fprintf(stderr, "usage: dialog-picture FOLDER\n");
    return 2;
  }
  QString const catalogue = TovarelLocale::getDefaultLanguage();
  QTranslator translator;
  if (!translator.load(":/" + catalogue + ".qm")) {
    fprintf(stderr, "dialog-picture: there is no catalogue %s\n", qPrintable(catalogue));
    return 1;
  }
  QCoreApplication::installTranslator(&translator);
  StrTable::InitStrTable();

  ProcessingProgressDialog dialog;
  dialog.setCancelButton(nullptr);
  dialog.setAutoReset(false);
  dialog.show();
  dialog.setValue(50);
  QPixmap const window = GrabFramed(dialog);
  if (window.isNull()) return 1;
  QString const caption = QLocale::system().nativeLanguageName() + "  (" + catalogue + ")";
  QString const file = QString::fromLocal8Bit(argv[1]) + "/" + catalogue + ".png";
  if (!BelowCaption(window, caption).save(file)) {
    fprintf(stderr, "dialog-picture: can't write %s\n", qPrintable(file));
    return 1;
  }
  return 0;
}
