#include "client-window.h"

#include <QIcon>
#include <QLabel>
#include <QVBoxLayout>

#include "client-files.h"

ClientWindow::ClientWindow(QString const& build) : state_(new QLabel(this)) {
  setWindowTitle("Larkmoor Drive");
  setWindowIcon(QIcon(BundlePath() + "/Contents/Resources/images/ico_72_larkmoor.png"));

  auto* title = new QLabel("<h2>Larkmoor Drive</h2>", this);
  auto* version = new QLabel("Build " + build, this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(title);
  layout->addWidget(version);
  layout->addWidget(state_);
  setFixedWidth(320);
}

void ClientWindow::SetState(QString const& text) { state_->setText(text); }
