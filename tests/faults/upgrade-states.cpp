#include "faults/upgrade-states.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <vector>

namespace fs = std::filesystem;

namespace test {
namespace {

constexpr char kApp[] = "/Larkmoor.app";
constexpr int kBackups = 10;

enum class Content { kNothing, kFormer, kCarried, kStale, kPart, kForeign };

/// Whether a file has a prefix of the expected bytes. libarchive gives a truncated file its full
/// size, with zeros at the end.
bool IsBeginningOf(std::string const& part, std::string const& whole) {
  size_t const end = part.find_last_not_of('\0');
  size_t const size = end == std::string::npos ? 0 : end + 1;
  return part.size() <= whole.size() && whole.compare(0, size, part, 0, size) == 0;
}

/// Whether a tree is a partly written or removed one: only its files, each with a prefix of its
/// bytes.
bool IsPartOf(Tree const& part, Tree const& whole) {
  return std::all_of(part.begin(), part.end(), [&](auto const& entry) {
    auto const& [path, node] = entry;
    auto const found = whole.find(path);
    return found != whole.end() && found->second.type == node.type &&
           IsBeginningOf(node.content, found->second.content);
  });
}

Content Classify(std::string const& path, UpgradeTrees const& trees) {
  if (!fs::exists(fs::symlink_status(path))) return Content::kNothing;
  Tree const tree = ReadTree(path);
  if (!tree.empty() && tree == trees.former) return Content::kFormer;
  if (!tree.empty() && tree == trees.carried) return Content::kCarried;
  if (!tree.empty() && tree == trees.stale) return Content::kStale;
  if (IsPartOf(tree, trees.carried) || IsPartOf(tree, trees.former) ||
      IsPartOf(tree, trees.stale)) {
    return Content::kPart;
  }
  return Content::kForeign;
}

std::string Backup(int number) {
  return std::string(kApp) + "_tmp" + (number == 0 ? "" : std::to_string(number));
}

/// The trees under the names of backups.
std::set<Content> Backups(std::string const& user_root, UpgradeTrees const& trees) {
  std::set<Content> all;
  for (int i = 0; i < kBackups; ++i) all.insert(Classify(user_root + Backup(i), trees));
  all.erase(Content::kNothing);
  return all;
}

/// Names in the root that belong to no state.
std::string ForeignNames(std::string const& user_root) {
  std::set<std::string> known = {"log", "Larkmoor.app"};
  for (int i = 0; i < kBackups; ++i) known.insert(Backup(i).substr(1));
  std::string foreign;
  for (auto const& entry : fs::directory_iterator(user_root)) {
    std::string const name = entry.path().filename();
    if (known.count(name) == 0) foreign += " " + name;
  }
  return foreign;
}

char const* NameOf(Content app, std::set<Content> const& backups) {
  bool const former_is_aside = backups.count(Content::kFormer) != 0;
  switch (app) {
    case Content::kNothing:
      if (former_is_aside) return "moved aside";
      return backups.empty() ? "nothing installed" : "moved aside, a part of a first installation";
    case Content::kFormer:
      return backups.empty() ? "stable, old tree" : "stable, old tree beside stale backups";
    case Content::kCarried:
      return backups.empty() ? "stable, new tree" : "committing";
    case Content::kPart:
      if (former_is_aside) return "extracting";
      return backups.empty() ? "extracting, first installation"
                             : "extracting, first installation once more";
    case Content::kStale:
    case Content::kForeign:
      break;
  }
  return nullptr;
}

}  // namespace

std::string StateOf(std::string const& user_root, UpgradeTrees const& trees) {
  if (!fs::exists(user_root)) return "nothing installed";
  std::string const foreign = ForeignNames(user_root);
  if (!foreign.empty()) return "no state: holds" + foreign;
  std::set<Content> const backups = Backups(user_root, trees);
  if (backups.count(Content::kForeign) != 0) return "no state: a backup of unknown content";
  char const* const name = NameOf(Classify(user_root + kApp, trees), backups);
  return name != nullptr ? name : "no state: an application folder of unknown content";
}

bool HoldsFormerTree(std::string const& user_root, UpgradeTrees const& trees) {
  return Classify(user_root + kApp, trees) == Content::kFormer ||
         Backups(user_root, trees).count(Content::kFormer) != 0;
}

bool HoldsCarriedTree(std::string const& user_root, UpgradeTrees const& trees) {
  return Classify(user_root + kApp, trees) == Content::kCarried;
}

}  // namespace test
