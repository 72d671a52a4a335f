#pragma once

#include <functional>
#include <string>

namespace test {

/// Stands in for platform::FlushVolume in a program that is linked with volume-flushes.cpp: flushes
/// nothing and tells a test where it would have. One object at a time.
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
