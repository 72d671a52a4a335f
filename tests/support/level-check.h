#pragma once

namespace test {

/// While an object exists, a record whose level differs from its tag fails the test. Used wherever
/// records are captured with all thresholds at 7, where a wrong level would go unnoticed. Does
/// nothing on macOS, whose linker can't redirect the calls.
class LevelCheck {
 public:
  LevelCheck();
  ~LevelCheck();
  LevelCheck(LevelCheck const&) = delete;
  LevelCheck& operator=(LevelCheck const&) = delete;
};

}  // namespace test
