#pragma once

#include <functional>

namespace test {

/// Runs part of a test in a child process that file permissions restrict, even if the test runs as
/// root. Failed expectations in it fail the test. The files it uses must be accessible and, where
/// it writes, owned: see GiveAway.
void RunUnprivileged(std::function<void()> const& body);

/// Gives a file to the user of RunUnprivileged. Does nothing unless this process is root.
void GiveAway(char const* path);

}  // namespace test
