#pragma once

#include <new>

#include "foundation/ustring.h"

// Shared by the sources of ustring.h alone.

namespace ustring_internal {

/// The units needed for a string of this length, n more and the terminator.
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
