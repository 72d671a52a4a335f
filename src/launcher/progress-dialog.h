#pragma once

#include <QProgressDialog>
#include <QString>

/// The one window of the launcher: a progress dialog with a fixed look, driven from outside. Main
/// thread only. Making it shows nothing; a missing icon or font shows as exactly that.
class ProcessingProgressDialog : public QProgressDialog {
  Q_OBJECT

 public:
  ProcessingProgressDialog();
  ~ProcessingProgressDialog() override;

  /// The family of all its texts; size and weight are the toolkit's.
  static QString FontFamily();
};
