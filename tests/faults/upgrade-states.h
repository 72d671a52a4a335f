#pragma once

#include <string>

#include "support/files.h"
#include "support/sandbox.h"

/// The states of the disk around an upgrade, as named in docs/upgrade-transaction.md.
namespace test {

/// The trees of a sweep: the one installed at first, the one in the bundle and one that a previous
/// attempt left as a backup.
struct UpgradeTrees {
  Tree former;
  Tree carried;
  Tree stale;
};

/// The name of the state of a user's root, or a description that begins with "no state".
std::string StateOf(std::string const& user_root, UpgradeTrees const& trees);

/// Whether a complete old tree exists under the installation's or a backup's name.
bool HoldsFormerTree(std::string const& user_root, UpgradeTrees const& trees);

/// Whether the bundle's tree is installed: names, bytes and modes.
bool HoldsCarriedTree(std::string const& user_root, UpgradeTrees const& trees);

}  // namespace test
