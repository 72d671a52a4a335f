#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "support/ustring-model.h"

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size);

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
  std::string const script(reinterpret_cast<char const*>(data), size);
  std::string const difference = test::CompareUstringWithModel(script);
  if (difference.empty()) return 0;
  std::fprintf(stderr, "ustring and its model differ: %s\n", difference.c_str());
  std::abort();
}
