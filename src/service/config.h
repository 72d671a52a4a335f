#pragma once

#include <map>

#include "foundation/ustring.h"

/// The key-value pairs of a small text file, sorted by key.
///
///     # comment
///     key = value            # comment
///     key = "two words"      or in ' '; there is no escape character
///
/// Keys consist of letters, digits, `_`, `-` and `.` and are case-sensitive. The last of several
/// equal keys counts. There are no sections.
class Config : public std::map<ustring, ustring> {
 public:
  /// Adds the pairs of a file. Returns 0, or -1
  ///  - with nothing changed, if the path is empty or the file can't be opened;
  ///  - with all pairs gone, those of earlier calls too, if a line is malformed, since a half-read
  ///    file is worse than none.
  /// Logs nothing.
  int read(ustring const& path);

  /// The number at the beginning of the value, or 0. Adds an absent key with an empty value, as
  /// operator[] does.
  int get_int(ustring const& key);
};
