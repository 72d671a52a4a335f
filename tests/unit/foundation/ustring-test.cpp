#include "foundation/ustring.h"

#include <gmock/gmock.h>

#include <sstream>
#include <string>
#include <type_traits>
#include <utility>

#include "support/captured-cerr.h"
#include "support/ustring-probe.h"

namespace {

using test::CapturedCerr;
using test::ErrorOf;
using test::Utf16;
using testing::MatchesRegex;

constexpr char kInvalid[] = "ab\xFF";

unsigned short const* Units(char16_t const* s) {
  return reinterpret_cast<unsigned short const*>(s);
}

// ---- construction ----

TEST(Ustring, TakesWholeStringsAndSingleCharactersByDefault) {
  ustring s;
  EXPECT_EQ(s.assign(ustring("ab")), "ab");
  EXPECT_EQ(s.append(ustring("cd")), "abcd");
  EXPECT_EQ(s.assign(std::string("ab")), "ab");
  EXPECT_EQ(s.append(std::string("cd")), "abcd");
  EXPECT_EQ(s.assign('a'), "a");
  EXPECT_EQ(s.append('b'), "ab");
  EXPECT_EQ(s.assign(static_cast<unsigned short>('a')), "a");
  EXPECT_EQ(s.append(static_cast<unsigned short>('b')), "ab");
}

TEST(Ustring, StartsEmptyWithACapacityOfFour) {
  ustring const s;
  EXPECT_TRUE(s.empty());
  EXPECT_EQ(s.length(), 0U);
  EXPECT_STREQ(s.c_str(), "");
  EXPECT_EQ(UstringProbe::DataCapacity(s), 4U);
  EXPECT_EQ(UstringProbe::WideCapacity(s), 4U);
  EXPECT_EQ(UstringProbe::WideLength(s), 0U);
  EXPECT_EQ(*UstringProbe::Wide(s), 0);
}

TEST(Ustring, IsConstructedFromEveryKindOfString) {
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

TEST(Ustring, NeverContainsANul) {
  EXPECT_EQ(ustring('\0').length(), 0U);
  EXPECT_EQ(ustring("ab").append('\0', 3).length(), 2U);
  EXPECT_EQ(ustring("ab").append(static_cast<unsigned short>(0), 3).length(), 2U);
}

TEST(Ustring, CountsBytesAndNotCharacters) {
  EXPECT_EQ(ustring("h\xC3\xA4").length(), 3U);
  EXPECT_EQ(ustring("h\xC3\xA4").size(), 3U);
}

TEST(Ustring, CopyHasTheUtf8ButNotTheUtf16) {
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

TEST(Ustring, MoveDropsOutdatedUtf16) {
  ustring source("aa");
  source.c_str_utf16();
  source.replace('a', 'b');
  ustring const target(std::move(source));
  EXPECT_EQ(Utf16(target), u"bb");
}

TEST(Ustring, SelfMoveKeepsTheString) {
  ustring s("abc");
  ustring& same = s;
  s = std::move(same);
  EXPECT_EQ(s, "abc");
}

// ---- memory ----

TEST(Ustring, FitsItsBufferToTheString) {
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

TEST(Ustring, FitsItsUtf16BufferLikewise) {
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

TEST(Ustring, NewStringHasTheCapacityAnEmptyOneWouldGrowTo) {
  unsigned long const expected[] = {1, 4, 4, 4, 5, 6};
  for (unsigned long length = 0; length < std::size(expected); ++length) {
    std::string const text(length, 'x');
    EXPECT_EQ(UstringProbe::DataCapacity(ustring(text)), expected[length]) << length;
    EXPECT_EQ(UstringProbe::DataCapacity(ustring(ustring(text))), expected[length]) << length;
    EXPECT_EQ(UstringProbe::DataCapacity(ustring(text).substr(0, length)), expected[length]);
    EXPECT_EQ(UstringProbe::WideCapacity(ustring(text)), 4U);
  }
}

TEST(Ustring, ClearingKeepsTheBuffers) {
  ustring s("abcdefgh");
  s.c_str_utf16();
  s.clear();
  EXPECT_TRUE(s.empty());
  EXPECT_EQ(UstringProbe::DataCapacity(s), 9U);
  EXPECT_EQ(UstringProbe::WideCapacity(s), 9U);
  EXPECT_EQ(*UstringProbe::Wide(s), 0);
}

TEST(Ustring, ClearsEachBufferSeparately) {
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

TEST(Ustring, RejectsImpossibleLengths) {
  ustring s("abc");
  EXPECT_THROW(s.append('x', ustring::npos), std::bad_alloc);
  EXPECT_THROW(s.append('x', ustring::npos - 3), std::bad_alloc);
  EXPECT_THROW(s.append('x', ustring::npos - 4), std::bad_alloc);
  EXPECT_THROW(s.append(static_cast<unsigned short>('x'), ustring::npos / 2), std::bad_alloc);
  EXPECT_EQ(s, "abc");
}

// ---- append ----

TEST(Ustring, AppendsEveryKindOfString) {
  ustring s("-");
  s.append("ab").append("cde", 2).append(std::string("xfgx"), 1, 2);
  EXPECT_EQ(s, "-abcdfg");
  s.append(ustring("xhix"), 1, 2).append('j', 2).append(Units(u"\u00E4"));
  EXPECT_EQ(s, "-abcdfghijj\xC3\xA4");
  s.append(Units(u"klm"), 2).append(static_cast<unsigned short>(0xF6), 2);
  EXPECT_EQ(s, "-abcdfghijj\xC3\xA4kl\xC3\xB6\xC3\xB6");
}

TEST(Ustring, AppendsEveryKindOfStringWithTheOperator) {
  ustring s;
  s += "a";
  s += 'b';
  s += ustring("c");
  s += std::string("d");
  s += Units(u"e");
  s += static_cast<unsigned short>('f');
  EXPECT_EQ(s, "abcdef");
}

TEST(Ustring, AppendsNoMoreThanTheSourceHolds) {
  EXPECT_EQ(ustring("a").append("bc", 9), "abc");
  EXPECT_EQ(ustring("a").append(Units(u"bc"), 9), "abc");
  EXPECT_EQ(ustring("a").append(ustring("bc"), 1, 9), "ac");
}

TEST(Ustring, AppendOfItselfDoublesItEvenIfTheBufferMoves) {
  ustring s("ab");
  for (int i = 0; i < 12; ++i) s.append(s.c_str());
  EXPECT_EQ(s.length(), 2U << 12);
  EXPECT_EQ(s.find_first_not_of("ab"), ustring::npos);
  EXPECT_EQ(s.find("aa"), ustring::npos);
  EXPECT_EQ(UstringProbe::DataCapacity(s), s.length() + 1);
}

TEST(Ustring, AppendOfItselfStopsAtTheCount) {
  ustring s("abc");
  EXPECT_EQ(s.append(s.c_str(), 2), "abcab");
  EXPECT_EQ(s.append(s.c_str(), 99), "abcababcab");
  EXPECT_EQ(s.append(s, 8, 2), "abcababcabab");
}

TEST(Ustring, AppendOfItselfTakesItsWholeLengthInSpiteOfANul) {
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

TEST(Ustring, AppendOfItsOwnUtf16DoublesItEvenIfThatWasDropped) {
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

TEST(Ustring, WideAppendAcceptsASurrogatePair) {
  ustring s;
  s.append(Units(u"\U0001F600"));
  EXPECT_EQ(s, "\xF0\x9F\x98\x80");
  EXPECT_EQ(UstringProbe::WideLength(s), 2U);
}

TEST(Ustring, WideAppendReplacesInvalidUtf8) {
  CapturedCerr const cerr;
  ustring s(kInvalid);
  s.append(Units(u"c"));
  EXPECT_EQ(s, "c");
  EXPECT_EQ(cerr.lines(), 1);
}

TEST(Ustring, WideAppendOfAnUnpairedSurrogateEmptiesTheString) {
  CapturedCerr const cerr;
  ustring s("abc");
  s.append(static_cast<unsigned short>(0xD800), 1);
  EXPECT_TRUE(s.empty());
  EXPECT_STREQ(s.c_str(), "");
  EXPECT_EQ(UstringProbe::WideLength(s), 0U);
  EXPECT_EQ(*UstringProbe::Wide(s), 0);
  EXPECT_THAT(cerr.text(), MatchesRegex("Warning: u_strToUTF8: error code 10 at line [0-9]+\n"));
}

TEST(Ustring, AppendBeyondTheEndThrowsAndChangesNothing) {
  ustring s("abc");
  EXPECT_EQ(ErrorOf([](ustring& u) { u.append(ustring("xy"), 3, 1); }, s), "substr");
  EXPECT_EQ(ErrorOf([](ustring& u) { u.append(std::string("xy"), 3, 1); }, s),
            "basic_string::substr");
  EXPECT_EQ(s, "abc");
  EXPECT_EQ(s.append(ustring("xy"), 2, 1), "abc");
  EXPECT_EQ(s.append(std::string("xy"), 2, 1), "abc");
}

// ---- assign ----

TEST(Ustring, AssignsEveryKindOfString) {
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

TEST(Ustring, AssignsEveryKindOfStringWithTheOperator) {
  ustring s;
  EXPECT_EQ(s = ustring("a"), "a");
  EXPECT_EQ(s = std::string("b"), "b");
  EXPECT_EQ(s = "c", "c");
  EXPECT_EQ(s = Units(u"d"), "d");
  EXPECT_EQ(s = 'e', "e");
  EXPECT_EQ(s = static_cast<unsigned short>('f'), "f");
}

TEST(Ustring, AssignBeyondTheEndThrowsAndLeavesTheTargetEmpty) {
  ustring s("abc");
  EXPECT_EQ(ErrorOf([](ustring& u) { u.assign(ustring("xy"), 3, 1); }, s), "substr");
  EXPECT_TRUE(s.empty());
  s = "abc";
  EXPECT_EQ(ErrorOf([](ustring& u) { u.assign(std::string("xy"), 3, 1); }, s),
            "basic_string::substr");
  EXPECT_TRUE(s.empty());
}

TEST(Ustring, AssignOfItselfBeyondTheEndThrowsAndKeepsTheString) {
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

TEST(Ustring, AssignOfItsOwnBufferDoesNothing) {
  ustring s("abc");
  s.c_str_utf16();
  s.assign(s.c_str());
  s.assign(s.c_str_utf16());
  s.assign(s.c_str(), 3);
  s.assign(s.c_str_utf16(), 3);
  EXPECT_EQ(s, "abc");
  EXPECT_EQ(UstringProbe::WideLength(s), 3U);
}

TEST(Ustring, AssignOfItsOwnBufferWithASmallerCountTruncatesInPlace) {
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

TEST(Ustring, PlusJoinsEveryKindOfString) {
  ustring const s("ab");
  EXPECT_EQ(s + ustring("c"), ustring("abc"));
  EXPECT_EQ(s + "c", ustring("abc"));
  EXPECT_EQ(s + 'c', ustring("abc"));
  EXPECT_EQ(s + Units(u"\u00E4"), ustring("ab\xC3\xA4"));
  EXPECT_EQ(s + static_cast<unsigned short>(0xE4), ustring("ab\xC3\xA4"));
  EXPECT_EQ(s + "/" + 'c', ustring("ab/c"));
  EXPECT_EQ(s, ustring("ab"));
}

TEST(Ustring, PlusMakesNoUtf16) {
  ustring s("ab");
  s.c_str_utf16();
  for (ustring const& sum :
       {s + "c", s + 'c', s + s, s + Units(u"cdefghi"), s + static_cast<unsigned short>('c')}) {
    EXPECT_EQ(UstringProbe::WideLength(sum), 0U);
    EXPECT_EQ(UstringProbe::WideCapacity(sum), 4U);
    EXPECT_EQ(*UstringProbe::Wide(sum), 0);
  }
}

// ---- replacing, swapping ----

TEST(Ustring, ReplaceChangesTheUtf8ButNotExistingUtf16) {
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

}  // namespace
