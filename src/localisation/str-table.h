#pragma once

#include <QString>

/// The one vocabulary of user-visible text, shared by the whole client: 524 rows of a numeric id, a
/// symbolic key and a default English text. Ids run from 0 to 523 and never change their meaning.
/// The rows stand in str-table-rows.inc.
///
/// InitStrTable runs once, on the main thread, before any other thread exists; after it the table
/// is read-only and the other two may be called from any thread.
namespace StrTable {

/// Fills the table. Until then every row is empty: LoadStr yields an empty string, LookupStrID -1.
/// Neither allocates nor fails; a second call changes nothing.
void InitStrTable();

/// The text of row `id` in the language of the translator installed right now, in English where
/// that has no translation. The two-character escapes `\n` and `\t` become a line break and a tab.
/// `id` is not checked: one outside the table is a programming error.
QString LoadStr(int id);

/// The id of the row with this key, case ignored, or -1. Texts are not keys.
int LookupStrID(QString key);

}  // namespace StrTable
