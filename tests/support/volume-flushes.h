#pragma once

#include <functional>
#include <string>

namespace test {

/// A stub for platform::FlushVolume in programs that link volume-flushes.cpp: doesn't flush, but
/// reports each call to the test. One object at a time.
struct VolumeFlushes {
  VolumeFlushes();
  ~VolumeFlushes();
  VolumeFlushes(VolumeFlushes const&) = delete;
  VolumeFlushes& operator=(VolumeFlushes const&) = delete;

  /// Called with each path.
  std::function<void(std::string const& path)> seen;
  /// Whether flushes fail.
  bool fail = false;
};

}  // namespace test
