// Copies a file or a tree as the launcher does.
//
// usage: copy SOURCE DESTINATION

#include "mac/mac-service.h"

int main(int argc, char** argv) {
  MacService service;
  return argc == 3 && service.FSCopyPath(argv[1], argv[2]) == 0 ? 0 : 1;
}
