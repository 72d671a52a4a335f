#pragma once

#include <mutex>

#include "foundation/ustring.h"

/// Makes up names for temporary files: eight characters that are all safe in a file name. The
/// sequence is seeded from the clock; it is for avoiding collisions, not for secrets. After a fork
/// parent and child go on with the same sequence.
class TmpNameGen {
 public:
  /// The one that the process shares. Any thread.
  static TmpNameGen* getInstance();

  TmpNameGen();
  ~TmpNameGen();
  TmpNameGen(TmpNameGen const&) = delete;
  TmpNameGen& operator=(TmpNameGen const&) = delete;

  /// Any thread.
  ustring getTmpName();
  /// A name behind `directory` and a slash. Nobody looks whether something stands there. Any
  /// thread.
  ustring getTmpPath(ustring const& directory);

  /// Writes the clock into `size` bytes as text.
  static void get_key(unsigned char* key, unsigned long size);
  /// Sets up the permutation of 256 bytes from all 256 bytes of the key. A key that is empty as a
  /// text is filled from rand() first.
  static void rc4_init(unsigned char* sbox, unsigned char* key);
  /// Takes `count` bytes from the permutation and changes it on the way. Each call starts at the
  /// permutation's beginning.
  static void rc4_randomize(unsigned char* sbox, unsigned char* output, int count);

 private:
  static std::mutex m_lock;

  unsigned char sbox[256] = {};
  unsigned char key[256] = {};
  unsigned char output[6] = {};
};
