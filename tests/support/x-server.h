#pragma once

#include <string>

#include "support/process.h"

namespace test {

/// An X server of a test's own, with nobody else on it.
class XServer {
 public:
  static bool IsInstalled();
  /// Starts it and waits until it takes connections.
  XServer();

  /// What DISPLAY has to say.
  std::string const& Display() const { return display_; }

 private:
  Process process_;
  std::string display_;
};

}  // namespace test
