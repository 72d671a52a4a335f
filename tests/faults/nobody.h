#pragma once

#include "support/sandbox.h"

namespace test {

/// An unprivileged user, for tests that run as root.
constexpr unsigned kNobody = 65534;

/// Whether this process can become that user.
bool CanBecomeNobody();

/// Changes the owner of everything in the sandbox to that user and returns how to start the
/// launcher as that user.
Process::Options StartAsNobody(Sandbox const& sandbox);

}  // namespace test
