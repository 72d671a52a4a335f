#pragma once

#include <new>

#include "foundation/ustring.h"

// What the sources of ustring share, for nobody else.

namespace ustring_internal {

/// The units needed for a text with n more behind it, and its terminator.
inline unsigned long Needed(unsigned long length, unsigned long n) {
  if (n >= ustring::npos - length) throw std::bad_alloc();
  return length + n + 1;
}

template <class Unit>
void Terminate(Unit* buffer, unsigned long& length, unsigned long at) {
  length = at;
  buffer[at] = 0;
}

}  // namespace ustring_internal
