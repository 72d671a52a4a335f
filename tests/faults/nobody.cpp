#include "faults/nobody.h"

#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace test {
namespace {

void Give(fs::path const& path) {
  if (lchown(path.c_str(), kNobody, kNobody) != 0) {
    throw std::system_error(errno, std::generic_category(), "lchown " + path.string());
  }
}

}  // namespace

bool CanBecomeNobody() { return geteuid() == 0 && fs::exists("/usr/bin/setpriv"); }

Process::Options StartAsNobody(Sandbox const& sandbox) {
  fs::path const folder = sandbox.folder().path();
  Give(folder);
  for (auto const& entry : fs::recursive_directory_iterator(folder)) Give(entry.path());
  Process::Options options = sandbox.Start();
  options.program = "/usr/bin/setpriv";
  options.arguments.insert(options.arguments.begin(),
                           {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"});
  return options;
}

}  // namespace test
