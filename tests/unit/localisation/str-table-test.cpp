#include "localisation/str-table.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QSet>
#include <QTranslator>
#include <algorithm>
#include <iterator>
#include <map>
#include <string>
#include <vector>

using testing::ElementsAre;

// How GoogleTest prints a QString.
static void PrintTo(QString const& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

namespace {

constexpr char const* kFrozenKeys[] = {
#include "frozen-keys.inc"
};
constexpr int kRowCount = static_cast<int>(std::size(kFrozenKeys));

std::string Text(int id) { return StrTable::LoadStr(id).toStdString(); }

// The ids of the rows of each text.
std::map<std::string, std::vector<int>> IdsByText() {
  std::map<std::string, std::vector<int>> ids;
  for (int id = 0; id < kRowCount; ++id) ids[Text(id)].push_back(id);
  return ids;
}

class StrTableTest : public testing::Test {
 protected:
  void SetUp() override { StrTable::InitStrTable(); }
};

// Translates every text into a fixed one.
class FixedTranslator : public QTranslator {
 public:
  explicit FixedTranslator(QString translation) : translation_(std::move(translation)) {
    QCoreApplication::installTranslator(this);
  }
  ~FixedTranslator() override { QCoreApplication::removeTranslator(this); }

  QString translate(char const* context, char const* source, char const* disambiguation,
                    int count) const override {
    context_ = context;
    source_ = source;
    disambiguated_ = disambiguation != nullptr;
    count_ = count;
    return translation_;
  }
  bool isEmpty() const override { return false; }

  mutable std::string context_;
  mutable std::string source_;
  mutable bool disambiguated_ = true;
  mutable int count_ = 0;

 private:
  QString translation_;
};

class TranslatedStrTable : public StrTableTest {
 private:
  int argc_ = 0;
  QCoreApplication app_{argc_, nullptr};
};

// CTest runs each test in its own process. If all run in one, this one must come first.
TEST(StrTable, IsEmptyUntilItIsFilled) {
  EXPECT_TRUE(StrTable::LoadStr(0).isEmpty());
  EXPECT_TRUE(StrTable::LoadStr(438).isEmpty());
  EXPECT_TRUE(StrTable::LoadStr(523).isEmpty());
  EXPECT_EQ(StrTable::LookupStrID("app_name"), -1);
  EXPECT_EQ(StrTable::LookupStrID(QString()), -1);
}

TEST_F(StrTableTest, IsUnchangedAfterBeingFilledTwice) {
  std::string const first = Text(371);
  StrTable::InitStrTable();
  EXPECT_EQ(Text(371), first);
  EXPECT_EQ(StrTable::LookupStrID("history_file"), 523);
}

TEST_F(StrTableTest, KeepsEveryKeyAtItsFrozenId) {
  ASSERT_EQ(kRowCount, 524);
  for (int id = 0; id < kRowCount; ++id) {
    EXPECT_EQ(StrTable::LookupStrID(kFrozenKeys[id]), id) << kFrozenKeys[id];
  }
}

TEST_F(StrTableTest, HasKeysThatAreUniqueIgnoringCase) {
  QSet<QString> keys;
  for (char const* key : kFrozenKeys) keys.insert(QString(key).toLower());
  EXPECT_EQ(keys.size(), 524);
}

TEST_F(StrTableTest, FindsAKeyInAnyCase) {
  EXPECT_EQ(StrTable::LookupStrID("app_name"), 438);
  EXPECT_EQ(StrTable::LookupStrID("APP_NAME"), 438);
  EXPECT_EQ(StrTable::LookupStrID("nsis_not_admin_confirm"), 79);
}

TEST_F(StrTableTest, FindsNoUnknownEmptyOrPartialKey) {
  EXPECT_EQ(StrTable::LookupStrID(""), -1);
  EXPECT_EQ(StrTable::LookupStrID(QString()), -1);
  EXPECT_EQ(StrTable::LookupStrID("app_nam"), -1);
  EXPECT_EQ(StrTable::LookupStrID("app_name2"), -1);
  EXPECT_EQ(StrTable::LookupStrID(" app_name"), -1);
}

TEST_F(StrTableTest, ComparesKeysAndNotTexts) {
  EXPECT_EQ(StrTable::LookupStrID("Larkmoor Drive"), -1);
}

TEST_F(StrTableTest, HasATextInEveryRow) {
  for (int id = 0; id < kRowCount; ++id) EXPECT_NE(Text(id), "") << kFrozenKeys[id];
}

TEST_F(StrTableTest, SharesThirtyThreeTextsAndHas474Different) {
  std::vector<std::size_t> sizes;
  for (auto const& [text, ids] : IdsByText()) {
    if (ids.size() > 1) sizes.push_back(ids.size());
  }
  EXPECT_EQ(IdsByText().size(), 474U);
  EXPECT_EQ(sizes.size(), 33U);
  EXPECT_EQ(std::count(sizes.begin(), sizes.end(), 2U), 28);
  EXPECT_EQ(std::count(sizes.begin(), sizes.end(), 3U), 3);
}

TEST_F(StrTableTest, SharesTheSetupTitleAmongTheInstallerDialogs) {
  EXPECT_THAT(IdsByText()["[ProductName] Setup"],
              ElementsAre(6, 80, 99, 242, 256, 276, 277, 345, 356, 425, 441, 456, 488, 492));
}

TEST_F(StrTableTest, SharesTheWordsThatMeanTheSameEverywhere) {
  auto ids = IdsByText();
  EXPECT_THAT(ids["Click the Finish button to exit the Setup Wizard."],
              ElementsAre(9, 297, 445, 461));
  EXPECT_THAT(ids["Error"], ElementsAre(43, 77, 449));
  EXPECT_THAT(ids["Cancel"], ElementsAre(108, 241, 496));
  EXPECT_THAT(ids["Settings"], ElementsAre(366, 374, 482));
  EXPECT_THAT(ids["Upgrade"], ElementsAre(422, 428));
  EXPECT_THAT(ids[Text(18)], ElementsAre(18, 521));
  EXPECT_THAT(ids[Text(233)], ElementsAre(233, 344));
}

TEST_F(StrTableTest, KeepsTheWordingThatIsFixed) {
  std::map<int, std::string> const fixed = {
      {104, "A new version of Larkmoor Drive is available. Click here to update."},
      {105,
       "A newer version of Larkmoor Drive is already installed. To install this version, please "
       "uninstall the current version first."},
      {150, "Please restart %1 to apply the new language settings."},
      {156, "An unknown issue has occurred, please restart Larkmoor Drive."},
      {189, "%1 upgrade failed (error code: %2)."},
      {201, "Updating..."},
      {204,
       "Larkmoor is already installed. To install this version, please uninstall the current "
       "version first"},
      {246, "Preparing"},
      {253, "Almost done"},
      {254,
       "Failed to update Larkmoor database. Please restart or reinstall Larkmoor Drive to resume "
       "syncing."},
      {305, "Processing %1 file(s)..."},
      {313, "Language"},
      {323, "Auto Upgrade"},
      {331, "System default"},
      {352, "Larkmoor Drive is running."},
      {371, "Larkmoor Drive is initializing..."},
      {393, "Initializing"},
      {422, "Upgrade"},
      {428, "Upgrade"},
      {438, "Larkmoor Drive"},
      {439, "Initialization failed."},
      {446, "Almost Done!"},
      {475, "%1 cannot be synced because it is in use, or acccess is denied."},
      {478, "Upgrading..."},
      {519, "Larkmoor Drive is ready."},
  };
  for (auto const& [id, text] : fixed) EXPECT_EQ(Text(id), text) << kFrozenKeys[id];
}

TEST_F(StrTableTest, KeepsTheTyposThatAreKeysOfTranslations) {
  EXPECT_THAT(Text(240),
              testing::StartsWith("You Larkmoor Server package version is not up-to-date."));
  EXPECT_THAT(Text(67), testing::HasSubstr("permantely"));
  EXPECT_THAT(Text(231), testing::HasSubstr("permantely"));
  EXPECT_THAT(Text(310), testing::HasSubstr("seperate"));
  EXPECT_THAT(Text(395), testing::StartsWith("{\\\\DlgFont8}"));
  EXPECT_THAT(Text(467), testing::StartsWith("{\\DlgFont8}"));
}

TEST_F(StrTableTest, EndsTwoRowsInABlankAndNoOther) {
  std::vector<std::string> padded;
  for (int id = 0; id < kRowCount; ++id) {
    QString const text = StrTable::LoadStr(id);
    if (text != text.trimmed()) padded.push_back(text.toStdString());
  }
  EXPECT_THAT(padded, ElementsAre("File added: ", "No data "));
}

TEST_F(StrTableTest, DoublesTheBlankInTheProgressTextAndNowhereElse) {
  std::vector<int> doubled;
  for (int id = 0; id < kRowCount; ++id) {
    if (Text(id).find("  ") != std::string::npos) doubled.push_back(id);
  }
  EXPECT_THAT(doubled, ElementsAre(233, 344));
  EXPECT_THAT(Text(233), testing::HasSubstr(".  "));
}

TEST_F(StrTableTest, IsAsciiExceptForTheZeroWidthSpaceOfOneRow) {
  std::map<int, QString> foreign;
  for (int id = 0; id < kRowCount; ++id) {
    for (QChar const c : StrTable::LoadStr(id)) {
      if (c.unicode() < 0x20 || c.unicode() > 0x7e) foreign[id] += c;
    }
  }
  EXPECT_THAT(foreign, ElementsAre(testing::Pair(3, QString(QChar(0x200b)))));
  EXPECT_TRUE(StrTable::LoadStr(3).endsWith(QString(")\u200b.")));
}

TEST_F(StrTableTest, ContainsNoEscapeThatLoadStrWouldReplace) {
  for (int id = 0; id < kRowCount; ++id) {
    EXPECT_THAT(Text(id), testing::Not(testing::ContainsRegex("[\n\t]"))) << kFrozenKeys[id];
  }
}

TEST_F(StrTableTest, HasPlaceholdersInTheRowsThatNameSomething) {
  for (int id : {53, 150, 189, 305, 310, 386, 475, 484}) {
    EXPECT_THAT(Text(id), testing::HasSubstr("%1")) << kFrozenKeys[id];
  }
}

TEST_F(TranslatedStrTable, LooksUpItsEnglishTextInASingleContext) {
  FixedTranslator const translator("Fertig");
  EXPECT_EQ(Text(519), "Fertig");
  EXPECT_EQ(translator.context_, "global");
  EXPECT_EQ(translator.source_, "Larkmoor Drive is ready.");
  EXPECT_FALSE(translator.disambiguated_);
  EXPECT_EQ(translator.count_, -1);
}

TEST_F(TranslatedStrTable, UsesTheTranslatorInstalledAtTheCall) {
  EXPECT_EQ(Text(519), "Larkmoor Drive is ready.");
  {
    FixedTranslator const translator("Fertig");
    EXPECT_EQ(Text(519), "Fertig");
  }
  EXPECT_EQ(Text(519), "Larkmoor Drive is ready.");
}

TEST_F(TranslatedStrTable, TurnsATranslatedBackslashAndNIntoALineBreak) {
  FixedTranslator const translator("one\\ntwo\\nthree");
  EXPECT_EQ(Text(0), "one\ntwo\nthree");
}

TEST_F(TranslatedStrTable, TurnsATranslatedBackslashAndTIntoATab) {
  FixedTranslator const translator("one\\ttwo");
  EXPECT_EQ(Text(0), "one\ttwo");
}

TEST_F(TranslatedStrTable, ReplacesTheSecondOfTwoBackslashesAndTheN) {
  FixedTranslator const translator("one\\\\ntwo\\\\tthree");
  EXPECT_EQ(Text(0), "one\\\ntwo\\\tthree");
}

TEST_F(TranslatedStrTable, LeavesUpperCaseEscapesAlone) {
  FixedTranslator const translator("one\\Ntwo\\Tthree\\r");
  EXPECT_EQ(Text(0), "one\\Ntwo\\Tthree\\r");
}

}  // namespace
