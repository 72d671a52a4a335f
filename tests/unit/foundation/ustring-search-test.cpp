#include "foundation/ustring.h"

#include <gmock/gmock.h>

#include <map>
#include <string>

#include "support/ustring-probe.h"

namespace {

using test::ErrorOf;
using test::Utf16;

// ---- substr ----

TEST(Ustring, SubstrIsEmptyAtTheEndAndThrowsBeyondIt) {
  ustring s("abc");
  EXPECT_TRUE(s.substr(3, 1).empty());
  EXPECT_EQ(ErrorOf([](ustring& u) { u.substr(4, 1); }, s), "substr");
  EXPECT_EQ(ErrorOf([](ustring& u) { u.substr(ustring::npos); }, s), "substr");
}

TEST(Ustring, SubstrStopsAtTheEnd) {
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

template <typename Pattern>
void ExpectSearchesOfTheWholeString(Pattern const& first, Pattern const& last) {
  ustring const s("ab");
  EXPECT_EQ(s.find(first), 0U);
  EXPECT_EQ(s.rfind(last), 1U);
  EXPECT_EQ(s.find_first_of(first), 0U);
  EXPECT_EQ(s.find_first_not_of(last), 0U);
  EXPECT_EQ(s.find_last_of(last), 1U);
  EXPECT_EQ(s.find_last_not_of(first), 1U);
}

TEST(UstringSearch, CoversTheWholeStringByDefault) {
  ExpectSearchesOfTheWholeString('a', 'b');
  ExpectSearchesOfTheWholeString<char const*>("a", "b");
  ExpectSearchesOfTheWholeString<std::string>("a", "b");
  ExpectSearchesOfTheWholeString<ustring>("a", "b");
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

TEST(UstringSearch, PatternEndsAtItsFirstNul) {
  std::string const pattern("b\0c", 3);
  EXPECT_EQ(ustring("abc").find(pattern), 1U);
  EXPECT_EQ(ustring("abc").find_first_of(pattern, 2), ustring::npos);
}

TEST(UstringSearch, TreatsASetAsBytes) {
  // é is C3 A9, ä is C3 A4: they share a byte.
  EXPECT_EQ(ustring("x\xC3\xA9").find_first_of("\xC3\xA4"), 1U);
  EXPECT_EQ(ustring("x\xC3\xA9").find_last_of("\xC3\xA4"), 1U);
}

// ---- trimming ----

TEST(UstringTrim, RemovesBytesOfTheSetFromEachEnd) {
  EXPECT_EQ(ustring(" \tab \t").ltrim(" \t"), "ab \t");
  EXPECT_EQ(ustring(" \tab \t").rtrim(ustring(" \t")), " \tab");
  EXPECT_EQ(ustring(" \ta b \t").trim("\t "), "a b");
}

TEST(UstringTrim, LeavesAnEmptyStringIfAllBytesAreInTheSet) {
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

TEST(UstringTrim, RemovesNothingForAnEmptySet) { EXPECT_EQ(ustring(" a ").trim(""), " a "); }

TEST(UstringTrim, KeepsTheUtf16IfNothingIsRemoved) {
  ustring s("ab");
  s.c_str_utf16();
  s.trim(" ");
  EXPECT_EQ(UstringProbe::WideLength(s), 2U);
  s.trim("b");
  EXPECT_EQ(UstringProbe::WideLength(s), 0U);
  EXPECT_EQ(Utf16(s), u"a");
}

// ---- comparison ----

TEST(UstringCompare, ReturnsTheDifferenceOfUnsignedBytes) {
  EXPECT_EQ(ustring("abc").compare("abc"), 0);
  EXPECT_EQ(ustring("abc").compare("abe"), 'c' - 'e');
  EXPECT_EQ(ustring("abc").compare("ab"), 'c');
  EXPECT_EQ(ustring("ab").compare("abc"), -'c');
  EXPECT_EQ(ustring("\xFF").compare("a"), 0xFF - 'a');
}

TEST(UstringCompare, ComparesNoMoreThanTheCount) {
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

TEST(UstringCompare, LessOrEqualIsFalseForEqualStrings) {
  EXPECT_FALSE(ustring("abc") <= ustring("abc"));
  EXPECT_FALSE(ustring("abc") >= ustring("abc"));
  EXPECT_TRUE(ustring("abc") == ustring("abc"));
  EXPECT_TRUE(ustring("abc") <= ustring("abd"));
  EXPECT_FALSE(ustring("abd") <= ustring("abc"));
  EXPECT_TRUE(ustring("abd") >= ustring("abc"));
  EXPECT_FALSE(ustring("abc") >= ustring("abd"));
}

TEST(UstringCompare, StopsAtANulWrittenIntoTheString) {
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

TEST(UstringCompare, ContinuesPastAnOverwrittenTerminator) {
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

}  // namespace
