#include "foundation/tmp-name-gen.h"

#include <sys/time.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <utility>

namespace {

/// Each character encodes six bits of the value, high bits first.
void EncodeThreeBytes(unsigned char const* bytes, char* characters) {
  static constexpr char map[] = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";
  characters[0] = map[bytes[0] >> 2];
  characters[1] = map[(bytes[0] & 3) << 4 | bytes[1] >> 4];
  characters[2] = map[(bytes[1] & 15) << 2 | bytes[2] >> 6];
  characters[3] = map[bytes[2] & 63];
}

}  // namespace

std::mutex TmpNameGen::m_lock;

TmpNameGen* TmpNameGen::getInstance() {
  static TmpNameGen tmp_name;
  return &tmp_name;
}

TmpNameGen::TmpNameGen() {
  get_key(key, sizeof(key));
  rc4_init(sbox, key);
}

TmpNameGen::~TmpNameGen() = default;

void TmpNameGen::get_key(unsigned char* key, unsigned long size) {
  timeval now;
  gettimeofday(&now, nullptr);
  std::snprintf(reinterpret_cast<char*>(key), size, "%lu-%lu",
                static_cast<unsigned long>(now.tv_sec), static_cast<unsigned long>(now.tv_usec));
}

void TmpNameGen::rc4_init(unsigned char* sbox, unsigned char* key) {
  for (int i = 0; i < 256; ++i) sbox[i] = static_cast<unsigned char>(i);
  if (key[0] == '\0') {
    std::srand(static_cast<unsigned int>(std::time(nullptr)));
    for (int i = 0; i < 256; ++i) key[i] = static_cast<unsigned char>(std::rand() & 255);
  }
  int j = 0;
  for (int i = 0; i < 256; ++i) {
    j = (key[i] + j + sbox[i]) % 256;
    std::swap(sbox[i], sbox[j]);
  }
}

void TmpNameGen::rc4_randomize(unsigned char* sbox, unsigned char* output, int count) {
  int j = 0;
  for (int n = 0; n < count; ++n) {
    int const i = (n + 1) % 256;
    j = (j + sbox[i]) % 256;
    std::swap(sbox[i], sbox[j]);
    output[n] = sbox[(sbox[i] + sbox[j]) % 256];
  }
}

ustring TmpNameGen::getTmpName() {
  char name[9] = {};
  {
    std::lock_guard<std::mutex> const lock(m_lock);
    rc4_randomize(sbox, output, sizeof(output));
    EncodeThreeBytes(output, name);
    EncodeThreeBytes(output + 3, name + 4);
  }
  return ustring(name);
}

ustring TmpNameGen::getTmpPath(ustring const& directory) { return directory + "/" + getTmpName(); }
