#include <cstdlib>
#include <string>

#include "foundation/logger.h"
#include "support/programs/log-outside-main.h"

void OpenLog() {
  if (Logger::Initialize(Logger::TYPE_FILE, std::getenv("LARKMOOR_TEST_LOG"),
                         std::getenv("LARKMOOR_TEST_LEVELS"), 50) != 0) {
    std::abort();
  }
}

void RotateLog() {
  if (Logger::Rotate() != -1) std::abort();
}

void Log(char const* text) {
  Logger::LogMsg(Logger::LEVEL_ERROR, log_component::service(), "E %s\n", text);
  Logger::LogMsg(Logger::LEVEL_DEBUG, log_component::service(), "D %s\n", text);
}

void FillLog() {
  std::string const text(1024 * 1024, 'x');
  Logger::LogMsg(Logger::LEVEL_ERROR, log_component::service(), "%s\n", text.c_str());
}
