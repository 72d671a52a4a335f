// Only the system calls of a removal that stats each file, by its full path, before unlinking it.
//
// usage: remove-floor PATH

#include <dirent.h>
#include <sys/stat.h>

#include <cstdio>
#include <cstring>
#include <string>

namespace {

bool IsDots(char const* name) {
  return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

bool Remove(std::string& path) {
  struct stat info;
  if (lstat(path.c_str(), &info) != 0) return false;
  if (S_ISDIR(info.st_mode)) {
    DIR* const folder = opendir(path.c_str());
    if (folder == nullptr) return false;
    size_t const length = path.size();
    while (dirent const* const entry = readdir(folder)) {
      if (IsDots(entry->d_name)) continue;
      path.append("/").append(entry->d_name);
      if (!Remove(path)) return false;
      path.resize(length);
    }
    closedir(folder);
  }
  return std::remove(path.c_str()) == 0;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  std::string path = argv[1];
  return Remove(path) ? 0 : 1;
}
