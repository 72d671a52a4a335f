#pragma once

#include <string>

#include "support/process.h"

namespace test {

/// A private X server.
class XServer {
 public:
  static bool IsInstalled();
  /// Starts it and waits until it accepts connections.
  XServer();

  /// The value for DISPLAY.
  std::string const& Display() const { return display_; }

 private:
  Process process_;
  std::string display_;
};

}  // namespace test
