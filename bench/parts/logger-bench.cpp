// Writing log records, compared with spdlog: to a file that rotates by size, with a flush after
// each record. spdlog is used in two ways: through a logger that the caller keeps, and by the
// component's name, as LOG_MSG does.

#include "foundation/logger.h"

#include <benchmark/benchmark.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/spdlog.h>

#include <cstdlib>
#include <memory>
#include <string>

namespace {

constexpr int kGenerations = 50;
constexpr size_t kRotateAt = 1024 * 1024;
constexpr char kComponent[] = "extractor_debug";
constexpr char kReason[] = "Can't open 'Contents/Resources/package/larkmoor.lpk'";

std::string Folder() {
  char const* const folder = std::getenv("LARKMOOR_BENCH_FOLDER");
  return folder != nullptr ? folder : ".";
}

bool StartLogger() {
  return Logger::Initialize(Logger::TYPE_FILE, ustring(Folder() + "/ours.log"), "", kGenerations) ==
         0;
}

/// The logger of the component, one of five as in the launcher, all with the same file.
std::shared_ptr<spdlog::logger> StartSpdlog() {
  auto const file = std::make_shared<spdlog::sinks::rotating_file_sink_mt>(
      Folder() + "/spdlog.log", kRotateAt, kGenerations - 1);
  for (char const* name :
       {"launcher_debug", "service_debug", kComponent, "file_op_debug", "default_component"}) {
    auto const logger = std::make_shared<spdlog::logger>(name, file);
    logger->set_level(spdlog::level::warn);
    logger->flush_on(spdlog::level::trace);
    logger->set_pattern("%b %d %H:%M:%S %v");
    spdlog::register_logger(logger);
  }
  return spdlog::get(kComponent);
}

std::shared_ptr<spdlog::logger> const& Spdlog() {
  static std::shared_ptr<spdlog::logger> const logger = StartSpdlog();
  return logger;
}

void Ours(benchmark::State& state, bool written) {
  static bool const started = StartLogger();
  if (!started) state.SkipWithError("no log file");
  for (auto _ : state) {
    if (written) {
      LOG_MSG(LEVEL_ERROR, log_component::extractor(), "[ERROR] extractor(%d): open failed: '%s'\n",
              kReason);
    } else {
      LOG_MSG(LEVEL_DEBUG, log_component::extractor(), "[DEBUG] extractor(%d): open failed: '%s'\n",
              kReason);
    }
  }
}

void SpdlogHeld(benchmark::State& state, bool written) {
  spdlog::logger* const logger = Spdlog().get();
  for (auto _ : state) {
    logger->log(written ? spdlog::level::err : spdlog::level::debug,
                "[ERROR] extractor({}): open failed: '{}'", __LINE__, kReason);
  }
}

void SpdlogByName(benchmark::State& state, bool written) {
  Spdlog();
  std::string const name = kComponent;
  for (auto _ : state) {
    spdlog::get(name)->log(written ? spdlog::level::err : spdlog::level::debug,
                           "[ERROR] extractor({}): open failed: '{}'", __LINE__, kReason);
  }
}

// The argument is the number of threads.
#define RECORD(kind, written)                               \
  BENCHMARK_CAPTURE(Ours, kind, written)                    \
      ->Name("log " #kind "/record/Logger")                 \
      ->ThreadRange(1, 4)                                   \
      ->UseRealTime();                                      \
  BENCHMARK_CAPTURE(SpdlogHeld, kind, written)              \
      ->Name("log " #kind "/record/spdlog, held logger")    \
      ->ThreadRange(1, 4)                                   \
      ->UseRealTime();                                      \
  BENCHMARK_CAPTURE(SpdlogByName, kind, written)            \
      ->Name("log " #kind "/record/spdlog, logger by name") \
      ->ThreadRange(1, 4)                                   \
      ->UseRealTime()

RECORD(filtered, false);
RECORD(written, true);

}  // namespace
