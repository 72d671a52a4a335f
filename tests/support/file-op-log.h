#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "support/files.h"
#include "support/level-check.h"
#include "support/logger-probe.h"

namespace test {

/// Captures the log of the file operations, at all levels, until the end of the scope. The level of
/// each record must match its tag.
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

  /// The lines without time stamp, with # for the line number.
  std::vector<std::string> Lines() const {
    std::vector<std::string> lines;
    std::istringstream text(ReadFile(folder_ / "log"));
    for (std::string line; std::getline(text, line);) {
      constexpr std::size_t kStamp = sizeof("Jan 31 23:59:59 ") - 1;
      line.erase(0, kStamp);
      std::size_t const number = line.find("(") + 1;
      line.replace(number, line.find(")") - number, "#");
      lines.push_back(line);
    }
    return lines;
  }

  /// The same without debug lines, which every stat of a file writes.
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
