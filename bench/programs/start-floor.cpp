// A start with the dialog as the launcher's user sees it, and nothing to do.

#include <QFont>

#include "launcher/progress-dialog.h"
#include "localisation/str-table.h"
#include "start-with-dialog.h"

namespace {

std::unique_ptr<QProgressDialog> MakeDialog() {
  StrTable::InitStrTable();
  QFont font = QApplication::font();
  font.setFamily(ProcessingProgressDialog::FontFamily());
  QApplication::setFont(font);
  return std::make_unique<ProcessingProgressDialog>();
}

}  // namespace

int main(int argc, char** argv) { return StartWithDialog(argc, argv, MakeDialog); }
