#include <dlfcn.h>
#include <gmock/gmock.h>
#include <unicode/unorm2.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <new>
#include <set>
#include <string>
#include <vector>

#include "foundation/ustring.h"
#include "support/captured-cerr.h"
#include "support/ustring-probe.h"

// Tests ustring when memory or ICU fail. The program replaces allocation through --wrap, and
// redefines ICU's functions.

namespace {

using testing::ElementsAre;
using testing::MatchesRegex;

int allocations_left = -1;  // -1: all succeed
bool fails_once = false;    // only the next allocation after these
std::vector<size_t> sizes;  // that malloc() was asked for
std::set<void*> blocks;     // that are in use
bool no_instance = false;
UErrorCode instance_status = U_ZERO_ERROR;
UErrorCode normalize_status = U_ZERO_ERROR;

bool Refused() {
  if (allocations_left < 0) return false;
  bool const refused = allocations_left == 0;
  if (!refused || fails_once) --allocations_left;
  return refused;
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
void __real_free(void* block);
void* __wrap_malloc(size_t size);
void* __wrap_realloc(void* block, size_t size);
void __wrap_free(void* block);

void* __wrap_malloc(size_t size) {
  sizes.push_back(size);
  return Refused() ? nullptr : *blocks.insert(__real_malloc(size)).first;
}
void* __wrap_realloc(void* block, size_t size) {
  if (Refused()) return nullptr;
  blocks.erase(block);
  return *blocks.insert(__real_realloc(block, size)).first;
}
void __wrap_free(void* block) {
  blocks.erase(block);
  __real_free(block);
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
    fails_once = false;
    no_instance = false;
    instance_status = U_ZERO_ERROR;
    normalize_status = U_ZERO_ERROR;
    EXPECT_EQ(blocks, blocks_before) << "memory is lost";
  }

 private:
  std::set<void*> const blocks_before = blocks;
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

TEST_F(UstringFailure, ConstructionWithoutMemoryThrowsAndLeaksNothing) {
  for (int successes = 0; successes < 2; ++successes) {
    ExpectBadAlloc(successes, [] { ustring const s; });
    ExpectBadAlloc(successes, [] { ustring const s("abc"); });
  }
  std::u16string const wide(20, u'x');
  ExpectBadAlloc(2, [&] {  // the buffers exist, but can't grow
    ustring const s(reinterpret_cast<unsigned short const*>(wide.c_str()));
  });
}

TEST_F(UstringFailure, ConstructionFreesTheSecondBufferIfOnlyTheFirstFails) {
  fails_once = true;
  ExpectBadAlloc(0, [] { ustring const s; });
}

TEST_F(UstringFailure, EmptyStringHasRoomForFourUnitsOfEach) {
  sizes.clear();
  ustring const s;
  EXPECT_THAT(sizes, ElementsAre(4, 4 * sizeof(unsigned short)));
}

TEST_F(UstringFailure, AppendWithoutMemoryThrowsAndKeepsTheString) {
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

TEST_F(UstringFailure, ChangeThatFitsExactlyNeedsNoMemory) {
  ustring s("abcdefgh");
  allocations_left = 0;
  EXPECT_NO_THROW(s.assign("hgfedcba"));
  allocations_left = -1;
  EXPECT_EQ(s, "hgfedcba");
}

TEST_F(UstringFailure, AssignWithoutMemoryThrowsAndLeavesTheTargetEmpty) {
  ustring s("abc");
  ExpectBadAlloc(0, [&] { s.assign("longer than that"); });
  EXPECT_TRUE(s.empty());
  EXPECT_EQ(s.assign("longer than that"), "longer than that");
}

/// A way to change a string, and the result.
struct Change {
  char const* name;
  bool keeps;  ///< whether the old string stays when memory runs out; else it is empty
  void (*apply)(ustring& s);
  std::string (*outcome)(std::string const& former);
};

constexpr char kLong[] = "forty bytes that don't fit into what is had";
std::basic_string<unsigned short> const kWide(43, 'w');

unsigned short const* Own16(ustring const& s, unsigned long at) {
  return UstringProbe::Wide(s) + std::min(at, UstringProbe::WideLength(s));
}

// Each string has at least five bytes, all ASCII.
Change const kChanges[] = {
    {"append", true, [](ustring& s) { s.append(kLong); },
     [](std::string const& t) { return t + kLong; }},
    {"append(n)", true, [](ustring& s) { s.append(kLong, 30); },
     [](std::string const& t) { return t + std::string(kLong, 30); }},
    {"append(c)", true, [](ustring& s) { s.append('c', 40); },
     [](std::string const& t) { return t + std::string(40, 'c'); }},
    {"append(string)", true, [](ustring& s) { s.append(std::string(kLong), 2, 30); },
     [](std::string const& t) { return t + std::string(kLong + 2, 30); }},
    {"append(ustring)", true, [](ustring& s) { s.append(ustring(kLong), 2, 30); },
     [](std::string const& t) { return t + std::string(kLong + 2, 30); }},
    {"append(self)", true, [](ustring& s) { s.append(s, 1, ustring::npos); },
     [](std::string const& t) { return t + t.substr(1); }},
    {"append(own)", true, [](ustring& s) { s.append(s.c_str()); },
     [](std::string const& t) { return t + t; }},
    {"append(inside)", true, [](ustring& s) { s.append(s.c_str() + 2, 3); },
     [](std::string const& t) { return t + t.substr(2, 3); }},
    {"wide append", true, [](ustring& s) { s.append(kWide.c_str()); },
     [](std::string const& t) { return t + std::string(43, 'w'); }},
    {"wide append(n)", true, [](ustring& s) { s.append(kWide.c_str(), 2); },
     [](std::string const& t) { return t + "ww"; }},
    {"wide append(c)", true, [](ustring& s) { s.append(kWide[0], 40); },
     [](std::string const& t) { return t + std::string(40, 'w'); }},
    {"wide append(own)", true, [](ustring& s) { s.append(s.c_str_utf16()); },
     [](std::string const& t) { return t + t; }},
    {"wide append(inside)", true, [](ustring& s) { s.append(s.c_str_utf16() + 2, 3); },
     [](std::string const& t) { return t + t.substr(2, 3); }},
    {"+=", true, [](ustring& s) { s += kLong; }, [](std::string const& t) { return t + kLong; }},
    {"wide +=", true, [](ustring& s) { s += kWide[0]; },
     [](std::string const& t) { return t + "w"; }},
    {"assign", false, [](ustring& s) { s.assign(kLong); },
     [](auto const&) { return std::string(kLong); }},
    {"assign(n)", false, [](ustring& s) { s.assign(kLong, 2); },
     [](auto const&) { return std::string("fo"); }},
    {"assign(c)", false, [](ustring& s) { s.assign('c', 70); },
     [](auto const&) { return std::string(70, 'c'); }},
    {"assign(string)", false, [](ustring& s) { s.assign(std::string(kLong), 1, 30); },
     [](auto const&) { return std::string(kLong + 1, 30); }},
    {"assign(self)", false, [](ustring& s) { s.assign(s, 3, 1); },
     [](std::string const& t) { return t.substr(3, 1); }},
    {"assign(inside)", false, [](ustring& s) { s.assign(s.c_str() + 1, 2); },
     [](std::string const& t) { return t.substr(1, 2); }},
    {"assign(own)", false, [](ustring& s) { s.assign(s.c_str(), 3); },
     [](std::string const& t) { return t.substr(0, 3); }},
    {"wide assign", false, [](ustring& s) { s.assign(kWide.c_str()); },
     [](auto const&) { return std::string(43, 'w'); }},
    {"wide assign(n)", false, [](ustring& s) { s.assign(kWide.c_str(), 2); },
     [](auto const&) { return std::string("ww"); }},
    {"wide assign(c)", false, [](ustring& s) { s.assign(kWide[0], 70); },
     [](auto const&) { return std::string(70, 'w'); }},
    {"= wide c", false, [](ustring& s) { s = kWide[0]; },
     [](auto const&) { return std::string("w"); }},
    {"=", false, [](ustring& s) { s = kLong; }, [](auto const&) { return std::string(kLong); }},
    {"ltrim", true, [](ustring& s) { s.ltrim("a"); },
     [](std::string const& t) { return t.substr(1); }},
    {"rtrim", true, [](ustring& s) { s.rtrim("z"); },
     [](std::string const& t) { return t.substr(0, t.size() - 1); }},
    {"trim", true, [](ustring& s) { s.trim("az"); },
     [](std::string const& t) { return t.substr(1, t.size() - 2); }},
};

// These need an existing UTF-16 copy: c_str_utf16() may itself throw.
Change const kChangesOfTheCopy[] = {
    {"wide assign(own)", false, [](ustring& s) { s.assign(Own16(s, 0), 3); },
     [](std::string const& t) { return t.substr(0, 3); }},
    {"wide assign(inside)", false, [](ustring& s) { s.assign(Own16(s, 1), 2); },
     [](std::string const& t) { return t.substr(1, 2); }},
};

std::string const kTexts[] = {"abcyz", "a text of middling length, z",
                              "a" + std::string(300, 'b') + "z"};

/// The UTF-16 copy equals the string or is empty.
void ExpectCopyOfTheText(ustring const& s) {
  if (UstringProbe::WideLength(s) == 0) {
    EXPECT_EQ(*UstringProbe::Wide(s), 0);
    return;
  }
  std::string const text(s.c_str());
  auto const* const wide = UstringProbe::Wide(s);
  EXPECT_EQ(std::string(wide, wide + UstringProbe::WideLength(s)), text);
}

/// Fails each allocation of the change in turn, until none is left to fail.
void RefuseEachAllocation(Change const& change, std::string const& text, bool with_copy) {
  SCOPED_TRACE(std::string(change.name) + " of '" + text + (with_copy ? "' with its copy" : "'"));
  for (int successes = 0;; ++successes) {
    SCOPED_TRACE(successes);
    ASSERT_LT(successes, 10);
    ustring s(text);
    if (with_copy) s.c_str_utf16();
    bool threw = false;
    allocations_left = successes;
    try {
      change.apply(s);
    } catch (std::bad_alloc const&) {
      threw = true;
    }
    allocations_left = -1;
    EXPECT_EQ(std::strlen(s.c_str()), s.length());
    EXPECT_LT(s.length(), UstringProbe::DataCapacity(s));
    EXPECT_LT(UstringProbe::WideLength(s), UstringProbe::WideCapacity(s));
    ExpectCopyOfTheText(s);
    if (!threw) {
      EXPECT_EQ(s.c_str(), change.outcome(text));
      return;
    }
    EXPECT_EQ(s.c_str(), change.keeps ? text : "");
    s.assign(text.c_str());
    s.c_str_utf16();
    change.apply(s);
    EXPECT_EQ(s.c_str(), change.outcome(text));
    ExpectCopyOfTheText(s);
  }
}

TEST_F(UstringFailure, ChangeWithoutMemoryLeavesTheOldStringOrNoneAndNoOtherCopy) {
  for (std::string const& text : kTexts) {
    for (Change const& change : kChanges) {
      RefuseEachAllocation(change, text, false);
      RefuseEachAllocation(change, text, true);
    }
    for (Change const& change : kChangesOfTheCopy) RefuseEachAllocation(change, text, true);
  }
}

TEST_F(UstringFailure, AssigningAPartOfItselfWithoutMemoryLeavesNoCopyOfTheOldString) {
  ustring s("abcdefghijklmnop");
  s.c_str_utf16();
  ExpectBadAlloc(0, [&] { s.assign(s, 3, 4); });
  EXPECT_EQ(s.c_str_utf16()[0], s[0]);
  EXPECT_EQ(s.assign("abcdefghijklmnop").assign(s, 3, 4), "defg");
}

TEST_F(UstringFailure, ConversionWithoutMemoryThrowsAndKeepsTheString) {
  ustring s("longer than four");
  ExpectBadAlloc(0, [&] { s.c_str_utf16(); });
  EXPECT_EQ(s, "longer than four");
  EXPECT_EQ(UstringProbe::WideLength(s), 0U);
  EXPECT_EQ(s.c_str_utf16()[3], 'g');
}

TEST_F(UstringFailure, NormalizeWarnsOfAFailedInstanceAndReturnsNothing) {
  test::CapturedCerr const cerr;
  instance_status = U_FILE_ACCESS_ERROR;
  EXPECT_TRUE(ustring("abc").normalize(ustring::NFC).empty());
  EXPECT_THAT(cerr.text(),
              MatchesRegex("Warning: unorm2_getInstance: error code 4 at line [0-9]+\n"));
}

TEST_F(UstringFailure, NormalizeWarnsOfAMissingInstanceAndReturnsNothing) {
  test::CapturedCerr const cerr;
  no_instance = true;
  EXPECT_TRUE(ustring("abc").normalize(ustring::NFD).empty());
  EXPECT_THAT(cerr.text(),
              MatchesRegex("Warning: unorm2_getInstance: error code 0 at line [0-9]+\n"));
}

TEST_F(UstringFailure, NormalizeWarnsOfAFailedPassAndReturnsNothing) {
  test::CapturedCerr const cerr;
  normalize_status = U_MEMORY_ALLOCATION_ERROR;
  ustring const result = ustring("abc").normalize(ustring::NFC);
  EXPECT_TRUE(result.empty());
  EXPECT_EQ(*UstringProbe::Wide(result), 0);
  EXPECT_THAT(cerr.text(),
              MatchesRegex("Warning: unorm2_normalize: error code 7 at line [0-9]+\n"));
}

TEST_F(UstringFailure, NormalizeOfAnEmptyStringNeedsNoInstance) {
  test::CapturedCerr const cerr;
  no_instance = true;
  EXPECT_TRUE(ustring().normalize(ustring::NFC).empty());
  EXPECT_EQ(cerr.text(), "");
}

}  // namespace
