#include "foundation/ustring.h"

#include <gmock/gmock.h>

#include <QString>
#include <iterator>
#include <random>
#include <sstream>
#include <string>
#include <utility>

#include "support/captured-cerr.h"
#include "support/ustring-model.h"
#include "support/ustring-probe.h"

namespace {

using test::CapturedCerr;
using test::Utf16;
using testing::MatchesRegex;

constexpr char kInvalid[] = "ab\xFF";

// ---- UTF-16 and normalisation ----

TEST(UstringConversion, MakesUtf16OnceAndOnDemand) {
  ustring const s("\xC3\xA4\xF0\x9F\x98\x80");
  EXPECT_EQ(UstringProbe::WideLength(s), 0U);
  EXPECT_EQ(Utf16(s), u"\u00E4\U0001F600");
  EXPECT_EQ(UstringProbe::WideLength(s), 3U);
  EXPECT_EQ(s.c_str_utf16(), UstringProbe::Wide(s));
  EXPECT_EQ(UstringProbe::ConvertFromData(s), 0);
}

TEST(UstringConversion, WarnsOfInvalidUtf8AndKeepsIt) {
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

TEST(UstringConversion, ReportsIllFormedUtf16) {
  CapturedCerr const cerr;
  ustring s("ab");
  s.c_str_utf16();
  EXPECT_EQ(UstringProbe::ConvertFromWide(s), 0);
  const_cast<unsigned short*>(s.c_str_utf16())[0] = 0xDC00;
  EXPECT_EQ(UstringProbe::ConvertFromWide(s), -1);
  EXPECT_TRUE(s.empty());
  EXPECT_EQ(UstringProbe::WideLength(s), 0U);
}

TEST(UstringConversion, AcceptsValidUtf8) {
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

TEST(UstringNormalize, AllocatesNoMoreThanTheResultNeeds) {
  ustring const result = ustring::normalize("twenty characters ..", ustring::NFC);
  EXPECT_EQ(UstringProbe::WideCapacity(result), 21U);
}

TEST(UstringNormalize, OfAnEmptyStringIsEmpty) {
  CapturedCerr const cerr;
  EXPECT_TRUE(ustring().normalize(ustring::NFC).empty());
  EXPECT_EQ(cerr.lines(), 0);
}

TEST(UstringNormalize, WarnsTwiceOfInvalidUtf8) {
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

TEST(UstringStream, WritesTheStringAndReadsAWord) {
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

/// Scripts whose strings resemble each other: few letters, some of several bytes, some invalid.
std::string RandomScript(std::mt19937& random) {
  static constexpr char kLetters[] = "aab/ ABz.\xC3\xA4\xCC\x81\xF0\x9F\x98\x80";
  std::string script(random() % 400, '\0');
  for (char& c : script) {
    c = random() % 2 == 0 ? kLetters[random() % sizeof kLetters] : static_cast<char>(random());
  }
  return script;
}

TEST(UstringModel, AgreesWithASimpleModelOnRandomScripts) {
  std::mt19937 random(7);  // NOLINT: the same scripts in every run
  for (int run = 0; run < 20000; ++run) {
    std::string const difference = test::CompareUstringWithModel(RandomScript(random));
    ASSERT_EQ(difference, "") << "script " << run;
  }
}

}  // namespace
