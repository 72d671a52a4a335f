#include "support/sandbox.h"

#include <signal.h>
#include <unistd.h>

#include <regex>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace fs = std::filesystem;

namespace test {
namespace {

constexpr char kExecutable[] = "Contents/MacOS/larkmoor-drive-ui";

std::string VersionFile(int build) {
  return "[Version]\nmajor_version=3\nminor_version=1\nbuild_version=" + std::to_string(build) +
         "\nicon_overlay_version=12\n";
}

/// Records which build was started, and how, then ends.
std::string ClientScript(int build) {
  return "#!/bin/sh\n"
         "# build " +
         std::to_string(build) +
         "\n"
         "ls -l /proc/self/fd > \"$HOME/client-descriptors\"\n"
         "cut -d' ' -f5,6 /proc/$$/stat > \"$HOME/client-session\"\n"
         "pwd > \"$HOME/client-folder\"\n"
         "echo $# > \"$HOME/client-arguments\"\n"
         "echo " +
         std::to_string(build) + " >> \"$HOME/starts\"\n";
}

void Unpack(std::vector<Entry> const& entries, std::string const& folder) {
  for (Entry const& entry : entries) {
    fs::path const path = fs::path(folder) / entry.path;
    switch (entry.kind) {
      case Entry::Kind::kFolder:
        fs::create_directories(path);
        fs::permissions(path, static_cast<fs::perms>(entry.mode));
        break;
      case Entry::Kind::kFile:
        WriteFile(path, entry.content);
        fs::permissions(path, static_cast<fs::perms>(entry.mode));
        break;
      case Entry::Kind::kLink:
        fs::create_symlink(entry.content, path);
        break;
      case Entry::Kind::kHardLink:
        fs::create_hard_link(fs::path(folder) / entry.content, path);
        break;
    }
  }
}

std::vector<std::string> Lines(std::string const& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

}  // namespace

std::vector<std::string> NormaliseLog(std::string const& text) {
  static std::regex const stamp("[A-Z][a-z]{2} [ 0-9][0-9] [0-9]{2}:[0-9]{2}:[0-9]{2} ");
  static std::regex const source("([a-z/-]+)\\([0-9]+\\)");
  std::vector<std::string> lines;
  for (std::string const& line : Lines(text)) {
    std::string plain = std::regex_replace(line, stamp, "<stamp>");
    if (plain.rfind("<stamp>", 0) == 0) plain.erase(0, 7);
    lines.push_back(std::regex_replace(plain, source, "$1(0)"));
  }
  return lines;
}

Sandbox::Sandbox(std::string launcher, std::string home) : home_(std::move(home)) {
  fs::create_directories(Home());
  fs::create_directories(Runtime());
  fs::permissions(Runtime(), fs::perms::owner_all);
  std::string const macos = Bundle() + "/Contents/MacOS";
  fs::create_directories(macos);
  fs::create_directories(Bundle() + "/Contents/Resources");
  fs::copy_file(launcher, macos + "/launcher");
  // The launcher loads plug-ins only from the bundle.
  std::string const platforms = Bundle() + "/Contents/Frameworks/plugins/platforms";
  fs::create_directories(platforms);
  for (char const* plugin : {"libqoffscreen.so", "libqxcb.so", "libqminimal.so"}) {
    fs::path const system = fs::path(LARKMOOR_TEST_QT_PLUGINS) / "platforms" / plugin;
    if (fs::exists(system)) fs::create_symlink(system, fs::path(platforms) / plugin);
  }
}

Sandbox::~Sandbox() = default;

std::vector<Entry> Sandbox::Client(int build) {
  std::string const number = std::to_string(build);
  return {
      Entry::Folder("Contents"),
      Entry::Folder("Contents/MacOS"),
      Entry::Folder("Contents/Resources"),
      Entry::File("Contents/Resources/payload-" + number, std::string(20000, 'p') + number),
      Entry::File("Contents/Resources/empty", ""),
      Entry::File("Contents/Resources/read-only", "kept as it is\n", 0444),
      Entry::Link("Contents/Resources/current", "payload-" + number),
      Entry::File(kExecutable, ClientScript(build), 0755),
      Entry::File("Contents/Resources/INFO", VersionFile(build)),
  };
}

std::vector<Entry> Sandbox::ClientWithFiles(int build, int files) {
  std::vector<Entry> entries;
  for (int i = 0; i < files; ++i) {
    entries.push_back(
        Entry::File("Contents/Files/" + std::to_string(i / 500) + "/" + std::to_string(i), ""));
  }
  for (Entry& entry : Client(build)) entries.push_back(std::move(entry));
  return entries;
}

void Sandbox::CarryVersion(int build) {
  WriteFile(Bundle() + "/Contents/Resources/INFO", VersionFile(build));
}

void Sandbox::CarryPackage(std::string const& bytes) {
  // A new file instead of a truncated one, which ext4 would flush to disk.
  fs::remove(Package());
  WriteFile(Package(), bytes);
}

void Sandbox::Carry(int build) {
  CarryVersion(build);
  CarryPackage(MakeArchive(Client(build), "gnutar", "gzip"));
}

void Sandbox::Install(int build) { Unpack(Client(build), App()); }

void Sandbox::WriteLevelFile(std::string const& text) {
  WriteFile(Bundle() + "/log/launcher.debug", text);
}

void Sandbox::LogEverything() {
  WriteLevelFile("launcher_debug=7\nservice_debug=7\nextractor_debug=7\nfile_op_debug=7\n");
}

Process::Options Sandbox::Start() const {
  Process::Options options;
  options.arguments = {Bundle() + "/Contents/MacOS/launcher"};
  options.environment = {{"HOME", Home()},
                         {"QT_QPA_PLATFORM", "offscreen"},
                         {"LC_ALL", "C.UTF-8"},
                         {"XDG_CACHE_HOME", Caches()},
                         {"XDG_RUNTIME_DIR", Runtime()}};
  options.folder = Home();
  return options;
}

Outcome Sandbox::Launch() {
  size_t const before = fs::exists(Starts()) ? Lines(ReadFile(Starts())).size() : 0;
  Outcome const outcome = Run(Start());
  if (fs::exists(App() + "/" + kExecutable)) AwaitStarts(before + 1);
  return outcome;
}

std::vector<std::string> Sandbox::AwaitStarts(size_t count) const {
  std::vector<std::string> lines;
  bool const enough = WaitUntil([&] {
    if (fs::exists(Starts())) lines = Lines(ReadFile(Starts()));
    return lines.size() >= count;
  });
  if (!enough) throw std::runtime_error("the client was not started");
  return lines;
}

std::string Sandbox::RawLog() const { return fs::exists(LogFile()) ? ReadFile(LogFile()) : ""; }

std::vector<std::string> Sandbox::Log() const { return NormaliseLog(RawLog()); }

void Sandbox::ForgetLog() { fs::remove(LogFile()); }

}  // namespace test
