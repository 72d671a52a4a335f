#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QResource>
#include <QSet>
#include <QTranslator>
#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "libcommon/TovarelLocale.h"
#include "localisation/str-table.h"
#include "qm-file.h"
#include "support/files.h"

int qInitResources_texts();
int qCleanupResources_texts();

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr int kRowCount = 524;
constexpr std::size_t kTextCount = 474;

std::vector<std::string> AllCatalogues() {
  std::vector<std::string> names;
  for (QString const& name : TovarelLocale::getSupportedLanguages()) {
    names.push_back(name.toStdString());
  }
  return names;
}

QString Path(std::string const& name) { return ":/" + QString::fromStdString(name) + ".qm"; }

test::QmFile Read(std::string const& name) {
  QFile file(Path(name));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
  return test::ReadQmFile(file.readAll().toStdString());
}

std::vector<std::string> Sources(test::QmFile const& file) {
  std::vector<std::string> sources;
  for (auto const& message : file.messages) sources.push_back(message.source);
  return sources;
}

std::string NameOf(testing::TestParamInfo<std::string> const& parameter) { return parameter.param; }

class WithResource : public testing::Test {
 protected:
  WithResource() {
    qInitResources_texts();
    StrTable::InitStrTable();
  }

  // The text of a row in the installed language, in English before one is installed.
  static std::string Text(int id) { return StrTable::LoadStr(id).toStdString(); }

  static std::vector<std::string> AllTexts() {
    std::vector<std::string> texts(kRowCount);
    for (int id = 0; id < kRowCount; ++id) texts[static_cast<std::size_t>(id)] = Text(id);
    return texts;
  }

  void Install(std::string const& name) {
    QCoreApplication::removeTranslator(&translator_);
    ASSERT_TRUE(translator_.load(Path(name), QString(), QString(), QString()));
    ASSERT_FALSE(translator_.isEmpty());
    QCoreApplication::installTranslator(&translator_);
  }

  int argc_ = 0;
  QCoreApplication app_{argc_, nullptr};
  QTranslator translator_;
};

class TextsResource : public WithResource {};

// All compiled-in files and folders; Qt's libraries bring some of their own.
std::set<std::string> EveryResource() {
  std::set<std::string> paths;
  QDirIterator walk(":/", QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
  while (walk.hasNext()) paths.insert(walk.next().toStdString());
  return paths;
}

TEST_F(TextsResource, ContainsExactlyTheTwentyCatalogues) {
  std::set<std::string> const with = EveryResource();
  qCleanupResources_texts();
  std::set<std::string> const without = EveryResource();
  qInitResources_texts();
  std::vector<std::string> own;
  std::set_difference(with.begin(), with.end(), without.begin(), without.end(),
                      std::back_inserter(own));
  std::vector<std::string> expected;
  for (std::string const& name : AllCatalogues()) expected.push_back(":/" + name + ".qm");
  EXPECT_THAT(own, testing::UnorderedElementsAreArray(expected));
}

TEST_F(TextsResource, IsCompiledAtFormatVersionOneUnderItsNames) {
  std::string const source = test::ReadFile(TEXTS_SOURCE);
  EXPECT_THAT(source, HasSubstr("int version = 1;"));
  EXPECT_THAT(source, HasSubstr("qInitResources_texts)()"));
  EXPECT_THAT(source, HasSubstr("qCleanupResources_texts)()"));
  EXPECT_THAT(source, HasSubstr("qt_resource_struct[]"));
  EXPECT_THAT(source, HasSubstr("qt_resource_name[]"));
  EXPECT_THAT(source, HasSubstr("qt_resource_data[]"));
}

TEST_F(TextsResource, CompressesSixteenCataloguesWithZlibAndStoresFourPlain) {
  for (std::string const& name : AllCatalogues()) {
    bool const plain = name == "cht" || name == "chs" || name == "jpn" || name == "krn";
    EXPECT_EQ(QResource(Path(name)).compressionAlgorithm(),
              plain ? QResource::NoCompression : QResource::ZlibCompression)
        << name;
  }
}

TEST_F(TextsResource, IsRegisteredAtStartAndMayBeRegisteredAgain) {
  EXPECT_TRUE(QFile::exists(":/enu.qm"));
  EXPECT_EQ(qInitResources_texts(), 1);
  EXPECT_TRUE(QFile::exists(":/enu.qm"));
}

TEST_F(TextsResource, LeavesTheTableInEnglishWhenItIsMissing) {
  EXPECT_EQ(qCleanupResources_texts(), 1);
  EXPECT_FALSE(translator_.load(":/enu.qm", QString(), QString(), QString()));
  EXPECT_TRUE(translator_.isEmpty());
  EXPECT_EQ(Text(519), "Larkmoor Drive is ready.");
  qInitResources_texts();
}

class Catalogue : public WithResource, public testing::WithParamInterface<std::string> {};

TEST_P(Catalogue, OpensAndLoads) {
  QFile file(Path(GetParam()));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  Install(GetParam());
}

TEST_P(Catalogue, ContainsOnlyTheHashTableAndTheMessages) {
  test::QmFile const file = Read(GetParam());
  EXPECT_EQ(file.magic, "\x3c\xb8\x64\x18\xca\xef\x9c\x95\xcd\x21\x1c\xbf\x60\xa1\xbd\xdd");
  ASSERT_EQ(file.sections.size(), 2U);
  EXPECT_EQ(file.sections[0].tag, 0x42);
  EXPECT_EQ(file.sections[1].tag, 0x69);
}

TEST_P(Catalogue, SortsItsHashesAndMapsEachToItsMessage) {
  test::QmFile const file = Read(GetParam());
  ASSERT_EQ(file.hashes.size(), file.messages.size());
  EXPECT_TRUE(std::is_sorted(file.hashes.begin(), file.hashes.end(), [](auto& a, auto& b) {
    return std::tie(a.hash, a.offset) < std::tie(b.hash, b.offset);
  }));
  for (auto const& message : file.messages) {
    auto const entry =
        std::find_if(file.hashes.begin(), file.hashes.end(),
                     [&](auto const& candidate) { return candidate.offset == message.offset; });
    ASSERT_NE(entry, file.hashes.end()) << message.source;
    EXPECT_EQ(entry->hash, test::QmHash(message.source)) << message.source;
  }
}

TEST_P(Catalogue, HasTheSameRecordsInEveryMessage) {
  for (auto const& message : Read(GetParam()).messages) {
    EXPECT_THAT(message.tags, ElementsAre(0x03, 0x08, 0x06, 0x07, 0x01)) << message.source;
    EXPECT_FALSE(message.translation.empty()) << message.source;
    EXPECT_EQ(message.comment, "") << message.source;
    EXPECT_EQ(message.context, "global") << message.source;
  }
}

TEST_P(Catalogue, KeepsTheNameOfTheProgram) {
  Install(GetParam());
  EXPECT_EQ(Text(438), "Larkmoor Drive");
}

TEST_P(Catalogue, HasNoOtherContext) {
  Install(GetParam());
  char const* const source = "Larkmoor Drive is ready.";
  EXPECT_FALSE(translator_.translate("global", source).isEmpty());
  EXPECT_TRUE(translator_.translate("Global", source).isEmpty());
  EXPECT_TRUE(translator_.translate("Launcher", source).isEmpty());
  EXPECT_TRUE(translator_.translate("", source).isEmpty());
}

TEST_P(Catalogue, TranslatesRowsThatShareATextAlike) {
  Install(GetParam());
  EXPECT_EQ(Text(18), Text(521));
  EXPECT_EQ(Text(233), Text(344));
}

TEST_P(Catalogue, HasOneMessageForEachTextOfTheTable) {
  QSet<QString> texts;
  for (int id = 0; id < kRowCount; ++id) texts.insert(StrTable::LoadStr(id));
  test::QmFile const file = Read(GetParam());
  EXPECT_EQ(file.sections[0].bytes.size(), 3792U);
  EXPECT_EQ(file.messages.size(), kTextCount);
  QSet<QString> sources;
  for (std::string const& source : Sources(file)) sources.insert(QString::fromStdString(source));
  EXPECT_EQ(sources, texts);
}

TEST_P(Catalogue, OrdersItsMessagesLikeTheEnglishOne) {
  EXPECT_EQ(Sources(Read(GetParam())), Sources(Read("enu")));
}

TEST_P(Catalogue, TranslatesEveryRow) {
  std::vector<std::string> const english = AllTexts();
  Install(GetParam());
  for (std::string const& text : english) {
    EXPECT_FALSE(translator_.translate("global", text.c_str()).isEmpty()) << text;
    EXPECT_TRUE(translator_.translate("elsewhere", text.c_str()).isEmpty()) << text;
  }
}

TEST_P(Catalogue, ContainsNoEscapeThatLoadStrWouldReplace) {
  for (auto const& message : Read(GetParam()).messages) {
    EXPECT_EQ(message.translation.find(u"\\n"), std::u16string::npos) << message.source;
    EXPECT_EQ(message.translation.find(u"\\t"), std::u16string::npos) << message.source;
  }
}

TEST_P(Catalogue, EqualsItsSourceInAFewTextsOnlyUnlessItIsEnglish) {
  auto const messages = Read(GetParam()).messages;
  auto const same = std::count_if(messages.begin(), messages.end(), [](auto const& message) {
    return QString::fromStdU16String(message.translation) == QString::fromStdString(message.source);
  });
  if (GetParam() == "enu") {
    EXPECT_EQ(static_cast<std::size_t>(same), kTextCount);
  } else if (GetParam() == "cht") {
    EXPECT_EQ(same, 2);
  } else if (GetParam() == "dan") {
    EXPECT_EQ(same, 20);
  } else {
    EXPECT_GE(same, 2);
    EXPECT_LE(same, 20);
  }
}

INSTANTIATE_TEST_SUITE_P(, Catalogue, testing::ValuesIn(AllCatalogues()), NameOf);

class EnglishCatalogue : public WithResource {};

TEST_F(EnglishCatalogue, ChangesNoText) {
  std::vector<std::string> const english = AllTexts();
  Install("enu");
  EXPECT_EQ(AllTexts(), english);
}

struct LauncherTexts {
  char const* catalogue;
  char const* preparing;  // row 371
  char const* ready;      // row 519
};

constexpr LauncherTexts kLauncherTexts[] = {
    {"enu", "Larkmoor Drive is initializing...", "Larkmoor Drive is ready."},
    {"cht", "Larkmoor Drive 準備中...", "Larkmoor Drive 準備完成"},
    {"chs", "Larkmoor Drive 正在初始化...", "Larkmoor Drive 已就绪。"},
    {"jpn", "Larkmoor Drive は初期化中です。", "Larkmoor Drive は準備完了です。"},
    {"deu", "Larkmoor Drive wird initialisiert ...", "Larkmoor Drive ist bereit."},
    {"krn", "Larkmoor Drive 초기화 중...", "Larkmoor Drive 사용 준비가 되었습니다."},
    {"fra", "Larkmoor Drive est en cours d'initialisation...", "Larkmoor Drive est prêt."},
    {"ita", "Larkmoor Drive sta inizializzando...", "Larkmoor Drive pronta."},
    {"esn", "Larkmoor Drive se está inicializando...", "Larkmoor Drive está lista."},
    {"ptb", "O Larkmoor Drive está sendo inicializado...", "O Larkmoor Drive está pronto."},
    {"rus", "Larkmoor Drive выполняет инициализацию...", "Larkmoor Drive готов."},
    {"dan", "Larkmoor Drive initialiserer...", "Larkmoor Drive er klar."},
    {"nor", "Larkmoor Drive starter opp...", "Larkmoor Drive er klar."},
    {"sve", "Larkmoor Drive initialiserar...", "Larkmoor Drive är klar."},
    {"nld", "Larkmoor Drive is bezig met initialisatie...", "Larkmoor Drive is gereed."},
    {"plk", "Aplikacja Larkmoor Drive jest inicjowana...", "Aplikacja Larkmoor Drive jest gotowa."},
    {"hun", "A Larkmoor Drive inicializálása folyamatban...", "A Larkmoor Drive készen áll."},
    {"ptg", "Larkmoor Drive a iniciar...", "Larkmoor Drive pronta."},
    {"trk", "Larkmoor Drive başlıyor...", "Larkmoor Drive hazır."},
    {"csy", "Larkmoor Drive se inicializuje...", "Larkmoor Drive je připravena."},
};

class LauncherCatalogue : public WithResource, public testing::WithParamInterface<LauncherTexts> {};

TEST_P(LauncherCatalogue, HasTheTextsThatTheDialogShows) {
  Install(GetParam().catalogue);
  EXPECT_EQ(Text(371), GetParam().preparing);
  EXPECT_EQ(Text(519), GetParam().ready);
}

TEST_F(WithResource, HasDifferentTextsForTheTwoKindsOfPortuguese) {
  QTranslator brazilian;
  ASSERT_TRUE(brazilian.load(":/ptb.qm", QString(), QString(), QString()));
  Install("ptg");
  EXPECT_NE(StrTable::LoadStr(371),
            brazilian.translate("global", "Larkmoor Drive is initializing..."));
}

// Known and kept: these sentences make sense without the name.
TEST_F(WithResource, LacksThePlaceholdersMissingFromThreeTranslations) {
  Install("jpn");
  EXPECT_THAT(Text(53), Not(HasSubstr("%1")));
  EXPECT_THAT(Text(310), Not(HasSubstr("%1")));
  Install("hun");
  EXPECT_THAT(Text(386), Not(HasSubstr("%1")));
}

INSTANTIATE_TEST_SUITE_P(, LauncherCatalogue, testing::ValuesIn(kLauncherTexts),
                         [](testing::TestParamInfo<LauncherTexts> const& parameter) {
                           return std::string(parameter.param.catalogue);
                         });

}  // namespace
