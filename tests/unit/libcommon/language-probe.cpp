// Prints the language chosen for the locale of its environment. First prints each debug message of
// the choice, one per line, as source, line, function, category and text separated by '|'; a line
// break in the text becomes "\n".
//
// usage: language-probe [RESOURCE-FILE]: uses its catalogues instead of the compiled-in ones

#include <QResource>
#include <QTextStream>
#include <cstdio>

#include "libcommon/TovarelLocale.h"

int qInitResources_texts();
int qCleanupResources_texts();

static void Print(QtMsgType, QMessageLogContext const& context, QString const& text) {
  QTextStream(stdout) << context.file << '|' << context.line << '|' << context.function << '|'
                      << context.category << '|' << QString(text).replace('\n', "\\n") << '\n';
}

int main(int argc, char** argv) {
  qInitResources_texts();
  if (argc > 1) {
    qCleanupResources_texts();
    if (!QResource::registerResource(argv[1])) return 1;
  }
  qInstallMessageHandler(Print);
  QTextStream(stdout) << TovarelLocale::getDefaultLanguage() << '\n';
  return 0;
}
