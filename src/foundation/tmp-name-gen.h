#pragma once

#include <mutex>

#include "foundation/ustring.h"

/// Generates names for temporary files: eight characters that are safe in a file name. Seeded from
/// the clock, to avoid collisions, not for security. After a fork, parent and child continue the
/// same sequence.
class TmpNameGen {
 public:
  /// The instance that the process shares. Any thread may call it.
  static TmpNameGen* getInstance();

  TmpNameGen();
  ~TmpNameGen();
  TmpNameGen(TmpNameGen const&) = delete;
  TmpNameGen& operator=(TmpNameGen const&) = delete;

  /// Any thread.
  ustring getTmpName();
  /// `directory`, a slash and a name. Doesn't check whether the path exists. Any thread.
  ustring getTmpPath(ustring const& directory);

  /// Writes the time as a string into `size` bytes.
  static void get_key(unsigned char* key, unsigned long size);
  /// Initialises the permutation from all 256 bytes of the key. A key that starts with NUL is
  /// filled from rand() first.
  static void rc4_init(unsigned char* sbox, unsigned char* key);
  /// Returns `count` bytes of the permutation and changes it on the way. Each call starts at its
  /// beginning.
  static void rc4_randomize(unsigned char* sbox, unsigned char* output, int count);

 private:
  static std::mutex m_lock;

  unsigned char sbox[256] = {};
  unsigned char key[256] = {};
  unsigned char output[6] = {};
};
