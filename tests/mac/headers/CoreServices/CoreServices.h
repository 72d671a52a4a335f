#pragma once

// The part of CoreServices that the project uses, declared as in Apple's headers.

#include <TargetConditionals.h>

typedef unsigned char UInt8;
typedef unsigned int UInt32;
typedef int SInt32;
typedef unsigned char Boolean;
typedef SInt32 OSStatus;
typedef UInt32 OptionBits;

enum { noErr = 0 };

struct FSRef {
  UInt8 hidden[80];
};
typedef struct FSRef FSRef;

enum { kFSPathMakeRefDefaultOptions = 0, kFSPathMakeRefDoNotFollowLeafSymlink = 0x01 };

extern "C" {
OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* isDirectory);
OSStatus FSPathMakeRefWithOptions(const UInt8* path, OptionBits options, FSRef* ref,
                                  Boolean* isDirectory);
OSStatus FSRefMakePath(const FSRef* ref, UInt8* path, UInt32 maxPathSize);
}
