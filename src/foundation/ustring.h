#pragma once

#include <cstring>
#include <iosfwd>
#include <string>
#include <string_view>

/// A UTF-8 string with a UTF-16 copy that is made on demand.
///
/// Lengths and positions count UTF-8 bytes, never characters. A string ends at its first NUL,
/// whatever length was given. The members are named as those of std::string; where results differ
/// from it (the empty pattern in searches, `<=` and `>=`), the member says so.
///
/// Both buffers belong to the object. They grow to the exact size and shrink when less than about
/// half is used.
///
/// One thread at a time may use an object: c_str_utf16() and normalize() write the UTF-16 copy even
/// of a const one. Several threads may share an object if all of them use only c_str(),
/// c_str_utf8(), length(), empty() and the comparisons.
///
/// Throws std::bad_alloc when memory runs out: an assignment then leaves the object empty, any
/// other change leaves it as it was. Throws std::out_of_range where a position is checked. A null
/// pointer is not a valid argument.
class ustring {
 public:
  enum normalization_form { NFC = 0, NFD = 1 };

  /// "Not found" as a result, "all the rest" as a count.
  static constexpr unsigned long npos = ~0UL;

  ustring();
  ustring(ustring const& s);
  ustring(ustring&& s) noexcept;  ///< Leaves `s` empty and usable; terminates if it can't.
  ustring(char const* s);
  ustring(unsigned short const* s);
  ustring(std::string const& s);
  ustring(char c);
  ~ustring();

  /// Replaces the string. If a position is out of range, the object is left empty, unless `s` is
  /// the object itself.
  ustring& assign(ustring const& s, unsigned long pos = 0, unsigned long n = npos);
  ustring& assign(char const* s);
  ustring& assign(char const* s, unsigned long n);
  ustring& assign(unsigned short const* s);
  ustring& assign(unsigned short const* s, unsigned long n);
  ustring& assign(std::string const& s, unsigned long pos = 0, unsigned long n = npos);
  ustring& assign(char c, unsigned long n = 1);
  ustring& assign(unsigned short c, unsigned long n = 1);

  /// Appends. `s` may be the object itself or point into its buffers. Ill-formed UTF-16 empties the
  /// object. If the object holds invalid UTF-8, appended UTF-16 replaces it.
  ustring& append(ustring const& s, unsigned long pos = 0, unsigned long n = npos);
  ustring& append(char const* s);
  ustring& append(char const* s, unsigned long n);
  ustring& append(unsigned short const* s);
  ustring& append(unsigned short const* s, unsigned long n);
  ustring& append(std::string const& s, unsigned long pos = 0, unsigned long n = npos);
  ustring& append(char c, unsigned long n = 1);
  ustring& append(unsigned short c, unsigned long n = 1);

  ustring& operator=(ustring const& s);
  ustring& operator=(ustring&& s) noexcept;  ///< Leaves `s` empty.
  ustring& operator=(std::string const& s);
  ustring& operator=(char const* s);
  ustring& operator=(unsigned short const* s);
  ustring& operator=(char c);
  ustring& operator=(unsigned short c);

  ustring& operator+=(ustring const& s) { return append(s); }
  ustring& operator+=(std::string const& s) { return append(s); }
  ustring& operator+=(char const* s) { return append(s); }
  ustring& operator+=(unsigned short const* s) { return append(s); }
  ustring& operator+=(char c) { return append(c, 1); }
  ustring& operator+=(unsigned short c) { return append(c, 1); }

  /// The UTF-8, valid until the next change.
  char const* c_str() const { return data; }
  char const* c_str_utf8() const { return data; }
  /// The UTF-16, valid until the next change; empty, with a warning on std::cerr, if the UTF-8 is
  /// invalid. Doesn't include what replace() and operator[] wrote after the copy was made.
  unsigned short const* c_str_utf16() const;

  /// The position is not checked.
  char& operator[](unsigned long pos) { return data[pos]; }
  char const& operator[](unsigned long pos) const { return data[pos]; }

  unsigned long length() const { return data_length; }
  unsigned long size() const { return data_length; }
  bool empty() const { return data_length == 0; }

  /// Keep the buffers.
  void clear();
  void clear_data();
  void clear_wdata() const;

  /// Searches compare bytes and may match in the middle of a character. A NUL character means the
  /// empty pattern. Nothing is found from a position at or beyond the end, not even "".
  unsigned long find(std::string const& s, unsigned long pos = 0) const {
    return find_text(s.c_str(), pos);
  }
  unsigned long find(char const* s, unsigned long pos = 0) const { return find_text(s, pos); }
  unsigned long find(ustring const& s, unsigned long pos = 0) const {
    return find_text(s.data, pos);
  }
  unsigned long find(char c, unsigned long pos = 0) const { return find_text(text_of(c), pos); }

  /// Backward searches begin at `pos`, or at the last byte if `pos` is beyond it. They find the
  /// empty pattern there, at length() - 1 at most.
  unsigned long rfind(std::string const& s, unsigned long pos = npos) const {
    return rfind_text(s.c_str(), pos);
  }
  unsigned long rfind(char const* s, unsigned long pos = npos) const { return rfind_text(s, pos); }
  unsigned long rfind(ustring const& s, unsigned long pos = npos) const {
    return rfind_text(s.data, pos);
  }
  unsigned long rfind(char c, unsigned long pos = npos) const {
    return rfind_text(text_of(c), pos);
  }

  unsigned long find_first_of(std::string const& s, unsigned long pos = 0) const {
    return first_byte(s.c_str(), pos, true);
  }
  unsigned long find_first_of(char const* s, unsigned long pos = 0) const {
    return first_byte(s, pos, true);
  }
  unsigned long find_first_of(ustring const& s, unsigned long pos = 0) const {
    return first_byte(s.data, pos, true);
  }
  unsigned long find_first_of(char c, unsigned long pos = 0) const {
    return first_byte(text_of(c), pos, true);
  }

  unsigned long find_first_not_of(std::string const& s, unsigned long pos = 0) const {
    return first_byte(s.c_str(), pos, false);
  }
  unsigned long find_first_not_of(char const* s, unsigned long pos = 0) const {
    return first_byte(s, pos, false);
  }
  unsigned long find_first_not_of(ustring const& s, unsigned long pos = 0) const {
    return first_byte(s.data, pos, false);
  }
  unsigned long find_first_not_of(char c, unsigned long pos = 0) const {
    return first_byte(text_of(c), pos, false);
  }

  unsigned long find_last_of(std::string const& s, unsigned long pos = npos) const {
    return last_byte(s.c_str(), pos, true);
  }
  unsigned long find_last_of(char const* s, unsigned long pos = npos) const {
    return last_byte(s, pos, true);
  }
  unsigned long find_last_of(ustring const& s, unsigned long pos = npos) const {
    return last_byte(s.data, pos, true);
  }
  unsigned long find_last_of(char c, unsigned long pos = npos) const {
    return last_byte(text_of(c), pos, true);
  }

  unsigned long find_last_not_of(std::string const& s, unsigned long pos = npos) const {
    return last_byte(s.c_str(), pos, false);
  }
  unsigned long find_last_not_of(char const* s, unsigned long pos = npos) const {
    return last_byte(s, pos, false);
  }
  unsigned long find_last_not_of(ustring const& s, unsigned long pos = npos) const {
    return last_byte(s.data, pos, false);
  }
  unsigned long find_last_not_of(char c, unsigned long pos = npos) const {
    return last_byte(text_of(c), pos, false);
  }

  /// Remove the leading bytes that are in `set`, the trailing ones, or both.
  ustring& ltrim(ustring const& set) { return ltrim(set.data); }
  ustring& ltrim(char const* set);
  ustring& rtrim(ustring const& set) { return rtrim(set.data); }
  ustring& rtrim(char const* set);
  ustring& trim(ustring const& set) { return trim(set.data); }
  ustring& trim(char const* set);

  /// Throws if `pos` is beyond the end; at the end, returns an empty string.
  ustring substr(unsigned long pos = 0, unsigned long n = npos) const;
  void swap(ustring& other) noexcept;
  /// Replaces every byte `from`. An existing UTF-16 copy doesn't change.
  ustring& replace(char from, char to);

  /// The difference of the first bytes that differ, as unsigned; 0 for equal strings.
  int compare(ustring const& other) const;
  /// The same for the first `n` bytes.
  int compare(ustring const& other, unsigned long n) const;
  /// The same; `ignore_case` folds A to Z, and no other letters.
  static int compare(ustring const& a, ustring const& b, bool ignore_case);

  /// Returns an empty string, with a warning on std::cerr, if the UTF-8 is invalid.
  ustring normalize(normalization_form form) const { return normalize(*this, form); }
  static ustring normalize(ustring const& s, normalization_form form);
  static bool is_valid(ustring const& s);

 private:
  friend struct UstringProbe;
  friend ustring operator+(ustring const& a, ustring const& b);
  friend ustring operator+(ustring const& a, char const* b);
  friend ustring operator+(ustring const& a, char b);

  /// The concatenation of two strings without NUL.
  ustring(std::string_view a, std::string_view b) { init(a, b); }

  void init();
  void init(std::string_view a, std::string_view b);
  void allocate(unsigned long data_units, unsigned long wdata_units);
  void realloc_data(unsigned long n);
  void realloc_wdata(unsigned long n) const;
  int convert_from_data() const;
  int convert_from_wdata();

  static std::string_view text_of(char const& c) { return {&c, c == '\0' ? 0U : 1U}; }
  std::string_view part(unsigned long pos, unsigned long n) const;
  ustring& assign_data(char const* s, unsigned long n);
  ustring& append_data(char const* s, unsigned long n);
  unsigned long find_text(std::string_view pattern, unsigned long pos) const;
  unsigned long rfind_text(std::string_view pattern, unsigned long pos) const;
  unsigned long first_byte(std::string_view set, unsigned long pos, bool in_set) const;
  unsigned long last_byte(std::string_view set, unsigned long pos, bool in_set) const;

  char* data;
  unsigned long data_length;
  unsigned long data_capacity;
  mutable unsigned short* wdata;
  mutable unsigned long wdata_length;  // 0: there is no copy, or the string is empty
  mutable unsigned long wdata_capacity;
};

ustring operator+(ustring const& a, ustring const& b);
ustring operator+(ustring const& a, char const* b);
ustring operator+(ustring const& a, char b);
ustring operator+(ustring const& a, unsigned short const* b);
ustring operator+(ustring const& a, unsigned short b);

void swap(ustring& a, ustring& b) noexcept;

/// Bytewise. `<=` and `>=` are as strict as `<` and `>`: both are false for equal strings.
inline bool operator<(ustring const& a, ustring const& b) {
  return std::strcmp(a.c_str(), b.c_str()) < 0;
}
inline bool operator==(ustring const& a, ustring const& b) {
  return std::strcmp(a.c_str(), b.c_str()) == 0;
}
inline bool operator>(ustring const& a, ustring const& b) { return b < a; }
inline bool operator!=(ustring const& a, ustring const& b) { return !(a == b); }
inline bool operator<=(ustring const& a, ustring const& b) { return a < b; }
inline bool operator>=(ustring const& a, ustring const& b) { return b < a; }

std::ostream& operator<<(std::ostream& out, ustring const& s);
/// Reads one word.
std::istream& operator>>(std::istream& in, ustring& s);
