#include "support/files.h"

#include <stdlib.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <ostream>
#include <random>
#include <stdexcept>
#include <system_error>

namespace fs = std::filesystem;

namespace test {

void MakeRemovable(fs::path const& folder) {
  std::error_code ignored;
  fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, ignored);
  for (auto const& entry : fs::directory_iterator(folder, ignored)) {
    if (!entry.is_symlink(ignored) && entry.is_directory(ignored)) MakeRemovable(entry.path());
  }
}

TempDir::TempDir() {
  // Not mkdtemp, whose names may hold a K: then there is a second spelling, with the Kelvin sign,
  // and the launcher looks for it, so that its system calls would depend on the name.
  std::random_device random;
  fs::path const folder = fs::canonical(fs::temp_directory_path());
  int result = 0;
  do {
    path_ = folder / ("larkmoor-test-" + std::to_string(random()));
    result = mkdir(path_.c_str(), 0700);
  } while (result != 0 && errno == EEXIST);
  if (result != 0) {
    throw std::system_error(errno, std::generic_category(), "mkdir " + path_.string());
  }
}

TempDir::~TempDir() {
  // A process that a test didn't wait for may still add files to a folder that has just been
  // emptied.
  auto const end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  std::error_code error;
  do {
    MakeRemovable(path_);
    fs::remove_all(path_, error);
  } while (error == std::errc::directory_not_empty && std::chrono::steady_clock::now() < end);
  if (error) std::fprintf(stderr, "%s stays behind: %s\n", path_.c_str(), error.message().c_str());
}

WorkingFolder::WorkingFolder(fs::path const& path) : former_(fs::current_path()) {
  fs::current_path(path);
}

WorkingFolder::~WorkingFolder() { fs::current_path(former_); }

Umask::Umask(mode_t mask) : former_(umask(mask)) {}

Umask::~Umask() { umask(former_); }

ClosedInput::ClosedInput() : former_(dup(STDIN_FILENO)) { close(STDIN_FILENO); }

ClosedInput::~ClosedInput() {
  if (former_ < 0) return;
  dup2(former_, STDIN_FILENO);
  close(former_);
}

unsigned ModeOf(fs::path const& path) {
  return static_cast<unsigned>(fs::symlink_status(path).permissions() & fs::perms::mask);
}

void MakeSocket(std::string const& path) {
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof(address.sun_path)) throw std::runtime_error("too long: " + path);
  std::strcpy(address.sun_path, path.c_str());
  int const number = socket(AF_UNIX, SOCK_STREAM, 0);
  int const result = bind(number, reinterpret_cast<sockaddr const*>(&address), sizeof(address));
  close(number);
  if (result != 0) throw std::runtime_error("cannot make the socket " + path);
}

void PreferMemory() {
  if (getenv("LARKMOOR_TEST_VOLUME") != nullptr) return;
  std::error_code ignored;
  fs::space_info const shared = fs::space("/dev/shm", ignored);
  if (!ignored && shared.available > (1U << 30)) setenv("TMPDIR", "/dev/shm", 1);
}

void WriteFile(fs::path const& path, std::string const& bytes) {
  if (path.has_parent_path()) fs::create_directories(path.parent_path());
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (!out) throw std::runtime_error("cannot write " + path.string());
}

std::string ReadFile(fs::path const& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + path.string());
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

std::ostream& operator<<(std::ostream& out, Node const& node) {
  return out << node.type << ' ' << std::oct << node.mode << std::dec << " (" << node.content.size()
             << " bytes) " << node.content.substr(0, 40);
}

Tree ReadTree(fs::path const& root) {
  Tree tree;
  if (!fs::exists(fs::symlink_status(root))) return tree;
  for (auto const& entry : fs::recursive_directory_iterator(root)) {
    Node node;
    fs::file_status const status = entry.symlink_status();
    node.mode = static_cast<unsigned>(status.permissions());
    if (fs::is_symlink(status)) {
      node.type = 'l';
      node.mode = 0;
      node.content = fs::read_symlink(entry.path()).string();
    } else if (fs::is_directory(status)) {
      node.type = 'd';
    } else if (fs::is_regular_file(status)) {
      node.type = 'f';
      node.content = ReadFile(entry.path());
    } else {
      node.type = 'o';
    }
    tree[entry.path().lexically_relative(root).string()] = node;
  }
  return tree;
}

bool PermissionsApply() { return geteuid() != 0; }

}  // namespace test
