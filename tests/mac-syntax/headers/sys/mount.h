#pragma once

// The part of macOS's statfs that the project uses.

#define MFSTYPENAMELEN 16

struct statfs {
  unsigned int f_bsize;
  unsigned int f_type;
  char f_fstypename[MFSTYPENAMELEN];
};

extern "C" int statfs(const char* path, struct statfs* info);
