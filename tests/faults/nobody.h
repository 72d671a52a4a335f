#pragma once

#include "support/sandbox.h"

namespace test {

/// A user without rights, for tests that run as root.
constexpr unsigned kNobody = 65534;

/// Whether this process can become that user.
bool CanBecomeNobody();

/// Gives everything in the sandbox to that user and returns how to start the launcher as such.
Process::Options StartAsNobody(Sandbox const& sandbox);

}  // namespace test
