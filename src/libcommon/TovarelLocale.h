#pragma once

#include <QList>
#include <QString>

/// Selects the compiled-in catalogue for this computer. A catalogue has a three-letter name: "deu"
/// is the resource ":/deu.qm".
///
/// Nothing here fails or keeps state; main calls it once, before there is a second thread.
namespace TovarelLocale {

/// The catalogue for the system's locale: that of its language, or "enu" if the language is unknown
/// or its catalogue isn't compiled in. Never empty; "enu" itself may be missing. Only the locale's
/// name counts, not the list of preferred languages.
QString getDefaultLanguage();

/// The catalogue for a locale's name in lower case, such as "zh_tw", whether compiled in or not.
/// Never empty.
QString getLanguageForLocale(QString const& qstrLocaleLower);

/// Whether this catalogue is compiled in.
bool isLanguageInstalled(QString const& qstrLanguage);

/// The names of all catalogues, in the order of their ids; "enu" comes first.
QList<QString> getSupportedLanguages();

/// The fallback catalogue.
QString getStrLanguageFallSafe();

/// The catalogue with this id, 0 to 19; empty for any other id.
QString getLanguageAbbrByID(int id);

}  // namespace TovarelLocale
