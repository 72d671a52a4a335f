#pragma once

#include <cstddef>
#include <string>

#include "support/ustring-reference.h"

namespace test {

/// Turns a fuzzer's bytes into arguments. Once they are used up, every value is 0 or empty.
class Script {
 public:
  explicit Script(std::string const& bytes) : bytes_(bytes) {}

  bool AtEnd() const { return at_ >= bytes_.size(); }
  unsigned Byte() { return AtEnd() ? 0 : static_cast<unsigned char>(bytes_[at_++]); }
  char Char() { return static_cast<char>(Byte()); }
  char CharButNul() {
    char const c = Char();
    return c == '\0' ? 'x' : c;
  }
  std::string Bytes() {
    std::string s(Byte() % 24, '\0');
    for (char& c : s) c = Char();
    return s;
  }
  Wide Units() {
    Wide s(Byte() % 8, 0);
    for (char16_t& c : s) c = Unit();
    return s;
  }
  unsigned short Unit() {
    unsigned const first = Byte();
    return static_cast<unsigned short>(first < 0xD0 ? first : first << 8 | Byte());
  }
  /// A position in a string, at its end or just beyond.
  unsigned long Position(size_t length) {
    unsigned const byte = Byte();
    return byte == 255 ? kAll : byte % (length + 3);
  }

 private:
  std::string const& bytes_;
  size_t at_ = 0;
};

}  // namespace test
