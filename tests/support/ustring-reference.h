#pragma once

#include <string>

#include "foundation/ustring.h"

// The model that ustring-model.h compares ustring with, as simple as possible.

namespace test {

inline constexpr unsigned long kAll = ustring::npos;

using Wide = std::u16string;

using Wide = std::u16string;

/// The string up to its first NUL.
std::string UpToNul(std::string const& s);
Wide UpToNul(Wide const& s);

/// Convert; return false if the input is ill-formed.
bool ToWide(std::string const& s, Wide& out);
bool ToNarrow(Wide const& s, std::string& out);

/// The expected state of a ustring.
struct Model {
  std::string text;
  Wide wide;
  unsigned long capacity = 4;
  unsigned long wide_capacity = 4;
  long warnings = 0;

  Model() = default;
  explicit Model(std::string const& s) { Append(s); }

  void Clear();
  void Append(std::string const& s);
  void Assign(std::string const& s);
  void Truncate(unsigned long n);
  void FillWide();
  void FillWideIfEmpty();
  void FillText();
  void BeginWideAppend();
  void AppendWide(Wide const& s);
  void AppendUnits(Wide const& s);
  void AssignWide(Wide const& s);
};

enum Search { kFind, kFindFirstOf, kFindFirstNotOf, kRfind, kFindLastOf, kFindLastNotOf };

unsigned long ModelSearch(Search search, std::string const& text, std::string const& pattern,
                          unsigned long pos);
/// The string with ASCII letters in lower case.
std::string Folded(std::string s);
/// The difference of the first two bytes that differ, as compare() returns it.
int ModelCompare(std::string const& a, std::string const& b);

}  // namespace test
