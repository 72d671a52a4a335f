#pragma once

namespace test {

/// While one of these lives, a record whose format begins with the tag of another level than the
/// one that it is logged with fails the test: a captured record passes at its tag's number and not
/// one below. Belongs to whatever captures records with all thresholds at 7, where any level
/// passes. Does nothing on macOS, where the linker can't hand the calls over.
class LevelCheck {
 public:
  LevelCheck();
  ~LevelCheck();
  LevelCheck(LevelCheck const&) = delete;
  LevelCheck& operator=(LevelCheck const&) = delete;
};

}  // namespace test
