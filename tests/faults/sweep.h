#pragma once

#include <functional>
#include <map>
#include <mutex>
#include <set>
#include <string>

#include "faults/tracer.h"
#include "faults/upgrade-states.h"
#include "support/sandbox.h"

/// Shared by the sweeps: clients small enough to be installed thousands of times, homes that can be
/// restored, and parallel runs.
namespace test {

constexpr int kStaleBuild = 90;
constexpr int kFormerBuild = 100;
constexpr int kCarriedBuild = 200;

/// A small client's package from scripts/make-package, complete and truncated after its first half,
/// and the trees that a sweep compares with.
struct SweepMaterial {
  /// A tiny client has one entry of each kind, for sweeps with many runs at each point.
  enum class Size { kTiny, kSmall };
  explicit SweepMaterial(Size size_of_client);

  Size const size;

  std::string sound;
  std::string damaged;
  UpgradeTrees trees;
};

/// The initial state of a sweep.
enum class Beginning { kNothing, kFormer, kFormerAndStaleBackup };

/// A sandbox whose home is restored for each run. One thread at a time.
class SweepSandbox {
 public:
  explicit SweepSandbox(SweepMaterial const& material);

  void Begin(Beginning beginning);
  /// Saves the home, and restores it.
  void Keep();
  void PutBack();
  /// Starts the launcher with this package in its bundle.
  TracedRun Launch(std::string const& package, Injection const& injection);

  Sandbox const& sandbox() const { return sandbox_; }
  std::string State() const { return StateOf(sandbox_.UserRoot(), material_.trees); }
  bool HoldsFormer() const { return HoldsFormerTree(sandbox_.UserRoot(), material_.trees); }
  bool HoldsCarried() const { return HoldsCarriedTree(sandbox_.UserRoot(), material_.trees); }
  /// How often the client has started since Begin().
  size_t Starts() const;
  /// The numbers of the descriptors that these clients found open.
  std::set<std::string> DescriptorsOfClients() const;

 private:
  SweepMaterial const& material_;
  Sandbox sandbox_;
  TempDir kept_;
};

/// Calls `job` once with each of 0 to `count` - 1, on as many threads as there are cores. Each
/// thread has its own sandbox.
void ForEachPoint(size_t count, SweepMaterial const& material,
                  std::function<void(SweepSandbox&, size_t)> const& job);

/// Counts by name. Any thread.
class Tally {
 public:
  void Add(std::string const& name);
  size_t Sum() const;
  std::map<std::string, size_t> const& counts() const { return counts_; }

 private:
  std::mutex lock_;
  std::map<std::string, size_t> counts_;
};

/// Whether LARKMOOR_SHORT_SWEEPS requests the same points with fewer runs at each.
bool IsShort();

/// The volume on which LARKMOOR_TEST_VOLUME says these tests run, or null.
char const* NameOfVolume();

/// Prints a line and adds it to the figures of this test, which scripts/test shows, separately for
/// each volume.
void Report(std::string const& line);

}  // namespace test
