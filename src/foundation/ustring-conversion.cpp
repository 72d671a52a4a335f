// UTF-16 and normal forms, through ICU.

#include <unicode/unorm2.h>
#include <unicode/ustring.h>

#include <cstdint>
#include <iostream>
#include <new>

#include "foundation/ustring-internal.h"
#include "foundation/ustring.h"

using ustring_internal::Needed;
using ustring_internal::Terminate;

namespace {

static_assert(sizeof(unsigned short) == sizeof(UChar), "ICU works on the units as they stand");

UChar* Units(unsigned short* s) { return reinterpret_cast<UChar*>(s); }

void Warn(char const* call, UErrorCode status, int line) {
  std::cerr << "Warning: " << call << ": error code " << static_cast<int>(status) << " at line "
            << line << std::endl;
}

}  // namespace

unsigned short const* ustring::c_str_utf16() const {
  if (wdata_length == 0) convert_from_data();
  return wdata;
}

int ustring::convert_from_data() const {
  UErrorCode status = U_ZERO_ERROR;
  int32_t length = 0;
  u_strFromUTF8(nullptr, 0, &length, data, -1, &status);
  status = U_ZERO_ERROR;
  realloc_wdata(Needed(static_cast<unsigned long>(length), 0));
  u_strFromUTF8(Units(wdata), static_cast<int32_t>(wdata_capacity), &length, data, -1, &status);
  if (U_FAILURE(status)) {
    Warn("u_strFromUTF8", status, __LINE__);
    clear_wdata();
    return -1;
  }
  Terminate(wdata, wdata_length, static_cast<unsigned long>(length));
  return 0;
}

// A failure empties the string: the UTF-16 is invalid, and the UTF-8 predates the change.
int ustring::convert_from_wdata() {
  UErrorCode status = U_ZERO_ERROR;
  int32_t length = 0;
  u_strToUTF8(nullptr, 0, &length, Units(wdata), -1, &status);
  status = U_ZERO_ERROR;
  try {
    realloc_data(Needed(static_cast<unsigned long>(length), 0));
  } catch (std::bad_alloc const&) {
    clear_wdata();  // the UTF-8 still predates the change
    throw;
  }
  u_strToUTF8(data, static_cast<int32_t>(data_capacity), &length, Units(wdata), -1, &status);
  if (U_FAILURE(status)) {
    Warn("u_strToUTF8", status, __LINE__);
    clear();
    return -1;
  }
  Terminate(data, data_length, static_cast<unsigned long>(length));
  return 0;
}

ustring ustring::normalize(ustring const& s, normalization_form form) {
  static constexpr UNormalization2Mode kModes[] = {UNORM2_COMPOSE, UNORM2_DECOMPOSE};
  UErrorCode status = U_ZERO_ERROR;
  ustring result;
  if (s.empty()) return result;
  UNormalizer2 const* const normalizer = unorm2_getInstance(nullptr, "nfc", kModes[form], &status);
  if (U_FAILURE(status) || normalizer == nullptr) {
    Warn("unorm2_getInstance", status, __LINE__);
    return result;
  }
  int32_t length = unorm2_normalize(normalizer, Units(const_cast<unsigned short*>(s.c_str_utf16())),
                                    -1, nullptr, 0, &status);
  status = U_ZERO_ERROR;
  result.realloc_wdata(Needed(static_cast<unsigned long>(length), 0));
  length =
      unorm2_normalize(normalizer, Units(const_cast<unsigned short*>(s.c_str_utf16())), -1,
                       Units(result.wdata), static_cast<int32_t>(result.wdata_capacity), &status);
  if (U_FAILURE(status)) {
    Warn("unorm2_normalize", status, __LINE__);
    result.clear();
    return result;
  }
  Terminate(result.wdata, result.wdata_length, static_cast<unsigned long>(length));
  result.convert_from_wdata();
  return result;
}

bool ustring::is_valid(ustring const& s) {
  if (s.empty()) return true;
  UErrorCode status = U_ZERO_ERROR;
  int32_t length = 0;
  u_strFromUTF8(nullptr, 0, &length, s.data, -1, &status);
  return status != U_INVALID_CHAR_FOUND;
}
