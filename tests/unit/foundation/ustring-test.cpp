#include "foundation/ustring.h"

#include <gmock/gmock.h>

#include <QString>
#include <map>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

#include "support/captured-cerr.h"
#include "support/ustring-model.h"
#include "support/ustring-probe.h"

namespace {

using test::CapturedCerr;
using testing::MatchesRegex;

constexpr char kInvalid[] = "ab\xFF";

unsigned short const* Units(char16_t const* s) {
  return reinterpret_cast<unsigned short const*>(s);
}

std::u16string Utf16(ustring const& s) {
  return reinterpret_cast<char16_t const*>(s.c_str_utf16());
}

std::string ErrorOf(void (*call)(ustring&), ustring& s) {
  try {
    call(s);
  } catch (std::out_of_range const& error) {
    return error.what();
  }
  return "no error";
}

// ---- construction ----

TEST(Ustring, StartsEmptyWithRoomForFourOfEachKind) {
  ustring const s;
  EXPECT_TRUE(s.empty());
  EXPECT_EQ(s.length(), 0U);
  EXPECT_STREQ(s.c_str(), "");
  EXPECT_EQ(UstringProbe::DataCapacity(s), 4U);
  EXPECT_EQ(UstringProbe::WideCapacity(s), 4U);
  EXPECT_EQ(UstringProbe::WideLength(s), 0U);
  EXPECT_EQ(*UstringProbe::Wide(s), 0);
}

TEST(Ustring, IsMadeFromEveryKindOfText) {
  EXPECT_STREQ(ustring("abc").c_str(), "abc");
  EXPECT_STREQ(ustring(std::string("abc")).c_str(), "abc");
  EXPECT_STREQ(ustring(ustring("abc")).c_str(), "abc");
  EXPECT_STREQ(ustring('a').c_str(), "a");
  EXPECT_STREQ(ustring(Units(u"h\u00E4")).c_str(), "h\xC3\xA4");
}

TEST(Ustring, EndsAtTheFirstNulOfAString) {
  EXPECT_EQ(ustring(std::string("ab\0cd", 5)).length(), 2U);
  EXPECT_EQ(ustring("x").append(std::string("ab\0cd", 5), 1, 4), "xb");
  EXPECT_EQ(ustring("x").assign(std::string("ab\0cd", 5), 3, 2), "cd");
}

TEST(Ustring, HoldsNoNulCharacter) {
  EXPECT_EQ(ustring('\0').length(), 0U);
  EXPECT_EQ(ustring("ab").append('\0', 3).length(), 2U);
  EXPECT_EQ(ustring("ab").append(static_cast<unsigned short>(0), 3).length(), 2U);
}

TEST(Ustring, CountsBytesAndNotCharacters) {
  EXPECT_EQ(ustring("h\xC3\xA4").length(), 3U);
  EXPECT_EQ(ustring("h\xC3\xA4").size(), 3U);
}

TEST(Ustring, CopyCarriesTheTextAndNotTheUtf16) {
  ustring original("abc");
  original.c_str_utf16();
  ustring const copy(original);
  ustring assigned("x");
  assigned = original;
  EXPECT_EQ(copy, "abc");
  EXPECT_EQ(assigned, "abc");
  EXPECT_EQ(UstringProbe::WideLength(original), 3U);
  EXPECT_EQ(UstringProbe::WideLength(copy), 0U);
  EXPECT_EQ(UstringProbe::WideLength(assigned), 0U);
  original[0] = 'X';
  EXPECT_EQ(copy, "abc");
}

TEST(Ustring, MovedFromIsEmptyAndUsable) {
  ustring source("a longer text than fits at once");
  ustring target(std::move(source));
  EXPECT_EQ(target, "a longer text than fits at once");
  EXPECT_TRUE(source.empty());
  source = "again";
  EXPECT_EQ(source, "again");
  target = std::move(source);
  EXPECT_EQ(target, "again");
  source.append("more");
  EXPECT_EQ(source, "more");
  EXPECT_TRUE(std::is_nothrow_move_constructible_v<ustring>);
  EXPECT_TRUE(std::is_nothrow_move_assignable_v<ustring>);
}

TEST(Ustring, MoveDropsUtf16ThatIsOlderThanTheText) {
  ustring source("aa");
  source.c_str_utf16();
  source.replace('a', 'b');
  ustring const target(std::move(source));
  EXPECT_EQ(Utf16(target), u"bb");
}

TEST(Ustring, MoveToItselfKeepsTheText) {
  ustring s("abc");
  ustring& same = s;
  s = std::move(same);
  EXPECT_EQ(s, "abc");
}

// ---- memory ----

TEST(Ustring, FitsItsMemoryToTheText) {
  ustring s;
  s.append("");
  EXPECT_EQ(UstringProbe::DataCapacity(s), 1U) << "less than half of 4 is needed";
  s = "abcdefgh";
  EXPECT_EQ(UstringProbe::DataCapacity(s), 9U);
  s.append("ij");
  EXPECT_EQ(UstringProbe::DataCapacity(s), 11U) << "no more than needed";
  s = "abcd";
  EXPECT_EQ(UstringProbe::DataCapacity(s), 11U) << "half of 11, rounded down, is needed";
  s = "abc";
  EXPECT_EQ(UstringProbe::DataCapacity(s), 4U);
  s = "ab";
  EXPECT_EQ(UstringProbe::DataCapacity(s), 4U);
}

TEST(Ustring, FitsItsUtf16AsItsText) {
  ustring s("abcdefgh");
  s.c_str_utf16();
  EXPECT_EQ(UstringProbe::WideCapacity(s), 9U);
  s = "abcd";
  s.c_str_utf16();
  EXPECT_EQ(UstringProbe::WideCapacity(s), 9U);
  s = "ab";
  s.c_str_utf16();
  EXPECT_EQ(UstringProbe::WideCapacity(s), 3U);
}

TEST(Ustring, NewTextTakesWhatAnEmptyOneWouldHaveGrownTo) {
  unsigned long const expected[] = {1, 4, 4, 4, 5, 6};
  for (unsigned long length = 0; length < std::size(expected); ++length) {
    std::string const text(length, 'x');
    EXPECT_EQ(UstringProbe::DataCapacity(ustring(text)), expected[length]) << length;
    EXPECT_EQ(UstringProbe::DataCapacity(ustring(ustring(text))), expected[length]) << length;
    EXPECT_EQ(UstringProbe::DataCapacity(ustring(text).substr(0, length)), expected[length]);
    EXPECT_EQ(UstringProbe::WideCapacity(ustring(text)), 4U);
  }
}

TEST(Ustring, ClearingKeepsTheMemory) {
  ustring s("abcdefgh");
  s.c_str_utf16();
  s.clear();
  EXPECT_TRUE(s.empty());
  EXPECT_EQ(UstringProbe::DataCapacity(s), 9U);
  EXPECT_EQ(UstringProbe::WideCapacity(s), 9U);
  EXPECT_EQ(*UstringProbe::Wide(s), 0);
}

TEST(Ustring, ClearsEachBufferAlone) {
  ustring s("abc");
  s.c_str_utf16();
  s.clear_wdata();
  EXPECT_EQ(s, "abc");
  EXPECT_EQ(UstringProbe::WideLength(s), 0U);
  s.c_str_utf16();
  s.clear_data();
  EXPECT_TRUE(s.empty());
  EXPECT_EQ(Utf16(s), u"abc");
}

TEST(Ustring, RefusesMoreThanThereCanBe) {
  ustring s("abc");
  EXPECT_THROW(s.append('x', ustring::npos), std::bad_alloc);
  EXPECT_THROW(s.append('x', ustring::npos - 4), std::bad_alloc);
  EXPECT_THROW(s.append(static_cast<unsigned short>('x'), ustring::npos / 2), std::bad_alloc);
  EXPECT_EQ(s, "abc");
}

// ---- append ----

TEST(Ustring, AppendsEveryKindOfText) {
  ustring s("-");
  s.append("ab").append("cde", 2).append(std::string("xfgx"), 1, 2);
  EXPECT_EQ(s, "-abcdfg");
  s.append(ustring("xhix"), 1, 2).append('j', 2).append(Units(u"\u00E4"));
  EXPECT_EQ(s, "-abcdfghijj\xC3\xA4");
  s.append(Units(u"klm"), 2).append(static_cast<unsigned short>(0xF6), 2);
  EXPECT_EQ(s, "-abcdfghijj\xC3\xA4kl\xC3\xB6\xC3\xB6");
}

TEST(Ustring, AppendsWithTheOperatorEveryKindOfText) {
  ustring s;
  s += "a";
  s += 'b';
  s += ustring("c");
  s += std::string("d");
  s += Units(u"e");
  s += static_cast<unsigned short>('f');
  EXPECT_EQ(s, "abcdef");
}

TEST(Ustring, AppendsNoMoreThanTheTextHolds) {
  EXPECT_EQ(ustring("a").append("bc", 9), "abc");
  EXPECT_EQ(ustring("a").append(Units(u"bc"), 9), "abc");
  EXPECT_EQ(ustring("a").append(ustring("bc"), 1, 9), "ac");
}

TEST(Ustring, AppendOfItsOwnTextDoublesItAlsoWhenTheBufferMoves) {
  ustring s("ab");
  for (int i = 0; i < 12; ++i) s.append(s.c_str());
  EXPECT_EQ(s.length(), 2U << 12);
  EXPECT_EQ(s.find_first_not_of("ab"), ustring::npos);
  EXPECT_EQ(s.find("aa"), ustring::npos);
  EXPECT_EQ(UstringProbe::DataCapacity(s), s.length() + 1);
}

TEST(Ustring, AppendOfItsOwnTextStopsAtTheCount) {
  ustring s("abc");
  EXPECT_EQ(s.append(s.c_str(), 2), "abcab");
  EXPECT_EQ(s.append(s.c_str(), 99), "abcababcab");
  EXPECT_EQ(s.append(s, 8, 2), "abcababcabab");
}

TEST(Ustring, AppendOfItsOwnTextTakesItsWholeLengthAndNoTerminatorForItsEnd) {
  ustring s("abc");
  s[1] = '\0';
  s.append(s.c_str());
  EXPECT_EQ(s.length(), 6U);
  EXPECT_EQ(s[5], 'c');
}

TEST(Ustring, AppendOfItsOwnUtf16DoublesIt) {
  ustring s("\xC3\xA4");
  for (int i = 0; i < 8; ++i) s.append(s.c_str_utf16());
  EXPECT_EQ(s.length(), 2U << 8);
  EXPECT_EQ(s.append(s.c_str_utf16(), 1).length(), (2U << 8) + 2);
}

TEST(Ustring, AppendOfItsOwnUtf16DoublesItAlsoWhenThatWasDropped) {
  ustring s("ab");
  unsigned short const* const own = s.c_str_utf16();
  s.append("cdefgh");
  EXPECT_EQ(s.append(own), "abcdefghabcdefgh");
}

TEST(Ustring, WideAppendLeavesBothBuffersValid) {
  ustring s("a");
  s.append(Units(u"\u00E4"));
  EXPECT_EQ(UstringProbe::WideLength(s), 2U);
  EXPECT_EQ(s.c_str(), std::string("a\xC3\xA4"));
  s.append("b");
  EXPECT_EQ(UstringProbe::WideLength(s), 0U) << "narrow changes drop the UTF-16";
}

TEST(Ustring, WideAppendTakesASurrogatePair) {
  ustring s;
  s.append(Units(u"\U0001F600"));
  EXPECT_EQ(s, "\xF0\x9F\x98\x80");
  EXPECT_EQ(UstringProbe::WideLength(s), 2U);
}

TEST(Ustring, WideAppendReplacesTextThatIsNoUtf8) {
  CapturedCerr const cerr;
  ustring s(kInvalid);
  s.append(Units(u"c"));
  EXPECT_EQ(s, "c");
  EXPECT_EQ(cerr.lines(), 1);
}

TEST(Ustring, WideAppendOfAnUnpairedSurrogateEmptiesTheText) {
  CapturedCerr const cerr;
  ustring s("abc");
  s.append(static_cast<unsigned short>(0xD800), 1);
  EXPECT_TRUE(s.empty());
  EXPECT_STREQ(s.c_str(), "");
  EXPECT_EQ(UstringProbe::WideLength(s), 0U);
  EXPECT_EQ(*UstringProbe::Wide(s), 0);
  EXPECT_THAT(cerr.text(), MatchesRegex("Warning: u_strToUTF8: error code 10 at line [0-9]+\n"));
}

TEST(Ustring, AppendBehindTheEndThrowsAndChangesNothing) {
  ustring s("abc");
  EXPECT_EQ(ErrorOf([](ustring& u) { u.append(ustring("xy"), 3, 1); }, s), "substr");
  EXPECT_EQ(ErrorOf([](ustring& u) { u.append(std::string("xy"), 3, 1); }, s),
            "basic_string::substr");
  EXPECT_EQ(s, "abc");
  EXPECT_EQ(s.append(ustring("xy"), 2, 1), "abc");
  EXPECT_EQ(s.append(std::string("xy"), 2, 1), "abc");
}

// ---- assign ----

TEST(Ustring, AssignsEveryKindOfText) {
  ustring s("former");
  EXPECT_EQ(s.assign("ab"), "ab");
  EXPECT_EQ(s.assign("cde", 2), "cd");
  EXPECT_EQ(s.assign(std::string("xfgx"), 1, 2), "fg");
  EXPECT_EQ(s.assign(ustring("xhix"), 1, 2), "hi");
  EXPECT_EQ(s.assign('j', 2), "jj");
  EXPECT_EQ(s.assign(Units(u"\u00E4")), "\xC3\xA4");
  EXPECT_EQ(s.assign(Units(u"klm"), 2), "kl");
  EXPECT_EQ(s.assign(static_cast<unsigned short>(0xF6), 2), "\xC3\xB6\xC3\xB6");
}

TEST(Ustring, AssignsWithTheOperatorEveryKindOfText) {
  ustring s;
  EXPECT_EQ(s = ustring("a"), "a");
  EXPECT_EQ(s = std::string("b"), "b");
  EXPECT_EQ(s = "c", "c");
  EXPECT_EQ(s = Units(u"d"), "d");
  EXPECT_EQ(s = 'e', "e");
  EXPECT_EQ(s = static_cast<unsigned short>('f'), "f");
}

TEST(Ustring, AssignBehindTheEndThrowsAndLeavesTheTargetEmpty) {
  ustring s("abc");
  EXPECT_EQ(ErrorOf([](ustring& u) { u.assign(ustring("xy"), 3, 1); }, s), "substr");
  EXPECT_TRUE(s.empty());
  s = "abc";
  EXPECT_EQ(ErrorOf([](ustring& u) { u.assign(std::string("xy"), 3, 1); }, s),
            "basic_string::substr");
  EXPECT_TRUE(s.empty());
}

TEST(Ustring, AssignOfItselfBehindTheEndThrowsAndKeepsTheText) {
  ustring s("abc");
  EXPECT_EQ(ErrorOf([](ustring& u) { u.assign(u, 4, 1); }, s), "substr");
  EXPECT_EQ(s, "abc");
}

TEST(Ustring, AssignOfAPartOfItselfKeepsThatPart) {
  ustring s("abcdefghijklmnop");
  EXPECT_EQ(s.assign(s, 12, 3), "mno");
  EXPECT_EQ(UstringProbe::DataCapacity(s), 4U);
  s = "abcdefghijklmnop";
  EXPECT_EQ(s.assign(s.c_str() + 12), "mnop");
}

TEST(Ustring, AssignOfItsOwnTextDoesNothing) {
  ustring s("abc");
  s.c_str_utf16();
  s.assign(s.c_str());
  s.assign(s.c_str_utf16());
  s.assign(s.c_str(), 3);
  s.assign(s.c_str_utf16(), 3);
  EXPECT_EQ(s, "abc");
  EXPECT_EQ(UstringProbe::WideLength(s), 3U);
}

TEST(Ustring, AssignOfItsOwnTextWithASmallerCountTruncatesInPlace) {
  ustring s("abcdefgh");
  s.c_str_utf16();
  s.assign(s.c_str(), 2);
  EXPECT_EQ(s, "ab");
  EXPECT_EQ(UstringProbe::WideLength(s), 0U);
  EXPECT_EQ(UstringProbe::DataCapacity(s), 9U);
  s.assign(s.c_str_utf16(), 1);
  EXPECT_EQ(s, "a");
  EXPECT_EQ(UstringProbe::WideLength(s), 1U);
  EXPECT_EQ(Utf16(s), u"a");
}

// ---- operator+ ----

TEST(Ustring, PlusJoinsEveryKindOfText) {
  ustring const s("ab");
  EXPECT_EQ(s + ustring("c"), ustring("abc"));
  EXPECT_EQ(s + "c", ustring("abc"));
  EXPECT_EQ(s + 'c', ustring("abc"));
  EXPECT_EQ(s + Units(u"\u00E4"), ustring("ab\xC3\xA4"));
  EXPECT_EQ(s + static_cast<unsigned short>(0xE4), ustring("ab\xC3\xA4"));
  EXPECT_EQ(s + "/" + 'c', ustring("ab/c"));
  EXPECT_EQ(s, ustring("ab"));
}

TEST(Ustring, PlusHoldsNoUtf16) {
  ustring s("ab");
  s.c_str_utf16();
  for (ustring const& sum :
       {s + "c", s + 'c', s + s, s + Units(u"cdefghi"), s + static_cast<unsigned short>('c')}) {
    EXPECT_EQ(UstringProbe::WideLength(sum), 0U);
    EXPECT_EQ(UstringProbe::WideCapacity(sum), 4U);
    EXPECT_EQ(*UstringProbe::Wide(sum), 0);
  }
}

// ---- substr ----

TEST(Ustring, SubstrAtTheEndIsEmptyAndBehindItThrows) {
  ustring s("abc");
  EXPECT_TRUE(s.substr(3, 1).empty());
  EXPECT_EQ(ErrorOf([](ustring& u) { u.substr(4, 1); }, s), "substr");
  EXPECT_EQ(ErrorOf([](ustring& u) { u.substr(ustring::npos); }, s), "substr");
}

TEST(Ustring, SubstrTakesWhatThereIs) {
  ustring const s("abc");
  EXPECT_EQ(s.substr(), "abc");
  EXPECT_EQ(s.substr(1), "bc");
  EXPECT_EQ(s.substr(1, 1), "b");
  EXPECT_EQ(s.substr(1, 3), "bc");
  EXPECT_EQ(s.substr(1, 99), "bc");
  EXPECT_EQ(s.substr(1, ustring::npos), "bc");
  EXPECT_TRUE(s.substr(1, 0).empty());
}

// ---- search ----

TEST(UstringSearch, FindsForwards) {
  ustring const s("a/b/c");
  EXPECT_EQ(s.find("/"), 1U);
  EXPECT_EQ(s.find(std::string("/b"), 1), 1U);
  EXPECT_EQ(s.find(ustring("/"), 2), 3U);
  EXPECT_EQ(s.find('c', 4), 4U);
  EXPECT_EQ(s.find('c', 5), ustring::npos);
  EXPECT_EQ(s.find("/c/"), ustring::npos);
}

TEST(UstringSearch, FindsBackwards) {
  ustring const s("a/b/c");
  EXPECT_EQ(s.rfind("/"), 3U);
  EXPECT_EQ(s.rfind(std::string("/"), 2), 1U);
  EXPECT_EQ(s.rfind(ustring("/c"), 99), 3U);
  EXPECT_EQ(s.rfind('a', 0), 0U);
  EXPECT_EQ(s.rfind('/', 0), ustring::npos);
  EXPECT_EQ(s.rfind("c/"), ustring::npos) << "would run past the end";
  EXPECT_EQ(s.rfind("longer than the text"), ustring::npos);
}

TEST(UstringSearch, FindsBytesInAndOutsideOfASet) {
  ustring const s("xxabxx");
  EXPECT_EQ(s.find_first_of("ba"), 2U);
  EXPECT_EQ(s.find_first_of(std::string("ba"), 3), 3U);
  EXPECT_EQ(s.find_first_of('a', 3), ustring::npos);
  EXPECT_EQ(s.find_first_not_of(ustring("x")), 2U);
  EXPECT_EQ(s.find_first_not_of("xb", 3), ustring::npos);
  EXPECT_EQ(s.find_last_of("ba"), 3U);
  EXPECT_EQ(s.find_last_of('a', 1), ustring::npos);
  EXPECT_EQ(s.find_last_not_of(std::string("x")), 3U);
  EXPECT_EQ(s.find_last_not_of(ustring("x"), 2), 2U);
  EXPECT_EQ(s.find_last_not_of('x', 1), ustring::npos);
}

TEST(UstringSearch, EmptyPatternIsFoundWhereTheSearchBegins) {
  ustring const s("abc");
  EXPECT_EQ(s.find("", 1), 1U);
  EXPECT_EQ(s.find("", 3), ustring::npos);
  EXPECT_EQ(s.rfind(""), 2U);
  EXPECT_EQ(s.rfind("", 1), 1U);
  EXPECT_EQ(ustring("").rfind(""), ustring::npos);
  EXPECT_EQ(ustring("").find(""), ustring::npos);
}

TEST(UstringSearch, EmptySetHoldsNoByte) {
  ustring const s("abc");
  EXPECT_EQ(s.find_first_of("", 1), ustring::npos);
  EXPECT_EQ(s.find_last_of("", 1), ustring::npos);
  EXPECT_EQ(s.find_first_not_of("", 1), 1U);
  EXPECT_EQ(s.find_first_not_of("", 3), ustring::npos);
  EXPECT_EQ(s.find_last_not_of("", 1), 1U);
  EXPECT_EQ(s.find_last_not_of(""), 2U);
  EXPECT_EQ(ustring("").find_last_not_of(""), ustring::npos);
}

TEST(UstringSearch, NulCharacterIsTheEmptyPattern) {
  ustring const s("abc");
  EXPECT_EQ(s.find('\0', 1), 1U);
  EXPECT_EQ(s.find('\0', 3), ustring::npos);
  EXPECT_EQ(s.rfind('\0'), 2U);
  EXPECT_EQ(s.find_first_of('\0'), ustring::npos);
  EXPECT_EQ(s.find_first_not_of('\0', 1), 1U);
  EXPECT_EQ(s.find_last_of('\0'), ustring::npos);
  EXPECT_EQ(s.find_last_not_of('\0'), 2U);
}

TEST(UstringSearch, PatternOfAStringEndsAtItsNul) {
  std::string const pattern("b\0c", 3);
  EXPECT_EQ(ustring("abc").find(pattern), 1U);
  EXPECT_EQ(ustring("abc").find_first_of(pattern, 2), ustring::npos);
}

TEST(UstringSearch, TakesCharactersOfASetByteByByte) {
  // e acute is C3 A9, a umlaut is C3 A4: they share a byte.
  EXPECT_EQ(ustring("x\xC3\xA9").find_first_of("\xC3\xA4"), 1U);
  EXPECT_EQ(ustring("x\xC3\xA9").find_last_of("\xC3\xA4"), 1U);
}

// ---- trimming ----

TEST(UstringTrim, DropsBytesOfTheSetFromEachEnd) {
  EXPECT_EQ(ustring(" \tab \t").ltrim(" \t"), "ab \t");
  EXPECT_EQ(ustring(" \tab \t").rtrim(ustring(" \t")), " \tab");
  EXPECT_EQ(ustring(" \ta b \t").trim("\t "), "a b");
}

TEST(UstringTrim, LeavesAnEmptyTerminatedTextWhenAllBytesAreInTheSet) {
  for (int which = 0; which < 3; ++which) {
    ustring s("abab");
    unsigned long const capacity = UstringProbe::DataCapacity(s);
    if (which == 0) s.trim("ba");
    if (which == 1) s.ltrim("ba");
    if (which == 2) s.rtrim("ba");
    EXPECT_EQ(s.length(), 0U);
    EXPECT_STREQ(s.c_str(), "");
    EXPECT_EQ(UstringProbe::DataCapacity(s), capacity);
  }
}

TEST(UstringTrim, DropsNothingForAnEmptySet) { EXPECT_EQ(ustring(" a ").trim(""), " a "); }

TEST(UstringTrim, KeepsTheUtf16WhenNothingWasDropped) {
  ustring s("ab");
  s.c_str_utf16();
  s.trim(" ");
  EXPECT_EQ(UstringProbe::WideLength(s), 2U);
  s.trim("b");
  EXPECT_EQ(UstringProbe::WideLength(s), 0U);
  EXPECT_EQ(Utf16(s), u"a");
}

// ---- replacing, swapping ----

TEST(Ustring, ReplaceShowsInTheTextAndNotInFilledUtf16) {
  ustring s("abcabc");
  s.c_str_utf16();
  s.replace('a', 'b');
  EXPECT_STREQ(s.c_str(), "bbcbbc");
  EXPECT_EQ(Utf16(s), u"abcabc");
  s.append("d");
  EXPECT_EQ(Utf16(s), u"bbcbbcd") << "the next change brings them together";
}

TEST(Ustring, SubscriptReadsAndWritesBytes) {
  ustring s("abc");
  s.c_str_utf16();
  s[1] = 'X';
  ustring const& constant = s;
  EXPECT_EQ(constant[1], 'X');
  EXPECT_EQ(constant[3], '\0');
  EXPECT_EQ(s, "aXc");
  EXPECT_EQ(Utf16(s), u"abc");
}

TEST(Ustring, SwapExchangesEverything) {
  ustring a("abcdefgh");
  ustring b("x");
  a.c_str_utf16();
  char const* const text = a.c_str();
  a.swap(b);
  EXPECT_EQ(a, "x");
  EXPECT_EQ(b, "abcdefgh");
  EXPECT_EQ(b.c_str(), text);
  EXPECT_EQ(UstringProbe::WideLength(b), 8U);
  EXPECT_EQ(UstringProbe::WideLength(a), 0U);
  EXPECT_EQ(UstringProbe::DataCapacity(a), 4U);
  swap(a, b);
  EXPECT_EQ(a.c_str(), text);
}

// ---- comparison ----

TEST(UstringCompare, GivesTheDifferenceOfUnsignedBytes) {
  EXPECT_EQ(ustring("abc").compare("abc"), 0);
  EXPECT_EQ(ustring("abc").compare("abe"), 'c' - 'e');
  EXPECT_EQ(ustring("abc").compare("ab"), 'c');
  EXPECT_EQ(ustring("ab").compare("abc"), -'c');
  EXPECT_EQ(ustring("\xFF").compare("a"), 0xFF - 'a');
}

TEST(UstringCompare, LooksAtNoMoreThanTheCount) {
  EXPECT_EQ(ustring("abc").compare("abd", 2), 0);
  EXPECT_EQ(ustring("abc").compare("abd", 3), 'c' - 'd');
  EXPECT_EQ(ustring("abc").compare("xyz", 0), 0);
  EXPECT_EQ(ustring("abc").compare("abc", 99), 0);
  EXPECT_EQ(ustring("abc").compare("abcd", ustring::npos), -'d');
}

TEST(UstringCompare, FoldsAsciiLettersAndNoOthers) {
  EXPECT_EQ(ustring::compare("ABC", "abc", true), 0);
  EXPECT_EQ(ustring::compare("ABC", "abc", false), 'A' - 'a');
  EXPECT_EQ(ustring::compare("AZ", "a[", true), 'z' - '[');
  EXPECT_NE(ustring::compare("\xC3\x84", "\xC3\xA4", true), 0);
  EXPECT_EQ(ustring::compare("@", "`", true), '@' - '`');
}

TEST(UstringCompare, OrdersByBytes) {
  EXPECT_TRUE(ustring("abc") < ustring("abd"));
  EXPECT_FALSE(ustring("abd") < ustring("abc"));
  EXPECT_TRUE(ustring("b") > ustring("a\xFF"));
  EXPECT_TRUE(ustring("\x80") > ustring("z"));
  EXPECT_TRUE(ustring("a") != ustring("A"));
  EXPECT_FALSE(ustring("a") == ustring("A"));
}

TEST(UstringCompare, LessOrEqualIsFalseForEqualTexts) {
  EXPECT_FALSE(ustring("abc") <= ustring("abc"));
  EXPECT_FALSE(ustring("abc") >= ustring("abc"));
  EXPECT_TRUE(ustring("abc") == ustring("abc"));
  EXPECT_TRUE(ustring("abc") <= ustring("abd"));
  EXPECT_FALSE(ustring("abd") <= ustring("abc"));
  EXPECT_TRUE(ustring("abd") >= ustring("abc"));
  EXPECT_FALSE(ustring("abc") >= ustring("abd"));
}

TEST(UstringCompare, StopsAtANulThatWasWrittenIntoTheText) {
  ustring one("ab-one");
  ustring two("ab-two");
  ustring longer("ab-three");
  ustring plain("ab");
  for (ustring* const text : {&one, &two, &longer}) (*text)[2] = '\0';
  for (ustring* const other : {&two, &longer, &plain}) {
    EXPECT_TRUE(one == *other);
    EXPECT_FALSE(one != *other);
    EXPECT_FALSE(one < *other);
    EXPECT_EQ(one.compare(*other), 0);
  }
  EXPECT_FALSE(one == "ab-");
}

TEST(UstringCompare, GoesOnBehindATerminatorThatWasOverwritten) {
  ustring one;
  ustring two;
  one[0] = 'a';
  two[0] = 'b';
  one[1] = two[1] = '\0';
  EXPECT_FALSE(one == two);
  EXPECT_TRUE(one != two);
  two[0] = 'a';
  EXPECT_TRUE(one == two);
  EXPECT_TRUE(one == "a");
}

TEST(UstringCompare, OrdersTheKeysOfAMap) {
  std::map<ustring, int> const map = {{"b", 2}, {"a", 1}, {"B", 0}};
  std::string keys;
  for (auto const& [key, value] : map) keys += key.c_str();
  EXPECT_EQ(keys, "Bab");
}

// ---- UTF-16 and normalisation ----

TEST(UstringConversion, MakesUtf16OnceAndOnlyWhenAskedFor) {
  ustring const s("\xC3\xA4\xF0\x9F\x98\x80");
  EXPECT_EQ(UstringProbe::WideLength(s), 0U);
  EXPECT_EQ(Utf16(s), u"\u00E4\U0001F600");
  EXPECT_EQ(UstringProbe::WideLength(s), 3U);
  EXPECT_EQ(s.c_str_utf16(), UstringProbe::Wide(s));
  EXPECT_EQ(UstringProbe::ConvertFromData(s), 0);
}

TEST(UstringConversion, WarnsOfTextThatIsNoUtf8AndKeepsIt) {
  for (char const* text : {kInvalid, "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "a\xC3"}) {
    CapturedCerr const cerr;
    ustring s(text);
    EXPECT_FALSE(ustring::is_valid(s));
    EXPECT_EQ(cerr.lines(), 0);
    EXPECT_EQ(Utf16(s), u"");
    EXPECT_THAT(cerr.text(),
                MatchesRegex("Warning: u_strFromUTF8: error code 10 at line [0-9]+\n"));
    EXPECT_STREQ(s.c_str(), text);
    EXPECT_EQ(UstringProbe::ConvertFromData(s), -1);
    EXPECT_TRUE(s.normalize(ustring::NFC).empty());
    EXPECT_TRUE(ustring::normalize(s, ustring::NFD).empty());
    EXPECT_STREQ(s.c_str(), text);
  }
}

TEST(UstringConversion, ReportsUtf16ThatIsNotWellFormed) {
  CapturedCerr const cerr;
  ustring s("ab");
  s.c_str_utf16();
  EXPECT_EQ(UstringProbe::ConvertFromWide(s), 0);
  const_cast<unsigned short*>(s.c_str_utf16())[0] = 0xDC00;
  EXPECT_EQ(UstringProbe::ConvertFromWide(s), -1);
  EXPECT_TRUE(s.empty());
  EXPECT_EQ(UstringProbe::WideLength(s), 0U);
}

TEST(UstringConversion, AcceptsValidTexts) {
  EXPECT_TRUE(ustring::is_valid(""));
  EXPECT_TRUE(ustring::is_valid("abc"));
  EXPECT_TRUE(ustring::is_valid("\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80"));
}

TEST(UstringNormalize, ComposesAndDecomposes) {
  ustring const composed("\xC3\xA4");
  ustring const decomposed("a\xCC\x88");
  EXPECT_EQ(decomposed.normalize(ustring::NFC), composed);
  EXPECT_EQ(composed.normalize(ustring::NFD), decomposed);
  EXPECT_EQ(ustring::normalize(composed, ustring::NFC), composed);
  EXPECT_EQ(composed, "\xC3\xA4") << "the source stays";
  EXPECT_EQ(UstringProbe::WideLength(composed.normalize(ustring::NFD)), 2U);
}

TEST(UstringNormalize, GivesNothingForNothing) {
  CapturedCerr const cerr;
  EXPECT_TRUE(ustring().normalize(ustring::NFC).empty());
  EXPECT_EQ(cerr.lines(), 0);
}

TEST(UstringNormalize, WarnsTwiceOfTextThatIsNoUtf8) {
  CapturedCerr const cerr;
  EXPECT_TRUE(ustring(kInvalid).normalize(ustring::NFC).empty());
  EXPECT_EQ(cerr.lines(), 2) << "the second pass tries the conversion again";
}

TEST(UstringNormalize, AgreesWithQtOnLettersAndMarks) {
  constexpr std::pair<int, int> kRanges[] = {{0x61, 0x7A},     {0xC0, 0x24F},    {0x300, 0x345},
                                             {0x390, 0x3CE},   {0x400, 0x45F},   {0x1100, 0x1112},
                                             {0x1161, 0x1175}, {0x1E00, 0x1EFF}, {0xAC00, 0xD7A3}};
  std::mt19937 random(5);  // NOLINT: the same texts in every run
  for (int run = 0; run < 3000; ++run) {
    QString text;
    for (int i = 0; i < 8; ++i) {
      auto const& range = kRanges[random() % std::size(kRanges)];
      auto const width = static_cast<unsigned>(range.second - range.first + 1);
      text += QChar(range.first + static_cast<int>(random() % width));
    }
    ustring const s(text.toUtf8().constData());
    EXPECT_EQ(s.normalize(ustring::NFC),
              text.normalized(QString::NormalizationForm_C).toUtf8().constData());
    EXPECT_EQ(s.normalize(ustring::NFD),
              text.normalized(QString::NormalizationForm_D).toUtf8().constData());
  }
}

// ---- streams ----

TEST(UstringStream, WritesTheTextAndReadsAWord) {
  std::ostringstream out;
  out << ustring("h\xC3\xA4 ") << ustring("b");
  EXPECT_EQ(out.str(), "h\xC3\xA4 b");

  std::istringstream in("  two words");
  ustring word("former");
  in >> word;
  EXPECT_EQ(word, "two");
  in >> word;
  EXPECT_EQ(word, "words");
  in >> word;
  EXPECT_TRUE(in.fail());
  EXPECT_TRUE(word.empty());
}

// ---- against the model ----

/// Scripts whose texts come near each other: few letters, some of several bytes, some broken.
std::string RandomScript(std::mt19937& random) {
  static constexpr char kLetters[] = "aab/ ABz.\xC3\xA4\xCC\x81\xF0\x9F\x98\x80";
  std::string script(random() % 400, '\0');
  for (char& c : script) {
    c = random() % 2 == 0 ? kLetters[random() % sizeof kLetters] : static_cast<char>(random());
  }
  return script;
}

TEST(UstringModel, AgreesWithAPlainModelOnRandomScripts) {
  std::mt19937 random(7);  // NOLINT: the same scripts in every run
  for (int run = 0; run < 20000; ++run) {
    std::string const difference = test::CompareUstringWithModel(RandomScript(random));
    ASSERT_EQ(difference, "") << "script " << run;
  }
}

}  // namespace
