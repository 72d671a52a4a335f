#pragma once

#include <string>

#include "support/files.h"
#include "support/sandbox.h"

/// What may stand on the disk around an upgrade, by the names of docs/upgrade-transaction.md.
namespace test {

/// The trees that a sweep deals with: the one that is installed at the beginning, the one that the
/// bundle carries, and one that an attempt in the past has left as a backup.
struct UpgradeTrees {
  Tree former;
  Tree carried;
  Tree stale;
};

/// The name of the state that a per-user root is in, or a description that begins with "no state".
std::string StateOf(std::string const& user_root, UpgradeTrees const& trees);

/// Whether a whole former tree stands under the live name or that of a backup.
bool HoldsFormerTree(std::string const& user_root, UpgradeTrees const& trees);

/// Whether the carried tree stands under the live name: names, bytes and modes.
bool HoldsCarriedTree(std::string const& user_root, UpgradeTrees const& trees);

}  // namespace test
