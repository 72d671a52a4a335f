#include "foundation/ustring.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <istream>  // IWYU pragma: keep
#include <new>
#include <ostream>  // IWYU pragma: keep
#include <stdexcept>
#include <utility>

#include "foundation/ustring-internal.h"

using ustring_internal::Needed;
using ustring_internal::Terminate;

namespace {

constexpr unsigned long kFirstCapacity = 4;

/// The length of a string, at most n.
unsigned long Length(char const* s, unsigned long n) {
  return n == ustring::npos ? std::strlen(s) : strnlen(s, n);
}

unsigned long Length(unsigned short const* s, unsigned long n) {
  unsigned long length = 0;
  while (length < n && s[length] != 0) ++length;
  return length;
}

/// Reallocates to exactly `needed` units, unless the buffer is large enough and less than about
/// twice as large.
template <class Unit>
void Fit(Unit*& buffer, unsigned long& capacity, unsigned long needed) {
  if (capacity >= needed && capacity / 2 <= needed) return;
  if (needed > PTRDIFF_MAX / sizeof(Unit)) throw std::bad_alloc();
  void* const moved = std::realloc(buffer, needed * sizeof(Unit));
  if (moved == nullptr) throw std::bad_alloc();
  buffer = static_cast<Unit*>(moved);
  capacity = needed;
}

template <class Unit>
bool Holds(Unit const* buffer, unsigned long length, Unit const* s) {
  std::less<Unit const*> const before;
  return !before(s, buffer) && !before(buffer + length, s);
}

/// Appends n units, which may lie in the buffer itself.
template <class Unit>
void Append(Unit*& buffer, unsigned long& length, unsigned long& capacity, Unit const* s,
            unsigned long n) {
  bool const own = Holds(buffer, length, s);
  auto const offset = own ? s - buffer : 0;
  Fit(buffer, capacity, Needed(length, n));
  std::memcpy(buffer + length, own ? buffer + offset : s, n * sizeof(Unit));
  Terminate(buffer, length, length + n);
}

template <class Unit>
void AppendCopies(Unit*& buffer, unsigned long& length, unsigned long& capacity, Unit c,
                  unsigned long n) {
  if (c == 0) n = 0;  // a string ends at its first NUL
  Fit(buffer, capacity, Needed(length, n));
  std::fill_n(buffer + length, n, c);
  Terminate(buffer, length, length + n);
}

/// Keeps n units of the buffer, or none if it can't be reallocated. They move before it does.
template <class Unit>
void KeepPart(Unit*& buffer, unsigned long& length, unsigned long& capacity, Unit const* s,
              unsigned long n) {
  std::memmove(buffer, s, n * sizeof(Unit));
  try {
    Fit(buffer, capacity, Needed(n, 0));
  } catch (std::bad_alloc const&) {
    Terminate(buffer, length, 0);
    throw;
  }
  Terminate(buffer, length, n);
}

/// What `s.substr(pos, n)` would return, up to its first NUL.
std::string_view Part(std::string const& s, unsigned long pos, unsigned long n) {
  if (pos > s.size()) throw std::out_of_range("basic_string::substr");
  return {s.data() + pos, Length(s.data() + pos, n)};
}

}  // namespace

// ---- life ----

ustring::ustring() { init(); }
ustring::ustring(ustring const& s) { init(s.data, {}); }
ustring::ustring(char const* s) { init(s, {}); }
ustring::ustring(std::string const& s) { init(s.c_str(), {}); }
ustring::ustring(char c) { init(text_of(c), {}); }
ustring::ustring(unsigned short const* s) : ustring() { assign(s); }

ustring::ustring(ustring&& s) noexcept : ustring() { *this = std::move(s); }

ustring& ustring::operator=(ustring&& s) noexcept {
  if (this == &s) return *this;
  swap(s);
  s.clear();
  clear_wdata();  // as in a copy: the UTF-16 may be outdated
  return *this;
}

ustring::~ustring() {
  std::free(data);
  std::free(wdata);
  data = nullptr;
  wdata = nullptr;
}

void ustring::init() { allocate(kFirstCapacity, kFirstCapacity); }

// Allocates at once what appending to an empty string would end with.
void ustring::init(std::string_view a, std::string_view b) {
  unsigned long const needed = Needed(a.size(), b.size());
  allocate(needed == 1 ? 1 : std::max(needed, kFirstCapacity), kFirstCapacity);
  std::memcpy(data, a.data(), a.size());
  if (!b.empty()) std::memcpy(data + a.size(), b.data(), b.size());
  Terminate(data, data_length, a.size() + b.size());
}

void ustring::allocate(unsigned long data_units, unsigned long wdata_units) {
  data = static_cast<char*>(std::malloc(data_units));
  wdata = static_cast<unsigned short*>(std::malloc(wdata_units * sizeof *wdata));
  if (data == nullptr || wdata == nullptr) {
    std::free(data);
    std::free(wdata);
    throw std::bad_alloc();
  }
  data_capacity = data_units;
  wdata_capacity = wdata_units;
  clear();
}

void ustring::realloc_data(unsigned long n) { Fit(data, data_capacity, n); }
void ustring::realloc_wdata(unsigned long n) const { Fit(wdata, wdata_capacity, n); }

void ustring::clear() {
  clear_data();
  clear_wdata();
}

void ustring::clear_data() { Terminate(data, data_length, 0); }
void ustring::clear_wdata() const { Terminate(wdata, wdata_length, 0); }

void ustring::swap(ustring& other) noexcept {
  std::swap(data, other.data);
  std::swap(data_length, other.data_length);
  std::swap(data_capacity, other.data_capacity);
  std::swap(wdata, other.wdata);
  std::swap(wdata_length, other.wdata_length);
  std::swap(wdata_capacity, other.wdata_capacity);
}

// ---- assign ----

ustring& ustring::assign(ustring const& s, unsigned long pos, unsigned long n) {
  if (this != &s) clear();
  std::string_view const text = s.part(pos, n);
  return assign_data(text.data(), text.size());
}

ustring& ustring::assign(char const* s) { return assign(s, npos); }

ustring& ustring::assign(char const* s, unsigned long n) {
  if (s != data) return assign_data(s, Length(s, n));
  if (data_length > n) {
    Terminate(data, data_length, n);
    clear_wdata();
  }
  return *this;
}

ustring& ustring::assign(unsigned short const* s) { return assign(s, npos); }

ustring& ustring::assign(unsigned short const* s, unsigned long n) {
  if (s != wdata) {
    if (!Holds(wdata, wdata_length, s)) {
      clear();
      return append(s, n);
    }
    clear_data();
    KeepPart(wdata, wdata_length, wdata_capacity, s, Length(s, n));
    convert_from_wdata();
  } else if (wdata_length > n) {
    clear_data();
    Terminate(wdata, wdata_length, n);
    convert_from_wdata();
  }
  return *this;
}

ustring& ustring::assign(std::string const& s, unsigned long pos, unsigned long n) {
  clear();
  return append(s, pos, n);
}

ustring& ustring::assign(char c, unsigned long n) {
  clear();
  return append(c, n);
}

ustring& ustring::assign(unsigned short c, unsigned long n) {
  clear();
  return append(c, n);
}

ustring& ustring::assign_data(char const* s, unsigned long n) {
  if (!Holds(data, data_length, s)) {
    clear();
    return append_data(s, n);
  }
  clear_wdata();
  KeepPart(data, data_length, data_capacity, s, n);
  return *this;
}

// NOLINTNEXTLINE(bugprone-unhandled-self-assignment,cert-oop54-cpp): assign() knows itself
ustring& ustring::operator=(ustring const& s) {
  assign(s, 0, npos);
  return *this;
}

ustring& ustring::operator=(std::string const& s) {
  assign(s, 0, npos);
  return *this;
}

ustring& ustring::operator=(char const* s) {
  assign(s);
  return *this;
}

ustring& ustring::operator=(unsigned short const* s) {
  assign(s);
  return *this;
}

ustring& ustring::operator=(char c) {
  assign(c, 1);
  return *this;
}

ustring& ustring::operator=(unsigned short c) {
  assign(c, 1);
  return *this;
}

// ---- append ----

ustring& ustring::append(ustring const& s, unsigned long pos, unsigned long n) {
  std::string_view const text = s.part(pos, n);
  return append_data(text.data(), text.size());
}

ustring& ustring::append(char const* s) { return append(s, npos); }

ustring& ustring::append(char const* s, unsigned long n) {
  return append_data(s, s == data ? std::min(data_length, n) : Length(s, n));
}

ustring& ustring::append(unsigned short const* s) { return append(s, npos); }

ustring& ustring::append(unsigned short const* s, unsigned long n) {
  bool const own = Holds(wdata, wdata_length, s);
  auto const offset = own ? s - wdata : 0;
  if (wdata_length == 0 && data_length != 0) convert_from_data();
  if (own) s = wdata + offset;
  unsigned long const length = s == wdata ? std::min(wdata_length, n) : Length(s, n);
  Append(wdata, wdata_length, wdata_capacity, s, length);
  convert_from_wdata();
  return *this;
}

ustring& ustring::append(std::string const& s, unsigned long pos, unsigned long n) {
  std::string_view const text = Part(s, pos, n);
  return append_data(text.data(), text.size());
}

ustring& ustring::append(char c, unsigned long n) {
  AppendCopies(data, data_length, data_capacity, c, n);
  clear_wdata();
  return *this;
}

ustring& ustring::append(unsigned short c, unsigned long n) {
  if (wdata_length == 0 && data_length != 0) convert_from_data();
  AppendCopies(wdata, wdata_length, wdata_capacity, c, n);
  convert_from_wdata();
  return *this;
}

ustring& ustring::append_data(char const* s, unsigned long n) {
  Append(data, data_length, data_capacity, s, n);
  clear_wdata();
  return *this;
}

std::string_view ustring::part(unsigned long pos, unsigned long n) const {
  if (pos > data_length) throw std::out_of_range("substr");
  return {data + pos, Length(data + pos, n)};
}

ustring ustring::substr(unsigned long pos, unsigned long n) const { return {part(pos, n), {}}; }

ustring operator+(ustring const& a, ustring const& b) { return {a.data, b.data}; }
ustring operator+(ustring const& a, char const* b) { return {a.data, b}; }
ustring operator+(ustring const& a, char b) { return {a.data, ustring::text_of(b)}; }

// Returns a copy, which has no UTF-16.
ustring operator+(ustring const& a, unsigned short const* b) {
  ustring sum(a);
  sum.append(b);
  return ustring(sum);
}

ustring operator+(ustring const& a, unsigned short b) {
  ustring sum(a);
  sum.append(b, 1);
  return ustring(sum);
}

void swap(ustring& a, ustring& b) noexcept { a.swap(b); }

// ---- change in place ----

ustring& ustring::replace(char from, char to) {
  for (char* c = data; *c != '\0'; ++c) {
    if (*c == from) *c = to;
  }
  return *this;
}

// ---- streams ----

std::ostream& operator<<(std::ostream& out, ustring const& s) { return out << s.c_str(); }

std::istream& operator>>(std::istream& in, ustring& s) {
  std::string word;
  in >> word;
  s.clear();
  s.append(word);
  return in;
}
