#include <linux/magic.h>
#include <sys/statfs.h>

#include "platform/file-system-name.h"

namespace platform {

namespace {

/// The kernel has no AFP driver, so "afpfs" doesn't occur.
char const* NameOfType(unsigned long type) {
  // The field is signed, so 32-bit magic numbers may be negative.
  switch (type & 0xFFFFFFFFUL) {
    case NFS_SUPER_MAGIC:
      return "nfs";
    case SMB_SUPER_MAGIC:
    case CIFS_SUPER_MAGIC:
    case SMB2_SUPER_MAGIC:
      return "smbfs";
    case MSDOS_SUPER_MAGIC:
      return "msdos";
    default:
      return "";
  }
}

}  // namespace

int FileSystemName(char const* path, std::string& name) {
  struct statfs info;
  if (statfs(path, &info) != 0) return -1;
  name = NameOfType(static_cast<unsigned long>(info.f_type));
  return 0;
}

}  // namespace platform
