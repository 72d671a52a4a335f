#pragma once

#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "support/files.h"
#include "support/level-check.h"
#include "support/logger-probe.h"

namespace test {

/// Collects what the file operations log, all levels, for as long as it lives. Each record has to
/// be logged with the level of its tag.
class FileOpLog {
 public:
  FileOpLog() {
    LoggerProbe::Restart();
    WriteFile(folder_ / "levels", "file_op_debug=7\n");
    Logger::Initialize(Logger::TYPE_FILE, (folder_ / "log").c_str(), (folder_ / "levels").c_str(),
                       50);
  }
  ~FileOpLog() { LoggerProbe::Restart(); }
  FileOpLog(FileOpLog const&) = delete;
  FileOpLog& operator=(FileOpLog const&) = delete;

  /// The lines without stamp, and with # for the source line's number.
  std::vector<std::string> Lines() const {
    static std::regex const stamp("^[A-Z][a-z]{2} [0-9]{2} [0-9:]{8} ");
    static std::regex const number("^(\\[[A-Z]+\\] file-op)\\([0-9]+\\)");
    std::vector<std::string> lines;
    std::istringstream text(ReadFile(folder_ / "log"));
    for (std::string line; std::getline(text, line);) {
      lines.push_back(std::regex_replace(std::regex_replace(line, stamp, ""), number, "$1(#)"));
    }
    return lines;
  }

  /// The same without the debug lines, which accompany every look at a file.
  std::vector<std::string> Messages() const {
    std::vector<std::string> messages;
    for (std::string const& line : Lines()) {
      if (line.rfind("[DEBUG]", 0) != 0) messages.push_back(line);
    }
    return messages;
  }

 private:
  LevelCheck levels_;
  TempDir folder_;
};

}  // namespace test
