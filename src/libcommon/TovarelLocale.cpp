#include "libcommon/TovarelLocale.h"

#include <QFile>
#include <QLocale>
#include <QMap>
#include <QMessageLogger>

// A debug message through Qt's own logger. Source, line and function are part of the message, and
// people filter by them, so they are fixed and don't follow the real ones.
#define TRACE(line, function, format, value)                      \
  QMessageLogger(kSourcePath, line, function, "default")          \
      .debug(format, kSourcePath, line, "qPrintable(" #value ")", \
             (value).toLocal8Bit().constData())

namespace TovarelLocale {
namespace {

constexpr char kSourcePath[] = "../libcommon/TovarelLocale";
constexpr char kGetDefaultLanguage[] = "QString TovarelLocale::getDefaultLanguage()";
constexpr char kIsLanguageInstalled[] = "bool TovarelLocale::isLanguageInstalled(const QString &)";

constexpr int kLanguageCount = 20;

char const* const grgszLanguages[] = {
    "enu", "cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb",   "rus",
    "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk", "csy", nullptr,
};

QString const qstrLanguageFallSafe = QStringLiteral("enu");

QMap<QString, QString> CataloguesByPrefix() {
  return {
      {"en", "enu"}, {"zh", "chs"}, {"ja", "jpn"}, {"de", "deu"}, {"ko", "krn"},
      {"fr", "fra"}, {"it", "ita"}, {"es", "esn"}, {"pt", "ptb"}, {"ru", "rus"},
      {"da", "dan"}, {"no", "nor"}, {"nb", "nor"}, {"nn", "nor"}, {"sv", "sve"},
      {"nl", "nld"}, {"pl", "plk"}, {"hu", "hun"}, {"tr", "trk"}, {"cs", "csy"},
  };
}

}  // namespace

QString getLanguageForLocale(QString const& qstrLocaleLower) {
  // Where two catalogues share a language, the region decides, as an exact match. "pt" alone is
  // Portugal, although every region except Portugal gets Brazil's.
  for (char const* name : {"zh_tw", "zh_hk", "zh_mo"}) {
    if (qstrLocaleLower == QLatin1String(name)) return QStringLiteral("cht");
  }
  for (char const* name : {"pt", "pt_pt"}) {
    if (qstrLocaleLower == QLatin1String(name)) return QStringLiteral("ptg");
  }
  QString const qstrPrefix = qstrLocaleLower.section(QLatin1Char('_'), 0, 0);
  QMap<QString, QString> const catalogues = CataloguesByPrefix();
  return catalogues.value(qstrPrefix, catalogues.value(QStringLiteral("en")));
}

QString getDefaultLanguage() {
  QString const qstrLocaleLower = QLocale::system().name().toLower();
  TRACE(64, kGetDefaultLanguage, "%s:%d %s=[%s\n] ", qstrLocaleLower);
  TRACE(80, kGetDefaultLanguage, "%s:%d %s=[%s] ", qstrLocaleLower);
  QString qstrDef = getLanguageForLocale(qstrLocaleLower);
  if (!isLanguageInstalled(qstrDef)) qstrDef = qstrLanguageFallSafe;
  TRACE(138, kGetDefaultLanguage, "%s:%d %s=[%s\n] ", qstrDef);
  return qstrDef;
}

bool isLanguageInstalled(QString const& qstrLanguage) {
  QString const qstrLangFileName = QStringLiteral(":/") + qstrLanguage + QStringLiteral(".qm");
  if (!QFile::exists(qstrLangFileName)) return false;
  TRACE(161, kIsLanguageInstalled, "%s:%d %s=[%s] ", qstrLangFileName);
  return true;
}

QList<QString> getSupportedLanguages() {
  QList<QString> names;
  for (int id = 0; id < kLanguageCount; ++id) names.append(QString(grgszLanguages[id]));
  return names;
}

QString getStrLanguageFallSafe() { return qstrLanguageFallSafe; }

QString getLanguageAbbrByID(int id) {
  // The conversion to unsigned rejects negative ids too. The id after the last language reads the
  // terminating null pointer, which makes an empty string.
  if (static_cast<unsigned>(id) > static_cast<unsigned>(kLanguageCount)) return {};
  return QString(grgszLanguages[id]);
}

}  // namespace TovarelLocale
