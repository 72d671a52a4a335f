#include "foundation/ustring.h"

#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <bitset>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <new>
#include <stdexcept>
#include <utility>

namespace {

constexpr unsigned long kFirstCapacity = 4;

static_assert(sizeof(unsigned short) == sizeof(UChar), "ICU works on the units as they stand");

UChar* Units(unsigned short* s) { return reinterpret_cast<UChar*>(s); }

void Warn(char const* call, UErrorCode status, int line) {
  std::cerr << "Warning: " << call << ": error code " << static_cast<int>(status) << " at line "
            << line << std::endl;
}

/// The length of a text of which at most n units are wanted.
unsigned long Length(char const* s, unsigned long n) {
  return n == ustring::npos ? std::strlen(s) : strnlen(s, n);
}

unsigned long Length(unsigned short const* s, unsigned long n) {
  unsigned long length = 0;
  while (length < n && s[length] != 0) ++length;
  return length;
}

/// The units needed for a text with n more behind it, and its terminator.
unsigned long Needed(unsigned long length, unsigned long n) {
  if (n >= ustring::npos - length) throw std::bad_alloc();
  return length + n + 1;
}

/// Room for exactly `needed` units, unless the buffer is large enough and not twice too large.
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

template <class Unit>
void Terminate(Unit* buffer, unsigned long& length, unsigned long at) {
  length = at;
  buffer[at] = 0;
}

/// Adds n units, which may stand in the buffer itself.
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
  if (c == 0) n = 0;  // a text ends at its first NUL
  Fit(buffer, capacity, Needed(length, n));
  std::fill_n(buffer + length, n, c);
  Terminate(buffer, length, length + n);
}

/// Leaves n units that stand inside the buffer, or none where it can't shrink. They move before it
/// does.
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

/// The text that `s.substr(pos, n)` holds, up to its first NUL.
std::string_view Part(std::string const& s, unsigned long pos, unsigned long n) {
  if (pos > s.size()) throw std::out_of_range("basic_string::substr");
  return {s.data() + pos, Length(s.data() + pos, std::min(n, s.size() - pos))};
}

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

/// How two texts differ at the first place where they do, if that isn't behind n bytes.
template <class Map>
int Difference(char const* a, char const* b, unsigned long n, Map map) {
  for (; n != 0; ++a, ++b, --n) {
    int const difference = map(*a) - map(*b);
    if (difference != 0 || *a == '\0') return difference;
  }
  return 0;
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
  clear_wdata();  // as in a copy: the UTF-16 may be older than the text
  return *this;
}

ustring::~ustring() {
  std::free(data);
  std::free(wdata);
  data = nullptr;
  wdata = nullptr;
}

void ustring::init() { allocate(kFirstCapacity, kFirstCapacity); }

// Takes at once the memory that an empty text with this text appended would end with.
void ustring::init(std::string_view a, std::string_view b) {
  unsigned long const needed = Needed(a.size(), b.size());
  bool const fits_empty = needed <= kFirstCapacity && needed >= kFirstCapacity / 2;
  allocate(fits_empty ? kFirstCapacity : needed, kFirstCapacity);
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

// ---- conversion ----

unsigned short const* ustring::c_str_utf16() const {
  if (wdata_length == 0) convert_from_data();
  return wdata;
}

int ustring::convert_from_data() const {
  UErrorCode status = U_ZERO_ERROR;
  int32_t length = 0;
  u_strFromUTF8(nullptr, 0, &length, data, -1, &status);
  status = U_ZERO_ERROR;
  realloc_wdata(Needed(static_cast<unsigned long>(length), 0));
  u_strFromUTF8(Units(wdata), static_cast<int32_t>(wdata_capacity), &length, data, -1, &status);
  if (U_FAILURE(status)) {
    Warn("u_strFromUTF8", status, __LINE__);
    clear_wdata();
    return -1;
  }
  Terminate(wdata, wdata_length, static_cast<unsigned long>(length));
  return 0;
}

// The text doesn't survive a failure: the UTF-16 can't stand as the truth, and the UTF-8 is of
// before the change.
int ustring::convert_from_wdata() {
  UErrorCode status = U_ZERO_ERROR;
  int32_t length = 0;
  u_strToUTF8(nullptr, 0, &length, Units(wdata), -1, &status);
  status = U_ZERO_ERROR;
  try {
    realloc_data(Needed(static_cast<unsigned long>(length), 0));
  } catch (std::bad_alloc const&) {
    clear_wdata();  // the text is still that of before the change
    throw;
  }
  u_strToUTF8(data, static_cast<int32_t>(data_capacity), &length, Units(wdata), -1, &status);
  if (U_FAILURE(status)) {
    Warn("u_strToUTF8", status, __LINE__);
    clear();
    return -1;
  }
  Terminate(data, data_length, static_cast<unsigned long>(length));
  return 0;
}

ustring ustring::normalize(ustring const& s, normalization_form form) {
  static constexpr UNormalization2Mode kModes[] = {UNORM2_COMPOSE, UNORM2_DECOMPOSE};
  UErrorCode status = U_ZERO_ERROR;
  ustring result;
  if (s.empty()) return result;
  UNormalizer2 const* const normalizer = unorm2_getInstance(nullptr, "nfc", kModes[form], &status);
  if (U_FAILURE(status) || normalizer == nullptr) {
    Warn("unorm2_getInstance", status, __LINE__);
    return result;
  }
  int32_t length = unorm2_normalize(normalizer, Units(const_cast<unsigned short*>(s.c_str_utf16())),
                                    -1, nullptr, 0, &status);
  status = U_ZERO_ERROR;
  result.realloc_wdata(Needed(static_cast<unsigned long>(length), 0));
  length =
      unorm2_normalize(normalizer, Units(const_cast<unsigned short*>(s.c_str_utf16())), -1,
                       Units(result.wdata), static_cast<int32_t>(result.wdata_capacity), &status);
  if (U_FAILURE(status)) {
    Warn("unorm2_normalize", status, __LINE__);
    result.clear();
    return result;
  }
  Terminate(result.wdata, result.wdata_length, static_cast<unsigned long>(length));
  result.convert_from_wdata();
  return result;
}

bool ustring::is_valid(ustring const& s) {
  if (s.empty()) return true;
  UErrorCode status = U_ZERO_ERROR;
  int32_t length = 0;
  u_strFromUTF8(nullptr, 0, &length, s.data, -1, &status);
  return status != U_INVALID_CHAR_FOUND;
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
  return {data + pos, Length(data + pos, n < data_length - pos ? n : npos)};
}

ustring ustring::substr(unsigned long pos, unsigned long n) const { return {part(pos, n), {}}; }

ustring operator+(ustring const& a, ustring const& b) { return {a.data, b.data}; }
ustring operator+(ustring const& a, char const* b) { return {a.data, b}; }
ustring operator+(ustring const& a, char b) { return {a.data, ustring::text_of(b)}; }

// The sum is copied out: a copy has no UTF-16 made.
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

// ---- change in place ----

ustring& ustring::ltrim(char const* set) {
  unsigned long const dropped = std::min(first_byte(set, 0, false), data_length);
  if (dropped == 0) return *this;
  std::memmove(data, data + dropped, data_length - dropped);
  Terminate(data, data_length, data_length - dropped);
  clear_wdata();
  return *this;
}

ustring& ustring::rtrim(char const* set) {
  unsigned long const length = last_byte(set, npos, false) + 1;  // npos wraps round to 0
  if (length == data_length) return *this;
  Terminate(data, data_length, length);
  clear_wdata();
  return *this;
}

ustring& ustring::trim(char const* set) {
  ltrim(set);
  return rtrim(set);
}

ustring& ustring::replace(char from, char to) {
  for (char* c = data; *c != '\0'; ++c) {
    if (*c == from) *c = to;
  }
  return *this;
}

// ---- comparison ----

int ustring::compare(ustring const& other) const {
  return std::strcmp(data, other.data) == 0 ? 0 : Difference(data, other.data, npos, Identity);
}

int ustring::compare(ustring const& other, unsigned long n) const {
  unsigned long const bytes = std::min(n, data_length + 1);
  return std::strncmp(data, other.data, bytes) == 0 ? 0
                                                    : Difference(data, other.data, bytes, Identity);
}

int ustring::compare(ustring const& a, ustring const& b, bool ignore_case) {
  return ignore_case ? Difference(a.data, b.data, npos, Fold) : a.compare(b);
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
