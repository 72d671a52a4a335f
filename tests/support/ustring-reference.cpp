#include "support/ustring-reference.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace test {
namespace {

bool IsContinuation(std::string const& s, size_t at) {
  return at < s.size() && (static_cast<unsigned char>(s[at]) & 0xC0) == 0x80;
}

/// Decodes a character; returns false if there is none at that position.
bool Decode(std::string const& s, size_t& at, uint32_t& c) {
  auto const lead = static_cast<unsigned char>(s[at]);
  size_t const more = lead < 0x80 ? 0 : lead < 0xC2 ? 9 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
  if (more == 9 || lead > 0xF4) return false;
  c = more == 0 ? lead : lead & (0x3FU >> more);
  for (size_t i = 1; i <= more; ++i) {
    if (!IsContinuation(s, at + i)) return false;
    c = c << 6 | (static_cast<unsigned char>(s[at + i]) & 0x3FU);
  }
  constexpr uint32_t kLeast[] = {0, 0x80, 0x800, 0x10000};
  if (c < kLeast[more] || c > 0x10FFFF || (c >= 0xD800 && c < 0xE000)) return false;
  at += more + 1;
  return true;
}

void Encode(uint32_t c, std::string& out) {
  int const more = c < 0x80 ? 0 : c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
  constexpr uint32_t kLead[] = {0, 0xC0, 0xE0, 0xF0};
  out += static_cast<char>(kLead[more] | c >> (6 * more));
  for (int i = more - 1; i >= 0; --i) out += static_cast<char>(0x80 | ((c >> (6 * i)) & 0x3F));
}

unsigned long Refit(unsigned long capacity, size_t needed) {
  return capacity < needed || capacity / 2 > needed ? needed : capacity;
}

bool Matches(Search search, std::string const& text, size_t at, std::string const& pattern) {
  if (search == kFind || search == kRfind) return text.substr(at, pattern.size()) == pattern;
  bool const in_set = pattern.find(text[at]) != std::string::npos;
  return in_set == (search == kFindFirstOf || search == kFindLastOf);
}

}  // namespace

std::string UpToNul(std::string const& s) { return s.substr(0, s.find('\0')); }
Wide UpToNul(Wide const& s) { return s.substr(0, s.find(u'\0')); }

bool ToWide(std::string const& s, Wide& out) {
  out.clear();
  for (size_t at = 0; at < s.size();) {
    uint32_t c = 0;
    if (!Decode(s, at, c)) return false;
    if (c >= 0x10000) {
      out += static_cast<char16_t>(0xD7C0 + (c >> 10));
      c = 0xDC00 | (c & 0x3FF);
    }
    out += static_cast<char16_t>(c);
  }
  return true;
}

bool ToNarrow(Wide const& s, std::string& out) {
  out.clear();
  for (size_t at = 0; at < s.size(); ++at) {
    uint32_t c = s[at];
    if (c >= 0xDC00 && c < 0xE000) return false;
    if (c >= 0xD800 && c < 0xDC00) {
      if (++at == s.size() || s[at] < 0xDC00 || s[at] >= 0xE000) return false;
      c = 0x10000 + ((c - 0xD800) << 10) + (s[at] - 0xDC00U);
    }
    Encode(c, out);
  }
  return true;
}

void Model::Clear() {
  text.clear();
  wide.clear();
}

void Model::Append(std::string const& s) {
  text += UpToNul(s);
  capacity = Refit(capacity, text.size() + 1);
  wide.clear();
}

void Model::Assign(std::string const& s) {
  Clear();
  Append(s);
}

void Model::Truncate(unsigned long n) {
  if (n >= text.size()) return;
  text.resize(n);
  wide.clear();
}

void Model::FillWide() {
  Wide converted;
  bool const valid = ToWide(text, converted);
  if (!valid) ++warnings;
  wide = valid ? converted : Wide();
  wide_capacity = Refit(wide_capacity, wide.size() + 1);
}

void Model::FillWideIfEmpty() {
  if (wide.empty()) FillWide();
}

void Model::FillText() {
  std::string converted;
  bool const valid = ToNarrow(wide, converted);
  if (!valid) ++warnings;
  capacity = Refit(capacity, valid ? converted.size() + 1 : 1);
  text = valid ? converted : std::string();
  if (!valid) wide.clear();
}

void Model::BeginWideAppend() {
  if (wide.empty() && !text.empty()) FillWide();
}

void Model::AppendWide(Wide const& s) {
  BeginWideAppend();
  AppendUnits(s);
}

void Model::AppendUnits(Wide const& s) {
  wide += UpToNul(s);
  wide_capacity = Refit(wide_capacity, wide.size() + 1);
  FillText();
}

void Model::AssignWide(Wide const& s) {
  Clear();
  AppendWide(s);
}

unsigned long ModelSearch(Search search, std::string const& text, std::string const& pattern,
                          unsigned long pos) {
  if (search <= kFindFirstNotOf) {
    for (size_t at = pos; at < text.size(); ++at) {
      if (Matches(search, text, at, pattern)) return at;
    }
    return kAll;
  }
  for (size_t at = text.size(); at-- > 0;) {
    if (at <= pos && Matches(search, text, at, pattern)) return at;
  }
  return kAll;
}

std::string Folded(std::string s) {
  for (char& c : s) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
  }
  return s;
}

int ModelCompare(std::string const& a, std::string const& b) {
  for (size_t i = 0; i < a.size() || i < b.size(); ++i) {
    int const left = i < a.size() ? static_cast<unsigned char>(a[i]) : 0;
    int const right = i < b.size() ? static_cast<unsigned char>(b[i]) : 0;
    if (left != right) return left - right;
  }
  return 0;
}

}  // namespace test
