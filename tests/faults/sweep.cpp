#include "faults/sweep.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <vector>

namespace fs = std::filesystem;

namespace test {
namespace {

constexpr char kExecutable[] = "Contents/MacOS/larkmoor-drive-ui";
constexpr char kInfo[] = "Contents/Resources/INFO";

std::string Noise(size_t size, unsigned seed) {
  std::mt19937 random(seed);
  std::string noise(size, '\0');
  for (char& byte : noise) byte = static_cast<char>(random());
  return noise;
}

/// The entries of every client.
void MakeTinyClient(fs::path const& folder, int build) {
  auto const seed = static_cast<unsigned>(build);
  std::string const number = std::to_string(build);
  WriteFile(folder / "Contents/Frameworks/libsync", Noise(12000, seed) + number);
  fs::create_symlink("../Frameworks", folder / "Contents/Frameworks/link");
  WriteFile(folder / kExecutable, "#!/bin/sh\necho " + number +
                                      " >> \"$HOME/starts\"\n"
                                      "set -- /proc/$$/fd/*\necho $# >> \"$HOME/descriptors\"\n");
  fs::permissions(folder / kExecutable, fs::perms(0755));
  WriteFile(folder / kInfo, "[Version]\nbuild_version=" + number + "\n");
}

/// Adds everything else that a package may contain: empty and nonempty folders, files of zero, one
/// and several blocks.
void MakeSmallClient(fs::path const& folder, int build) {
  MakeTinyClient(folder, build);
  auto const seed = static_cast<unsigned>(build);
  std::string const number = std::to_string(build);
  auto const path = [&](std::string const& inside) { return folder / "Contents" / inside; };
  WriteFile(path("Info.plist"), "<plist/>" + number);
  WriteFile(path("Frameworks/libsync." + number), Noise(25000, seed));
  WriteFile(path("Frameworks/helper"), Noise(3000, seed + 1));
  fs::permissions(path("Frameworks/helper"), fs::perms(0755));
  fs::create_symlink("libsync." + number, path("Frameworks/libsync.so"));
  fs::create_directories(path("PlugIns/empty"));
  for (char const* name : {"a", "b b", "\303\251", "deep/er/c", "deep/er/d", "deep/er/e", "deep/f",
                           "g", "h", "i", "j", "k", "l", "m", "nothing"}) {
    std::string const contents = std::string(name) == "nothing" ? "" : name + Noise(200, seed + 2);
    WriteFile(path(std::string("Resources/") + name), contents);
  }
  fs::create_symlink("deep/er", path("Resources/shortcut"));
}

void MakeClient(fs::path const& folder, int build, SweepMaterial::Size size) {
  if (size == SweepMaterial::Size::kTiny) {
    MakeTinyClient(folder, build);
  } else {
    MakeSmallClient(folder, build);
  }
}

std::string MakePackage(fs::path const& client, std::string const& filter) {
  TempDir out;
  Process::Options options;
  options.arguments = {LARKMOOR_TEST_SOURCE "/scripts/make-package",
                       "--quiet",
                       "--filter",
                       filter,
                       client,
                       out / "package"};
  Outcome const outcome = Run(options);
  if (outcome.status != 0) throw std::runtime_error("make-package: " + outcome.err);
  return ReadFile(out / "package");
}

void CopyTree(fs::path const& from, fs::path const& to) {
  fs::remove_all(to);
  fs::copy(from, to, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
}

}  // namespace

SweepMaterial::SweepMaterial(Size size_of_client) : size(size_of_client) {
  TempDir clients;
  for (int build : {kStaleBuild, kFormerBuild, kCarriedBuild}) {
    MakeClient(clients / std::to_string(build), build, size);
  }
  trees.stale = ReadTree(clients / std::to_string(kStaleBuild));
  trees.former = ReadTree(clients / std::to_string(kFormerBuild));
  trees.carried = ReadTree(clients / std::to_string(kCarriedBuild));
  sound = MakePackage(clients / std::to_string(kCarriedBuild), "gzip");
  // Uncompressed, so that the entries before the damage are readable; never truncated between
  // entries, since a tar file without its end is accepted as complete.
  damaged = MakePackage(clients / std::to_string(kCarriedBuild), "none");
  damaged.resize(damaged.size() * 4 / 5 / 512 * 512 + 100);
}

SweepSandbox::SweepSandbox(SweepMaterial const& material) : material_(material) {
  sandbox_.CarryVersion(kCarriedBuild);
}

void SweepSandbox::Begin(Beginning beginning) {
  std::shared_lock<std::shared_mutex> const guard(ForkLock());
  fs::remove_all(sandbox_.Home());
  fs::create_directories(sandbox_.Home());
  if (beginning != Beginning::kNothing) MakeClient(sandbox_.App(), kFormerBuild, material_.size);
  if (beginning == Beginning::kFormerAndStaleBackup) {
    MakeClient(sandbox_.App() + "_tmp", kStaleBuild, material_.size);
  }
}

void SweepSandbox::Keep() {
  std::shared_lock<std::shared_mutex> const guard(ForkLock());
  CopyTree(sandbox_.Home(), kept_ / "home");
}

void SweepSandbox::PutBack() {
  std::shared_lock<std::shared_mutex> const guard(ForkLock());
  CopyTree(kept_ / "home", sandbox_.Home());
}

TracedRun SweepSandbox::Launch(std::string const& package, Injection const& injection) {
  sandbox_.CarryPackage(package);
  return Trace(sandbox_.Start(), {sandbox_.UserRoot(), sandbox_.Bundle() + "/Contents/Resources"},
               injection);
}

size_t SweepSandbox::Starts() const {
  std::ifstream in(sandbox_.Home() + "/starts");
  return static_cast<size_t>(std::distance(std::istream_iterator<std::string>(in), {}));
}

std::set<std::string> SweepSandbox::DescriptorsOfClients() const {
  std::ifstream in(sandbox_.Home() + "/descriptors");
  return {std::istream_iterator<std::string>(in), {}};
}

void ForEachPoint(size_t count, SweepMaterial const& material,
                  std::function<void(SweepSandbox&, size_t)> const& job) {
  std::atomic<size_t> next{0};
  auto const work = [&] {
    try {
      SweepSandbox sandbox = [&] {
        std::shared_lock<std::shared_mutex> const guard(ForkLock());
        return SweepSandbox(material);
      }();
      for (size_t i; (i = next++) < count;) job(sandbox, i);
    } catch (std::exception const& error) {
      ADD_FAILURE() << "a worker thread failed: " << error.what();
    }
  };
  std::vector<std::thread> workers;
  unsigned const cores = std::max(1U, std::thread::hardware_concurrency());
  for (unsigned i = 0; i < cores; ++i) workers.emplace_back(work);
  for (std::thread& worker : workers) worker.join();
}

void Tally::Add(std::string const& name) {
  std::lock_guard<std::mutex> const guard(lock_);
  ++counts_[name];
}

size_t Tally::Sum() const {
  size_t sum = 0;
  for (auto const& [name, count] : counts_) sum += count;
  return sum;
}

bool IsShort() {
  char const* const value = getenv("LARKMOOR_SHORT_SWEEPS");
  return value != nullptr && *value != '\0';
}

char const* NameOfVolume() { return getenv("LARKMOOR_TEST_VOLUME"); }

void Report(std::string const& line) {
  static std::ofstream figures = [] {
    char const* const volume = NameOfVolume();
    auto const* const current = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string(current->test_suite_name()) + "." + current->name() + ".txt";
    if (volume != nullptr) name = std::string(volume) + "." + name;
    std::replace(name.begin(), name.end(), '/', '.');
    fs::path const folder = LARKMOOR_TEST_FIGURES;
    fs::create_directories(folder);
    std::ofstream out(folder / name);
    if (volume != nullptr) out << volume << ":" << std::endl;
    return out;
  }();
  std::cout << line << std::endl;
  figures << line << std::endl;
}

}  // namespace test
