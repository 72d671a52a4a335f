#include "faults/mount.h"

#include <sys/mount.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <utility>

#include "support/files.h"
#include "support/process.h"

namespace test {
namespace {

Outcome RunCommand(std::string const& command) {
  Process::Options options;
  options.arguments = {"/bin/sh", "-c", "PATH=$PATH:/usr/sbin:/sbin; " + command};
  return Run(options);
}

}  // namespace

Mount::Mount(std::string source, std::string folder, std::string type, std::string options,
             unsigned long flags)
    : folder_(std::move(folder)), type_(std::move(type)) {
  if (mount(source.c_str(), folder_.c_str(), type_.c_str(), flags, options.c_str()) != 0) {
    reason_ = "can't mount " + type_ + " here: " + strerror(errno);
  }
}

Mount::~Mount() {
  if (ok()) umount2(folder_.c_str(), MNT_DETACH);
}

void Mount::Remount(unsigned long flags, std::string const& options) {
  if (mount("none", folder_.c_str(), type_.c_str(), MS_REMOUNT | flags, options.c_str()) != 0) {
    throw std::filesystem::filesystem_error("remount", folder_,
                                            std::error_code(errno, std::generic_category()));
  }
}

LoopDevice::LoopDevice(std::string const& file, unsigned mebibytes, std::string const& mkfs) {
  WriteFile(file, "");
  std::filesystem::resize_file(file, std::uintmax_t{mebibytes} << 20);
  Outcome const outcome =
      RunCommand(mkfs + " '" + file + "' >/dev/null && losetup --find --show '" + file + "'");
  if (outcome.status == 0) {
    path_ = outcome.out.substr(0, outcome.out.find('\n'));
  } else {
    reason_ = "can't make a loop device here: " + outcome.err;
  }
}

LoopDevice::~LoopDevice() {
  if (ok()) RunCommand("losetup --detach " + path_);
}

}  // namespace test
