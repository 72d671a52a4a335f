#include <sys/mount.h>
#include <sys/param.h>

#include "platform/file-system-name.h"

namespace platform {

int FileSystemName(char const* path, std::string& name) {
  struct statfs info;
  if (statfs(path, &info) != 0) return -1;
  name = info.f_fstypename;
  return 0;
}

}  // namespace platform
