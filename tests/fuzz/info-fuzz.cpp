// Reads arbitrary bytes as the INFO file of an installation.
#include <unistd.h>

#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "foundation/logger.h"
#include "mac/mac-service.h"

namespace fs = std::filesystem;

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size);

namespace {

void Require(bool holds, char const* what) {
  if (holds) return;
  std::fprintf(stderr, "reading the versions broke a promise: %s\n", what);
  std::abort();
}

class Versions : public MacService {
 public:
  ustring const& build() const { return source_build_version; }
  void Forget() {
    for (ustring* field : {&source_major_version, &source_minor_version, &source_build_version,
                           &source_icon_overlay_version}) {
      *field = "none";
    }
  }
  void Carry(ustring const& build) { target_build_version = build; }
};

/// A new home for each input: QSettings caches files by name.
class Home {
 public:
  Home() {
    static long number = 0;
    std::string const name = std::to_string(getpid()) + "-" + std::to_string(++number);
    folder_ = fs::temp_directory_path() / ("info-fuzz-" + name);
    fs::create_directories(Resources());
    fs::create_directories(App() + "/Contents/MacOS");
    std::ofstream(App() + "/Contents/MacOS/larkmoor-drive-ui");
    setenv("HOME", folder_.c_str(), 1);
  }
  ~Home() { fs::remove_all(folder_); }
  Home(Home const&) = delete;
  Home& operator=(Home const&) = delete;

  std::string App() const { return folder_ + "/.Larkmoor/Larkmoor.app"; }
  std::string Resources() const { return App() + "/Contents/Resources"; }

 private:
  std::string folder_;
};

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  Logger::Destroy();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
  Home const home;
  std::string const bytes(reinterpret_cast<char const*>(data), size);
  std::ofstream(home.Resources() + "/INFO", std::ios::binary) << bytes;
  Versions versions;
  versions.Forget();
  versions.LoadSourceVersion();
  ustring const build = versions.build();
  versions.Forget();
  versions.LoadSourceVersion();
  Require(versions.build() == build, "another build the second time");

  // The comparison uses the leading number, whatever follows.
  int const number = atoi(build.c_str());
  for (long const offset : {-1L, 0L, 1L}) {
    long const carried = number + offset;
    if (carried < INT_MIN || carried > INT_MAX) continue;
    versions.Carry(ustring(std::to_string(carried)));
    Require(versions.IsNeedUpgrade() == (carried > number), "a wrong decision");
  }
  std::ifstream in(home.Resources() + "/INFO", std::ios::binary);
  std::string const after{std::istreambuf_iterator<char>(in), {}};
  Require(after == bytes, "the file was written to");
  return 0;
}
