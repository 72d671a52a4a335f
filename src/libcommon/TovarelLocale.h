#pragma once

#include <QList>
#include <QString>

/// Which of the compiled-in translation catalogues fits this computer. A catalogue is known by a
/// three-letter name: "deu" lies in the resources as ":/deu.qm".
///
/// Nothing here fails or keeps state; main asks once, before there is a second thread.
namespace TovarelLocale {

/// The catalogue for the system's locale: that of its language, or English when the language is
/// unknown or its catalogue isn't among the resources. Never empty; the English catalogue itself
/// may be missing. The name of the locale is all that counts, not the list of preferred languages.
QString getDefaultLanguage();

/// The catalogue for a locale's name in lower case, such as "zh_tw", whether it is installed or
/// not. Never empty.
QString getLanguageForLocale(QString const& qstrLocaleLower);

/// Whether the catalogue of this name is among the resources.
bool isLanguageInstalled(QString const& qstrLanguage);

/// The names of all catalogues in the order of their ids, "enu" first.
QList<QString> getSupportedLanguages();

/// The name of the catalogue that stands in for a missing one.
QString getStrLanguageFallSafe();

/// The name of the catalogue with this id, 0 to 19; empty for any other.
QString getLanguageAbbrByID(int id);

}  // namespace TovarelLocale
