#pragma once

#include <map>

#include "foundation/ustring.h"

/// The pairs of a small text file, in the order of their keys.
///
///     # comment
///     key = value            # comment
///     key = "two words"      or in ' '; there is no escape character
///
/// Keys are made of letters, digits, `_`, `-` and `.` and are case-sensitive; the last of several
/// equal ones counts. There are no sections.
class Config : public std::map<ustring, ustring> {
 public:
  /// Adds the pairs of a file to those already here. Returns 0, or -1 when
  ///  - the path is empty or the file can't be opened: nothing is changed;
  ///  - a line isn't understood: all pairs are gone, those of earlier calls too, since a half-read
  ///    file is worse than none.
  /// Logs nothing.
  int read(ustring const& path);

  /// The number that the value begins with, 0 if it begins with none. Enters an absent key with an
  /// empty value, as operator[] does.
  int get_int(ustring const& key);
};
