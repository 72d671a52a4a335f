#pragma once

#include "foundation/ustring.h"

struct archive;

/// Unpacks an archive into a folder and reports each entry to Notify_Adapter.
///
/// Set both paths, then call a function. Each call opens and closes its own archive objects. One
/// thread at a time may use it. It blocks on disk and can't be cancelled. Memory use doesn't grow
/// with the size of the archive.
class Extractor {
 public:
  /// The folder that entries are written to. It must exist or be creatable.
  ustring dest_path;
  /// The archive, in any format and with any compression that libarchive detects.
  ustring package_path;

  /// Returns 0 if all entries were written, else -1. The first failure ends it: what was written
  /// stays, and what was in an entry's way is gone. Reads the archive twice, first to count the
  /// entries for the progress. Flushes all other entries to disk before it writes the last one.
  int Extract();
  /// The number of entries up to the end of the archive or to where it is damaged. Returns -1 if a
  /// path is empty or the archive can't be opened.
  int Count();
  /// Prints the paths of the entries to standard output, one per line. Returns 0, or -1 if the
  /// archive can't be opened. For diagnosis.
  int List();
  /// Copies the data of the reader's current entry to the writer. Returns 0 or -1.
  int copy_data(archive* reader, archive* writer);

 private:
  int ExtractEntries(archive* reader, archive* writer, int total);
};
