#include "platform/volume-lookup.h"

namespace platform {

int Lstat(char const* path, struct stat& info) { return lstat(path, &info); }

}  // namespace platform
