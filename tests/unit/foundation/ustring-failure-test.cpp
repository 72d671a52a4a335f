#include <dlfcn.h>
#include <gmock/gmock.h>
#include <unicode/unorm2.h>

#include <cstdlib>
#include <new>
#include <string>

#include "foundation/ustring.h"
#include "support/captured-cerr.h"
#include "support/ustring-probe.h"

// What ustring does when memory or ICU fail. This program answers the calls itself: the linker
// sends the allocations here (--wrap), and ICU's functions are defined a second time.

namespace {

using testing::MatchesRegex;

int allocations_left = -1;  // -1: all succeed
bool no_instance = false;
UErrorCode instance_status = U_ZERO_ERROR;
UErrorCode normalize_status = U_ZERO_ERROR;

bool Refused() {
  if (allocations_left < 0) return false;
  if (allocations_left == 0) return true;
  --allocations_left;
  return false;
}

#define LARKMOOR_TEXT_OF(x) #x
#define LARKMOOR_NAME_OF(x) LARKMOOR_TEXT_OF(x)

template <class Function>
Function* Real(Function*, char const* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

void* __real_malloc(size_t size);
void* __real_realloc(void* block, size_t size);
void* __wrap_malloc(size_t size);
void* __wrap_realloc(void* block, size_t size);

void* __wrap_malloc(size_t size) { return Refused() ? nullptr : __real_malloc(size); }
void* __wrap_realloc(void* block, size_t size) {
  return Refused() ? nullptr : __real_realloc(block, size);
}

UNormalizer2 const* unorm2_getInstance(char const* package, char const* name,
                                       UNormalization2Mode mode, UErrorCode* status) {
  if (no_instance) return nullptr;
  auto const* instance =
      Real(&unorm2_getInstance, LARKMOOR_NAME_OF(unorm2_getInstance))(package, name, mode, status);
  if (instance_status != U_ZERO_ERROR) *status = instance_status;
  return instance;
}

int32_t unorm2_normalize(UNormalizer2 const* normalizer, UChar const* s, int32_t length,
                         UChar* dest, int32_t capacity, UErrorCode* status) {
  int32_t const result = Real(&unorm2_normalize, LARKMOOR_NAME_OF(unorm2_normalize))(
      normalizer, s, length, dest, capacity, status);
  if (normalize_status != U_ZERO_ERROR && dest != nullptr) *status = normalize_status;
  return result;
}

}  // extern "C"

namespace {

class UstringFailure : public testing::Test {
 protected:
  void TearDown() override {
    allocations_left = -1;
    no_instance = false;
    instance_status = U_ZERO_ERROR;
    normalize_status = U_ZERO_ERROR;
  }
};

template <class Call>
void ExpectBadAlloc(int successes, Call const& call) {
  allocations_left = successes;
  bool threw = false;
  try {
    call();
  } catch (std::bad_alloc const&) {
    threw = true;
  }
  allocations_left = -1;
  EXPECT_TRUE(threw);
}

TEST_F(UstringFailure, ConstructionWithoutMemoryThrowsAndLosesNothing) {
  for (int successes = 0; successes < 2; ++successes) {
    ExpectBadAlloc(successes, [] { ustring const s; });
    ExpectBadAlloc(successes, [] { ustring const s("abc"); });
  }
  std::u16string const wide(20, u'x');
  ExpectBadAlloc(2, [&] {  // the buffers are there, growing them fails
    ustring const s(reinterpret_cast<unsigned short const*>(wide.c_str()));
  });
}

TEST_F(UstringFailure, AppendWithoutMemoryThrowsAndKeepsTheText) {
  ustring s("abc");
  char const* const buffer = s.c_str();
  ExpectBadAlloc(0, [&] { s.append("defgh"); });
  ExpectBadAlloc(0, [&] { s.append(s.c_str()); });
  ExpectBadAlloc(0, [&] { s.append('x', 99); });
  EXPECT_EQ(s.c_str(), buffer);
  EXPECT_EQ(s, "abc");
  EXPECT_EQ(UstringProbe::DataCapacity(s), 4U);
  EXPECT_EQ(s.append("defgh"), "abcdefgh");
}

TEST_F(UstringFailure, AssignWithoutMemoryThrowsAndLeavesTheTargetEmpty) {
  ustring s("abc");
  ExpectBadAlloc(0, [&] { s.assign("longer than that"); });
  EXPECT_TRUE(s.empty());
  EXPECT_EQ(s.assign("longer than that"), "longer than that");
}

TEST_F(UstringFailure, ConversionWithoutMemoryThrowsAndKeepsTheText) {
  ustring s("longer than four");
  ExpectBadAlloc(0, [&] { s.c_str_utf16(); });
  EXPECT_EQ(s, "longer than four");
  EXPECT_EQ(UstringProbe::WideLength(s), 0U);
  EXPECT_EQ(s.c_str_utf16()[3], 'g');
}

TEST_F(UstringFailure, NormalizeWarnsOfAFailedInstanceAndGivesNothing) {
  test::CapturedCerr const cerr;
  instance_status = U_FILE_ACCESS_ERROR;
  EXPECT_TRUE(ustring("abc").normalize(ustring::NFC).empty());
  EXPECT_THAT(cerr.text(),
              MatchesRegex("Warning: unorm2_getInstance: error code 4 at line [0-9]+\n"));
}

TEST_F(UstringFailure, NormalizeWarnsOfAMissingInstanceAndGivesNothing) {
  test::CapturedCerr const cerr;
  no_instance = true;
  EXPECT_TRUE(ustring("abc").normalize(ustring::NFD).empty());
  EXPECT_THAT(cerr.text(),
              MatchesRegex("Warning: unorm2_getInstance: error code 0 at line [0-9]+\n"));
}

TEST_F(UstringFailure, NormalizeWarnsOfAFailedPassAndGivesNothing) {
  test::CapturedCerr const cerr;
  normalize_status = U_MEMORY_ALLOCATION_ERROR;
  ustring const result = ustring("abc").normalize(ustring::NFC);
  EXPECT_TRUE(result.empty());
  EXPECT_EQ(*UstringProbe::Wide(result), 0);
  EXPECT_THAT(cerr.text(),
              MatchesRegex("Warning: unorm2_normalize: error code 7 at line [0-9]+\n"));
}

TEST_F(UstringFailure, NormalizeOfNothingAsksNoInstance) {
  test::CapturedCerr const cerr;
  no_instance = true;
  EXPECT_TRUE(ustring().normalize(ustring::NFC).empty());
  EXPECT_EQ(cerr.text(), "");
}

}  // namespace
