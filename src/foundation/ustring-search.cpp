// Search, trimming and comparison.

#include <algorithm>
#include <bitset>
#include <cstring>
#include <string_view>

#include "foundation/ustring-internal.h"
#include "foundation/ustring.h"

using ustring_internal::Terminate;

namespace {

class ByteSet {
 public:
  explicit ByteSet(std::string_view bytes) {
    for (char const c : bytes) set_.set(static_cast<unsigned char>(c));
  }
  bool has(char c) const { return set_[static_cast<unsigned char>(c)]; }

 private:
  std::bitset<256> set_;
};

unsigned char Fold(char c) {
  auto const byte = static_cast<unsigned char>(c);
  return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte + ('a' - 'A')) : byte;
}

int Identity(char c) { return static_cast<unsigned char>(c); }

/// The difference of the first bytes that differ, or 0.
template <class Map>
int Difference(char const* a, char const* b, Map map) {
  for (;; ++a, ++b) {
    int const difference = map(*a) - map(*b);
    if (difference != 0 || *a == '\0') return difference;
  }
}

}  // namespace

// ---- search ----

unsigned long ustring::find_text(std::string_view pattern, unsigned long pos) const {
  if (pos >= data_length) return npos;
  return std::string_view(data, data_length).find(pattern, pos);
}

unsigned long ustring::rfind_text(std::string_view pattern, unsigned long pos) const {
  if (pattern.size() > data_length || empty()) return npos;
  unsigned long at = std::min(pos, data_length - 1);
  if (pattern.empty()) return at;
  at = std::min(at, data_length - pattern.size());
  for (++at; at-- > 0;) {
    if (data[at] == pattern[0] && std::memcmp(data + at, pattern.data(), pattern.size()) == 0) {
      return at;
    }
  }
  return npos;
}

unsigned long ustring::first_byte(std::string_view set, unsigned long pos, bool in_set) const {
  if (in_set && set.size() == 1) return find_text(set, pos);
  ByteSet const bytes(set);
  for (; pos < data_length; ++pos) {
    if (bytes.has(data[pos]) == in_set) return pos;
  }
  return npos;
}

unsigned long ustring::last_byte(std::string_view set, unsigned long pos, bool in_set) const {
  ByteSet const bytes(set);
  unsigned long end = pos < data_length ? pos + 1 : data_length;
  for (; end > 0; --end) {
    if (bytes.has(data[end - 1]) == in_set) return end - 1;
  }
  return npos;
}

// ---- trimming ----

ustring& ustring::ltrim(char const* set) {
  unsigned long const dropped = std::min(first_byte(set, 0, false), data_length);
  if (dropped == 0) return *this;
  std::memmove(data, data + dropped, data_length - dropped);
  Terminate(data, data_length, data_length - dropped);
  clear_wdata();
  return *this;
}

ustring& ustring::rtrim(char const* set) {
  unsigned long const length = last_byte(set, npos, false) + 1;  // npos wraps to 0
  if (length == data_length) return *this;
  Terminate(data, data_length, length);
  clear_wdata();
  return *this;
}

ustring& ustring::trim(char const* set) {
  ltrim(set);
  return rtrim(set);
}

// ---- comparison ----

int ustring::compare(ustring const& other) const {
  return std::strcmp(data, other.data) == 0 ? 0 : Difference(data, other.data, Identity);
}

int ustring::compare(ustring const& other, unsigned long n) const {
  return std::strncmp(data, other.data, n) == 0 ? 0 : Difference(data, other.data, Identity);
}

int ustring::compare(ustring const& a, ustring const& b, bool ignore_case) {
  return ignore_case ? Difference(a.data, b.data, Fold) : a.compare(b);
}
