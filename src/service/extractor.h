#pragma once

#include "foundation/ustring.h"

struct archive;

/// Unpacks one archive file into one folder and reports each entry to the Notify_Adapter.
///
/// Set both paths, then call. Every call opens and frees archive objects of its own, so nothing is
/// held in between. One thread at a time; blocks on disk; can't be cancelled. Memory does not grow
/// with the size of the archive.
class Extractor {
 public:
  /// Folder under which entries are written; it must exist or be creatable.
  ustring dest_path;
  /// The archive file, in any format and behind any filter that libarchive detects.
  ustring package_path;

  /// 0 when all entries were written, else -1. The first failure ends it: what was written until
  /// then stays, and entries that stood in the way are gone. Reads the archive twice: once to
  /// count, so that the progress has an end to move towards. Before it writes the last entry, it
  /// waits until all others are on the disk.
  int Extract();
  /// The number of entries up to the archive's end, or up to where it is damaged. -1 when a path is
  /// empty or the archive can't be opened.
  int Count();
  /// Prints the entries' paths to standard output, a line each. 0, or -1 when the archive can't be
  /// opened. For diagnosis.
  int List();
  /// Copies the data of the reader's current entry to the writer's. 0 or -1.
  int copy_data(archive* reader, archive* writer);

 private:
  int ExtractEntries(archive* reader, archive* writer, int total);
};
