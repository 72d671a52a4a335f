#pragma once

#include <QString>

/// All user-visible texts, shared by the whole client: 524 rows of a numeric id, a symbolic key and
/// a default English text. Ids run from 0 to 523 and never change their meaning. The rows are in
/// str-table-rows.inc.
///
/// Call InitStrTable once, on the main thread, before any other thread exists. After that the table
/// is read-only and any thread may call the other two functions.
namespace StrTable {

/// Fills the table. Before, LoadStr returns an empty string and LookupStrID returns -1. Neither
/// allocates nor fails; another call changes nothing.
void InitStrTable();

/// The text of row `id`, translated by the translator installed right now, or in English if that
/// has no translation. The escapes `\n` and `\t` become a line break and a tab. `id` is not checked
/// and must be in the table.
QString LoadStr(int id);

/// The id of the row with this key, ignoring case, or -1.
int LookupStrID(QString key);

}  // namespace StrTable
