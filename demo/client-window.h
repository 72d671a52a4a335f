#pragma once

#include <QWidget>

class QLabel;

/// The client's only window: its build number and what it is doing.
class ClientWindow : public QWidget {
  Q_OBJECT

 public:
  explicit ClientWindow(QString const& build);

  void SetState(QString const& text);

 private:
  QLabel* const state_;
};
