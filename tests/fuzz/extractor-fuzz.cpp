// Unpacks arbitrary bytes as a package.
#include <fcntl.h>
#include <linux/landlock.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include "foundation/logger.h"
#include "service/extractor.h"
#include "support/files.h"

namespace fs = std::filesystem;

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size);

namespace {

// A small archive can contain a large file.
constexpr rlim_t kLargestFile = 1 << 20;

/// All changes, from writing a file to creating a link.
constexpr unsigned long long kChanges =
    LANDLOCK_ACCESS_FS_WRITE_FILE |
    ((LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - LANDLOCK_ACCESS_FS_REMOVE_DIR);

void Require(bool holds, char const* what) {
  if (holds) return;
  std::fprintf(stderr, "the extractor broke a promise: %s\n", what);
  std::abort();
}

struct Playground {
  Playground() {
    std::string name = fs::temp_directory_path() / "extractor-fuzz-XXXXXX";
    Require(mkdtemp(name.data()) != nullptr, "no temporary folder");
    folder = name;
    package = folder + "/package";
    tree = folder + "/tree";
  }
  ~Playground() {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }
  Playground(Playground const&) = delete;
  Playground& operator=(Playground const&) = delete;

  std::string folder;
  std::string package;
  std::string tree;
};

Playground const& Ground() {
  static Playground const ground;
  return ground;
}

void Allow(long rules, std::string const& folder) {
  landlock_path_beneath_attr rule = {};
  rule.allowed_access = kChanges;
  rule.parent_fd = open(folder.c_str(), O_PATH | O_CLOEXEC);
  if (rule.parent_fd < 0) return;
  syscall(SYS_landlock_add_rule, rules, LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
  close(rule.parent_fd);
}

/// A package may contain a symlink to anywhere and write through it. The kernel confines it: from
/// here on, only the playground and the fuzzer's own folders are writable.
bool Confine(int argc, char** argv) {
  landlock_ruleset_attr kinds = {};
  kinds.handled_access_fs = kChanges;
  long const rules = syscall(SYS_landlock_create_ruleset, &kinds, sizeof(kinds), 0);
  if (rules < 0) return false;
  Allow(rules, Ground().folder);
  Allow(rules, "/dev");
  for (int i = 1; i < argc; ++i) {
    char const* const prefix = strstr(argv[i], "artifact_prefix=");
    Allow(rules, prefix != nullptr ? strchr(prefix, '=') + 1 : argv[i]);
  }
  prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
  bool const confined = syscall(SYS_landlock_restrict_self, rules, 0) == 0;
  close(static_cast<int>(rules));
  return confined;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
  if (!Confine(*argc, *argv)) {
    std::fprintf(stderr,
                 "this kernel has no Landlock, and nothing else keeps a package in: no fuzzing\n");
    std::exit(0);
  }
  rlimit const limit = {kLargestFile, kLargestFile};
  setrlimit(RLIMIT_FSIZE, &limit);
  // Failures are expected here: don't log them.
  Logger::Destroy();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
  // Not earlier: libFuzzer sets its own handler at startup.
  signal(SIGXFSZ, SIG_IGN);
  Playground const& ground = Ground();
  std::ofstream(ground.package, std::ios::binary)
      .write(reinterpret_cast<char const*>(data), static_cast<std::streamsize>(size));
  fs::create_directories(ground.tree);
  Extractor extractor;
  extractor.package_path = ground.package;
  extractor.dest_path = ground.tree;
  int const count = extractor.Count();
  int const result = extractor.Extract();
  Require(count >= -1, "a count below -1");
  Require(result == 0 || result == -1, "a result other than 0 and -1");
  Require(result != 0 || count > 0, "success without an entry");
  Require(extractor.Count() == count, "another count the second time");
  test::MakeRemovable(ground.tree);
  std::error_code ignored;
  fs::remove_all(ground.tree, ignored);
  return 0;
}
