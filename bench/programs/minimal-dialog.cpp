// A start with the toolkit's own progress dialog.

#include "start-with-dialog.h"

int main(int argc, char** argv) {
  return StartWithDialog(argc, argv, [] { return std::make_unique<QProgressDialog>(); });
}
