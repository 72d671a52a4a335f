#pragma once

#include <stdexcept>
#include <string>

#include "foundation/ustring.h"

/// The private data of a ustring, for tests.
struct UstringProbe {
  static unsigned long DataCapacity(ustring const& s) { return s.data_capacity; }
  static unsigned long WideCapacity(ustring const& s) { return s.wdata_capacity; }
  static unsigned long WideLength(ustring const& s) { return s.wdata_length; }
  /// The UTF-16 copy as it is; c_str_utf16() would make it.
  static unsigned short const* Wide(ustring const& s) { return s.wdata; }
  static int ConvertFromData(ustring const& s) { return s.convert_from_data(); }
  static int ConvertFromWide(ustring& s) { return s.convert_from_wdata(); }
};

namespace test {

inline std::u16string Utf16(ustring const& s) {
  return reinterpret_cast<char16_t const*>(s.c_str_utf16());
}

/// What `call` says when it throws.
inline std::string ErrorOf(void (*call)(ustring&), ustring& s) {
  try {
    call(s);
  } catch (std::out_of_range const& error) {
    return error.what();
  }
  return "no error";
}

}  // namespace test
