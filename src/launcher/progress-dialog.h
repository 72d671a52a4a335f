#pragma once

#include <QProgressDialog>

/// The one window of the launcher: a progress dialog with a fixed look, driven from outside. Main
/// thread only. Making it shows nothing; a missing icon or font shows as exactly that.
class ProcessingProgressDialog : public QProgressDialog {
  Q_OBJECT

 public:
  ProcessingProgressDialog();
  ~ProcessingProgressDialog() override;

  /// Gives the application the dialog's font family, for a faster start: QProgressDialog lays
  /// itself out before the dialog sets its own font, and with one family Qt searches the system's
  /// fonts once instead of twice. Call it before the constructor.
  static void SetApplicationFont();
};
