#include "support/x-server.h"

#include <stdexcept>

namespace test {

bool XServer::IsInstalled() {
  return Run({{"sh", "-c", "command -v Xvfb"}, {}, "", "", false}).status == 0;
}

// The server picks a free number and prints it once it is ready. An abstract socket leaves no
// folder in /tmp.
XServer::XServer()
    : process_(
          {{"sh", "-c", "exec Xvfb -displayfd 1 -screen 0 800x600x24 -nolisten tcp -nolisten unix"},
           {},
           "",
           "",
           false}) {
  if (!WaitUntil([this] { return process_.Output().find('\n') != std::string::npos; })) {
    throw std::runtime_error("Xvfb did not start");
  }
  display_ = ":" + process_.Output();
  display_.pop_back();
}

}  // namespace test
