// Reading the level file, compared with QSettings and its INI format. The argument is the number of
// lines.

#include "service/config.h"

#include <benchmark/benchmark.h>

#include <QSettings>
#include <QString>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

/// A level file with this many components. It is renamed before each reading, because QSettings
/// caches what it has read from a path.
class LevelFile {
 public:
  explicit LevelFile(long lines) : path_(Folder() + "/levels-0.ini") {
    std::FILE* const file = std::fopen(path_.c_str(), "w");
    for (long i = 0; i < lines; ++i) {
      std::fprintf(file, "component_%ld_debug=%ld\n", i, 3 + i % 5);
    }
    std::fclose(file);
  }
  ~LevelFile() { std::remove(path_.c_str()); }
  LevelFile(LevelFile const&) = delete;
  LevelFile& operator=(LevelFile const&) = delete;

  std::string const& MoveOn() {
    static long count = 0;
    std::string const next = Folder() + "/levels-" + std::to_string(++count) + ".ini";
    std::rename(path_.c_str(), next.c_str());
    return path_ = next;
  }

 private:
  static std::string Folder() {
    char const* const folder = std::getenv("LARKMOOR_BENCH_FOLDER");
    return folder != nullptr ? folder : ".";
  }
  std::string path_;
};

void ReadWithConfig(benchmark::State& state) {
  LevelFile file(state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    ustring const path(file.MoveOn());
    state.ResumeTiming();
    Config levels;
    if (levels.read(path) != 0 || levels.size() != static_cast<size_t>(state.range(0))) {
      state.SkipWithError("not read whole");
    }
  }
}

void ReadWithQSettings(benchmark::State& state) {
  LevelFile file(state.range(0));
  for (auto _ : state) {
    state.PauseTiming();
    QString const path = QString::fromStdString(file.MoveOn());
    state.ResumeTiming();
    QSettings const levels(path, QSettings::IniFormat);
    if (levels.allKeys().size() != state.range(0)) state.SkipWithError("not read whole");
  }
}

BENCHMARK(ReadWithConfig)->Name("level file/read/Config")->RangeMultiplier(2)->Range(625, 40000);
BENCHMARK(ReadWithQSettings)
    ->Name("level file/read/QSettings")
    ->RangeMultiplier(2)
    ->Range(625, 40000);

}  // namespace
