#pragma once

#include <functional>

namespace test {

/// Runs a part of a test in a child process that file permissions apply to, also when the test runs
/// as root. Failed expectations in it fail the test. What it needs must be reachable and, where it
/// writes, owned: see GiveAway.
void RunUnprivileged(std::function<void()> const& body);

/// Makes the user that RunUnprivileged takes the owner. Nothing to do where this process isn't
/// root.
void GiveAway(char const* path);

}  // namespace test
