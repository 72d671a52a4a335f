#pragma once

#include <cstring>
#include <iosfwd>
#include <string>
#include <string_view>

/// A text held as UTF-8, with a UTF-16 copy made when somebody asks for one.
///
/// The UTF-8 bytes are the truth; lengths and positions count them, never characters. A text ends
/// at its first NUL, whatever length it was given with. The names are those of std::string; where
/// the results differ from it (the empty pattern in searches, `<=` and `>=`), the member says so.
///
/// Both buffers belong to the one object. They fit the text: they grow to the exact size and are
/// given back when less than about half is used.
///
/// A ustring belongs to one thread at a time: c_str_utf16() and normalize() write the UTF-16 copy
/// even of a const object. Several threads may share an object through c_str(), c_str_utf8(),
/// length(), empty() and the comparisons alone.
///
/// Throws std::bad_alloc when memory runs out: an assignment then leaves the object empty, any
/// other change leaves the text as it was. Throws std::out_of_range where a position is checked. A
/// null pointer is no valid text.
class ustring {
 public:
  enum normalization_form { NFC = 0, NFD = 1 };

  /// "Not found" as a result, "all the rest" as a count.
  static constexpr unsigned long npos = ~0UL;

  ustring();
  ustring(ustring const& s);
  ustring(ustring&& s) noexcept;  ///< Leaves `s` empty and usable; ends the process if it can't.
  ustring(char const* s);
  ustring(unsigned short const* s);
  ustring(std::string const& s);
  ustring(char c);
  ~ustring();

  /// Replaces the text. When a position is out of range the object is left empty, unless `s` is
  /// the object itself.
  ustring& assign(ustring const& s, unsigned long pos = 0, unsigned long n = npos);
  ustring& assign(char const* s);
  ustring& assign(char const* s, unsigned long n);
  ustring& assign(unsigned short const* s);
  ustring& assign(unsigned short const* s, unsigned long n);
  ustring& assign(std::string const& s, unsigned long pos = 0, unsigned long n = npos);
  ustring& assign(char c, unsigned long n = 1);
  ustring& assign(unsigned short c, unsigned long n = 1);

  /// Adds to the end. `s` may be the object itself or point into its buffers. UTF-16 that isn't
  /// well formed empties the object; present text that isn't valid UTF-8 is replaced by what is
  /// appended as UTF-16.
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

  /// The UTF-8 text, valid until the next change.
  char const* c_str() const { return data; }
  char const* c_str_utf8() const { return data; }
  /// The UTF-16 text, valid until the next change; empty, with a warning on std::cerr, when the
  /// text isn't valid UTF-8. What was written by replace() or operator[] since the copy was made
  /// isn't in it.
  unsigned short const* c_str_utf16() const;

  /// Unchecked.
  char& operator[](unsigned long pos) { return data[pos]; }
  char const& operator[](unsigned long pos) const { return data[pos]; }

  unsigned long length() const { return data_length; }
  unsigned long size() const { return data_length; }
  bool empty() const { return data_length == 0; }

  /// These keep the memory.
  void clear();
  void clear_data();
  void clear_wdata() const;

  /// Searches compare bytes and may hit the middle of a character. NUL as the character stands for
  /// the empty pattern. From a position at or behind the end nothing is found, not even "".
  unsigned long find(std::string const& s, unsigned long pos = 0) const {
    return find_text(s.c_str(), pos);
  }
  unsigned long find(char const* s, unsigned long pos = 0) const { return find_text(s, pos); }
  unsigned long find(ustring const& s, unsigned long pos = 0) const {
    return find_text(s.data, pos);
  }
  unsigned long find(char c, unsigned long pos = 0) const { return find_text(text_of(c), pos); }

  /// Backward searches begin at `pos`, or at the last byte when `pos` is behind it: the empty
  /// pattern is found there, at length() - 1 at most.
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

  /// Drop the leading, the trailing, or both runs of bytes that are in `set`.
  ustring& ltrim(ustring const& set) { return ltrim(set.data); }
  ustring& ltrim(char const* set);
  ustring& rtrim(ustring const& set) { return rtrim(set.data); }
  ustring& rtrim(char const* set);
  ustring& trim(ustring const& set) { return trim(set.data); }
  ustring& trim(char const* set);

  /// Throws when `pos` is behind the end; the end itself gives an empty text.
  ustring substr(unsigned long pos = 0, unsigned long n = npos) const;
  void swap(ustring& other) noexcept;
  /// Overwrites every byte `from`. A UTF-16 copy made earlier keeps the former text.
  ustring& replace(char from, char to);

  /// The difference of the first bytes that differ, taken as unsigned; 0 for equal texts.
  int compare(ustring const& other) const;
  /// The same over at most `n` bytes.
  int compare(ustring const& other, unsigned long n) const;
  /// The same; with `ignore_case` A to Z count as a to z, and no other letter is folded.
  static int compare(ustring const& a, ustring const& b, bool ignore_case);

  /// Empty, with a warning on std::cerr, when the text isn't valid UTF-8.
  ustring normalize(normalization_form form) const { return normalize(*this, form); }
  static ustring normalize(ustring const& s, normalization_form form);
  static bool is_valid(ustring const& s);

 private:
  friend struct UstringProbe;
  friend ustring operator+(ustring const& a, ustring const& b);
  friend ustring operator+(ustring const& a, char const* b);
  friend ustring operator+(ustring const& a, char b);

  /// The two texts one behind the other, neither with a NUL in it.
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
  mutable unsigned long wdata_length;  // 0: the copy isn't made, or the text is empty
  mutable unsigned long wdata_capacity;
};

ustring operator+(ustring const& a, ustring const& b);
ustring operator+(ustring const& a, char const* b);
ustring operator+(ustring const& a, char b);
ustring operator+(ustring const& a, unsigned short const* b);
ustring operator+(ustring const& a, unsigned short b);

void swap(ustring& a, ustring& b) noexcept;

/// By bytes. `<=` and `>=` are as strict as `<` and `>`: both are false for equal texts.
inline bool operator<(ustring const& a, ustring const& b) {
  return std::strcmp(a.c_str(), b.c_str()) < 0;
}
inline bool operator==(ustring const& a, ustring const& b) {
  // Bytes of a known number are compared faster than texts whose end has to be found. What
  // operator[] wrote may have moved the end, so that only texts that end there are told so.
  unsigned long const end = a.length();
  if (end == b.length() && a[end] == '\0' && std::memcmp(a.c_str(), b.c_str(), end + 1) == 0) {
    return true;
  }
  return std::strcmp(a.c_str(), b.c_str()) == 0;
}
inline bool operator>(ustring const& a, ustring const& b) { return b < a; }
inline bool operator!=(ustring const& a, ustring const& b) { return !(a == b); }
inline bool operator<=(ustring const& a, ustring const& b) { return a < b; }
inline bool operator>=(ustring const& a, ustring const& b) { return b < a; }

std::ostream& operator<<(std::ostream& out, ustring const& s);
/// Reads one word.
std::istream& operator>>(std::istream& in, ustring& s);
