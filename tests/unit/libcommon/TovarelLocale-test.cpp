#include "libcommon/TovarelLocale.h"

#include <gmock/gmock.h>

#include <QProcess>
#include <QProcessEnvironment>
#include <QSet>
#include <QStringList>
#include <string>
#include <vector>

#include "support/files.h"

int qInitResources_texts();
int qCleanupResources_texts();

using testing::ElementsAre;

namespace {

std::string ForLocale(char const* name) {
  return TovarelLocale::getLanguageForLocale(name).toStdString();
}

// The output of language-probe under a locale, in lines; the language is the last.
std::vector<std::string> Probe(char const* locale, QStringList const& arguments = {}) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.remove("LANGUAGE");
  environment.insert("LC_ALL", locale);
  QProcess probe;
  probe.setProcessEnvironment(environment);
  probe.start(LANGUAGE_PROBE, arguments);
  if (!probe.waitForFinished(60000) || probe.exitCode() != 0) return {"the probe failed"};
  std::vector<std::string> lines;
  for (QByteArray const& line : probe.readAllStandardOutput().trimmed().split('\n')) {
    lines.push_back(line.toStdString());
  }
  return lines;
}

struct Choice {
  char const* locale;
  char const* catalogue;
};

TEST(TovarelLocale, ChoosesEnglishForTheCLocale) {
  EXPECT_EQ(ForLocale("c"), "enu");
  EXPECT_EQ(ForLocale(""), "enu");
  EXPECT_EQ(ForLocale("_us"), "enu");
}

TEST(TovarelLocale, ChoosesByTheLanguageWhateverTheRegion) {
  for (Choice const choice : std::vector<Choice>{
           {"en_us", "enu"}, {"en_gb", "enu"}, {"de_de", "deu"}, {"de_at", "deu"}, {"fr_fr", "fra"},
           {"fr_ca", "fra"}, {"es_es", "esn"}, {"es_mx", "esn"}, {"ja_jp", "jpn"}, {"ko_kr", "krn"},
           {"it_it", "ita"}, {"ru_ru", "rus"}, {"da_dk", "dan"}, {"sv_se", "sve"}, {"nl_be", "nld"},
           {"pl_pl", "plk"}, {"hu_hu", "hun"}, {"tr_tr", "trk"}, {"cs_cz", "csy"}, {"de", "deu"}}) {
    EXPECT_EQ(ForLocale(choice.locale), choice.catalogue) << choice.locale;
  }
}

TEST(TovarelLocale, ChoosesTraditionalChineseForThreeRegionsAndSimplifiedForTheRest) {
  for (char const* locale : {"zh_tw", "zh_hk", "zh_mo"}) EXPECT_EQ(ForLocale(locale), "cht");
  for (char const* locale : {"zh_cn", "zh_sg", "zh", "zh_us"}) EXPECT_EQ(ForLocale(locale), "chs");
}

TEST(TovarelLocale, ChoosesEuropeanPortugueseForPortugalAndTheBareLanguage) {
  for (char const* locale : {"pt", "pt_pt"}) EXPECT_EQ(ForLocale(locale), "ptg");
  for (char const* locale : {"pt_br", "pt_ao"}) EXPECT_EQ(ForLocale(locale), "ptb");
}

TEST(TovarelLocale, ChoosesNorwegianForItsThreeLanguageNames) {
  for (char const* locale : {"nb_no", "nn_no", "no_no"}) EXPECT_EQ(ForLocale(locale), "nor");
}

TEST(TovarelLocale, ChoosesEnglishForAnUnknownLanguage) {
  for (char const* locale : {"fi_fi", "el_gr", "ar_sa", "th_th", "xx", "deu_de", "e_n"}) {
    EXPECT_EQ(ForLocale(locale), "enu") << locale;
  }
}

TEST(TovarelLocale, ComparesNamesCaseSensitively) {
  EXPECT_EQ(ForLocale("zh_TW"), "chs");
  EXPECT_EQ(ForLocale("DE_de"), "enu");
}

TEST(TovarelLocale, ChoosesEveryCatalogueForSomeLocaleOfTheSystem) {
  QSet<QString> reached;
  for (Choice const choice :
       std::vector<Choice>{{"en_US.UTF-8", "enu"}, {"zh_TW.UTF-8", "cht"}, {"zh_CN.UTF-8", "chs"},
                           {"ja_JP.UTF-8", "jpn"}, {"de_DE.UTF-8", "deu"}, {"ko_KR.UTF-8", "krn"},
                           {"fr_FR.UTF-8", "fra"}, {"it_IT.UTF-8", "ita"}, {"es_ES.UTF-8", "esn"},
                           {"pt_BR.UTF-8", "ptb"}, {"ru_RU.UTF-8", "rus"}, {"da_DK.UTF-8", "dan"},
                           {"nb_NO.UTF-8", "nor"}, {"sv_SE.UTF-8", "sve"}, {"nl_NL.UTF-8", "nld"},
                           {"pl_PL.UTF-8", "plk"}, {"hu_HU.UTF-8", "hun"}, {"pt_PT.UTF-8", "ptg"},
                           {"tr_TR.UTF-8", "trk"}, {"cs_CZ.UTF-8", "csy"}}) {
    std::string const language = Probe(choice.locale).back();
    EXPECT_EQ(language, choice.catalogue) << choice.locale;
    reached.insert(QString::fromStdString(language));
  }
  EXPECT_EQ(reached.size(), 20);
}

TEST(TovarelLocale, FollowsTheRegionOfTheSystemLocale) {
  for (Choice const choice : std::vector<Choice>{{"C", "enu"},
                                                 {"POSIX", "enu"},
                                                 {"en_GB.UTF-8", "enu"},
                                                 {"zh_HK.UTF-8", "cht"},
                                                 {"zh_MO.UTF-8", "cht"},
                                                 {"zh_SG.UTF-8", "chs"},
                                                 {"pt_AO.UTF-8", "ptb"},
                                                 {"nn_NO.UTF-8", "nor"},
                                                 {"no_NO.UTF-8", "nor"},
                                                 {"es_MX.UTF-8", "esn"},
                                                 {"fr_CA.UTF-8", "fra"},
                                                 {"de_AT.UTF-8", "deu"},
                                                 {"fi_FI.UTF-8", "enu"},
                                                 {"el_GR.UTF-8", "enu"},
                                                 {"ar_SA.UTF-8", "enu"},
                                                 {"th_TH.UTF-8", "enu"}}) {
    EXPECT_EQ(Probe(choice.locale).back(), choice.catalogue) << choice.locale;
  }
}

TEST(TovarelLocale, FallsBackToEnglishWhenACatalogueIsMissing) {
  EXPECT_EQ(Probe("ja_JP.UTF-8", {WITHOUT_JPN}).back(), "enu");
  EXPECT_EQ(Probe("de_DE.UTF-8", {WITHOUT_JPN}).back(), "deu");
}

TEST(TovarelLocale, LogsTheLocaleTheCatalogueAndTheChoice) {
  EXPECT_THAT(
      Probe("de_DE.UTF-8"),
      ElementsAre("../libcommon/TovarelLocale|64|QString TovarelLocale::getDefaultLanguage()|"
                  "default|../libcommon/TovarelLocale:64 qPrintable(qstrLocaleLower)=[de_de\\n] ",
                  "../libcommon/TovarelLocale|80|QString TovarelLocale::getDefaultLanguage()|"
                  "default|../libcommon/TovarelLocale:80 qPrintable(qstrLocaleLower)=[de_de] ",
                  "../libcommon/TovarelLocale|161|"
                  "bool TovarelLocale::isLanguageInstalled(const QString &)|default|"
                  "../libcommon/TovarelLocale:161 qPrintable(qstrLangFileName)=[:/deu.qm] ",
                  "../libcommon/TovarelLocale|138|QString TovarelLocale::getDefaultLanguage()|"
                  "default|../libcommon/TovarelLocale:138 qPrintable(qstrDef)=[deu\\n] ",
                  "deu"));
}

TEST(TovarelLocale, LogsNoMissingCatalogue) {
  EXPECT_THAT(Probe("ja_JP.UTF-8", {WITHOUT_JPN}),
              ElementsAre(testing::HasSubstr("|64|"), testing::HasSubstr("|80|"),
                          testing::HasSubstr("|138|"), "enu"));
}

TEST(TovarelLocale, FindsEachSupportedCatalogueInstalled) {
  qInitResources_texts();
  for (QString const& name : TovarelLocale::getSupportedLanguages()) {
    EXPECT_TRUE(TovarelLocale::isLanguageInstalled(name)) << name.toStdString();
  }
}

TEST(TovarelLocale, FindsNoCatalogueOfAnotherNameInstalled) {
  qInitResources_texts();
  EXPECT_FALSE(TovarelLocale::isLanguageInstalled(""));
  EXPECT_FALSE(TovarelLocale::isLanguageInstalled(QString()));
  EXPECT_FALSE(TovarelLocale::isLanguageInstalled("fin"));
  EXPECT_FALSE(TovarelLocale::isLanguageInstalled("DEU"));
}

TEST(TovarelLocale, FindsNothingInstalledWithoutTheResource) {
  qInitResources_texts();
  qCleanupResources_texts();
  for (QString const& name : TovarelLocale::getSupportedLanguages()) {
    EXPECT_FALSE(TovarelLocale::isLanguageInstalled(name)) << name.toStdString();
  }
  EXPECT_EQ(TovarelLocale::getDefaultLanguage(), "enu");
  qInitResources_texts();
}

TEST(TovarelLocale, ListsTwentyLanguagesInTheOrderOfTheirIds) {
  std::vector<std::string> names;
  for (QString const& name : TovarelLocale::getSupportedLanguages()) {
    names.push_back(name.toStdString());
  }
  EXPECT_THAT(names,
              ElementsAre("enu", "cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb",
                          "rus", "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk", "csy"));
}

TEST(TovarelLocale, NamesALanguageByItsId) {
  QList<QString> const names = TovarelLocale::getSupportedLanguages();
  for (int id = 0; id < 20; ++id) EXPECT_EQ(TovarelLocale::getLanguageAbbrByID(id), names[id]);
  EXPECT_EQ(TovarelLocale::getLanguageAbbrByID(19), "csy");
}

TEST(TovarelLocale, NamesNoLanguageByAnIdOutsideTheList) {
  for (int id : {20, 21, -1, 1000000, -2147483647 - 1}) {
    EXPECT_TRUE(TovarelLocale::getLanguageAbbrByID(id).isEmpty()) << id;
  }
}

TEST(TovarelLocale, FallsBackToEnglish) {
  EXPECT_EQ(TovarelLocale::getStrLanguageFallSafe(), "enu");
}

}  // namespace
