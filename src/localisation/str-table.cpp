#include "localisation/str-table.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QLatin1String>
#include <algorithm>
#include <iterator>

namespace StrTable {
namespace {

constexpr int kRowCount = 524;

constexpr bool EachRowStandsAtItsId() {
  int next = 0;
#define ROW(id, key, text) \
  if ((id) != next++) return false;
#include "localisation/str-table-rows.inc"
#undef ROW
  return next == kRowCount;
}
static_assert(EachRowStandsAtItsId(), "an id is frozen: rows are not moved, inserted or removed");

char const* stab[kRowCount];  // the default English texts, UTF-8
char const* ktab[kRowCount];  // the keys, ASCII

}  // namespace

void InitStrTable() {
  // Assigned at run time: initialised arrays would cost the dynamic linker a relocation per entry
  // at every start.
#define ROW(id, key, text) \
  stab[id] = text;         \
  ktab[id] = key;
#include "localisation/str-table-rows.inc"
#undef ROW
}

QString LoadStr(int id) {
  QString text = QCoreApplication::translate("global", stab[id], nullptr, -1);
  // Applied to the translation, so that translators may break lines where English doesn't.
  text.replace(QLatin1String("\\n"), QLatin1String("\n"));
  text.replace(QLatin1String("\\t"), QLatin1String("\t"));
  return text;
}

int LookupStrID(QString key) {
  auto const* const found = std::find_if(std::begin(ktab), std::end(ktab), [&](char const* row) {
    return qstricmp(key.toLocal8Bit().constData(), row) == 0;
  });
  return found == std::end(ktab) ? -1 : static_cast<int>(found - ktab);
}

}  // namespace StrTable
