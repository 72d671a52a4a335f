#pragma once

#include <QProgressDialog>

/// The launcher's only window: a progress dialog with a fixed look, controlled by its owner. Main
/// thread only. The constructor doesn't show it. A missing icon or font is not an error.
class ProcessingProgressDialog : public QProgressDialog {
  Q_OBJECT

 public:
  ProcessingProgressDialog();
  ~ProcessingProgressDialog() override;

  /// Sets the dialog's font family as the application's, for a faster start: QProgressDialog
  /// computes its layout before the dialog sets its own font, and with a single family Qt searches
  /// the system's fonts once instead of twice. Call it before the constructor.
  static void SetApplicationFont();
};
