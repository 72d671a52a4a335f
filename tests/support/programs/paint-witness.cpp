// Linked into a launcher: records what its dialog does on the screen, one line per event, in the
// file that LARKMOOR_TEST_WITNESS names.
//
//   show          the dialog is about to be shown
//   paint V T     its label, with text T, gets a paint event while the progress is V
//   hide S        it is about to be hidden; S tells what the screen shows: "shown" if it is the
//                 dialog as it would paint itself now, "stale" if it isn't
//
// If LARKMOOR_TEST_WITNESS_PICTURE names a file, the screen at the last event is saved there.
#include <dlfcn.h>

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QPaintEvent>
#include <QPixmap>
#include <QProgressBar>
#include <QProgressDialog>
#include <QScreen>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

void Write(std::string const& line) {
  FILE* const file = fopen(getenv("LARKMOOR_TEST_WITNESS"), "ae");
  if (file == nullptr) abort();
  fprintf(file, "%s\n", line.c_str());
  fclose(file);
}

/// Sees every event of the main thread before its receiver.
class Witness : public QObject {
 public:
  bool eventFilter(QObject* object, QEvent* event) override {
    auto const* const label = qobject_cast<QLabel*>(object);
    if (event->type() == QEvent::Paint && label != nullptr && !own_grab) {
      auto const* const bar = label->window()->findChild<QProgressBar*>();
      Write("paint " + std::to_string(bar->value()) + " " + label->text().toStdString());
    }
    return false;
  }

  /// Compares the screen with the dialog as it would paint itself now.
  bool ShowsOnScreen(QWidget& dialog) {
    QRect const place = dialog.geometry();
    QPixmap const screen =
        dialog.screen()->grabWindow(0, place.x(), place.y(), place.width(), place.height());
    if (char const* file = getenv("LARKMOOR_TEST_WITNESS_PICTURE")) screen.save(file);
    own_grab = true;
    QPixmap const repainted = dialog.grab();
    own_grab = false;
    return screen.toImage().convertToFormat(QImage::Format_RGB32) ==
           repainted.toImage().convertToFormat(QImage::Format_RGB32);
  }

 private:
  bool own_grab = false;
};

Witness& TheWitness() {
  static Witness witness;
  return witness;
}

void Begin() { QCoreApplication::instance()->installEventFilter(&TheWitness()); }
Q_COREAPP_STARTUP_FUNCTION(Begin)

}  // namespace

// Replaces Qt's own, and calls it: no event precedes hide().
void QDialog::setVisible(bool visible) {
  using Original = void (*)(QDialog*, bool);
  static auto const original =
      reinterpret_cast<Original>(dlsym(RTLD_NEXT, "_ZN7QDialog10setVisibleEb"));
  if (visible) Write("show");
  if (!visible && isVisible()) {
    Write(TheWitness().ShowsOnScreen(*this) ? "hide shown" : "hide stale");
  }
  original(this, visible);
}
