#include "support/log-capture.h"

#include "foundation/logger.h"
#include "support/sandbox.h"

namespace test {

LogCapture::LogCapture() {
  WriteFile(folder_ / "levels",
            "launcher_debug=7\nservice_debug=7\nextractor_debug=7\nfile_op_debug=7\n");
  Logger::Initialize(Logger::TYPE_FILE, (folder_ / "log").c_str(), (folder_ / "levels").c_str(),
                     50);
}

LogCapture::~LogCapture() { Logger::Destroy(); }

std::vector<std::string> LogCapture::Lines() const {
  return NormaliseLog(ReadFile(folder_ / "log"));
}

std::vector<std::string> LogCapture::OwnLines() const {
  std::vector<std::string> own;
  for (std::string const& line : Lines()) {
    if (line.find("file-op(0)") == std::string::npos) own.push_back(line);
  }
  return own;
}

}  // namespace test
