// ustring compared with std::string, QString and icu::UnicodeString. The argument is the length of
// the string in characters; the strings look like paths.

#include "foundation/ustring.h"

#include <benchmark/benchmark.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <QString>
#include <string>

namespace {

std::string Text(long length) {
  std::string text;
  while (text.size() < static_cast<size_t>(length)) text += "/Contents/Resources/lib";
  text.resize(static_cast<size_t>(length));
  return text;
}

/// Decomposed letters, for composing.
std::string Decomposed(long length) {
  std::string text;
  for (long i = 0; i < length; i += 4) text += "abe\xCC\x81";
  return text;
}

template <class String>
String Make(std::string const& text);
template <>
ustring Make(std::string const& text) {
  return ustring(text.c_str());
}
template <>
std::string Make(std::string const& text) {
  return std::string(text.c_str());
}
template <>
QString Make(std::string const& text) {
  return QString::fromUtf8(text.c_str());
}
template <>
icu::UnicodeString Make(std::string const& text) {
  return icu::UnicodeString::fromUTF8(text.c_str());
}

unsigned long Find(ustring const& text, ustring const& pattern) { return text.find(pattern, 0); }
unsigned long Find(std::string const& text, std::string const& pattern) {
  return text.find(pattern);
}
int Find(QString const& text, QString const& pattern) { return text.indexOf(pattern); }
int Find(icu::UnicodeString const& text, icu::UnicodeString const& pattern) {
  return text.indexOf(pattern);
}

ustring Normalize(ustring const& text) { return text.normalize(ustring::NFC); }
QString Normalize(QString const& text) { return text.normalized(QString::NormalizationForm_C); }
icu::UnicodeString Normalize(icu::UnicodeString const& text) {
  UErrorCode status = U_ZERO_ERROR;
  return icu::Normalizer2::getNFCInstance(status)->normalize(text, status);
}

template <class String>
void Construct(benchmark::State& state) {
  std::string const text = Text(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(Make<String>(text));
}

template <class String>
void Copy(benchmark::State& state) {
  String const text = Make<String>(Text(state.range(0)));
  for (auto _ : state) {
    String copy(text);
    benchmark::DoNotOptimize(copy);
  }
}

/// A path grows by one component after another.
template <class String>
void Append(benchmark::State& state) {
  String const piece = Make<String>("/lib.so.");
  for (auto _ : state) {
    String text;
    for (long length = 0; length < state.range(0); length += 8) text += piece;
    benchmark::DoNotOptimize(text);
  }
}

template <class String>
void FindAtEnd(benchmark::State& state) {
  String const text = Make<String>(Text(state.range(0)) + "INFO");
  String const pattern = Make<String>("INFO");
  for (auto _ : state) benchmark::DoNotOptimize(Find(text, pattern));
}

/// Two equal strings.
template <class String>
void Compare(benchmark::State& state) {
  String const a = Make<String>(Text(state.range(0)));
  String const b = Make<String>(Text(state.range(0)));
  for (auto _ : state) {
    bool equal = a == b;
    benchmark::DoNotOptimize(equal);
    benchmark::ClobberMemory();
  }
}

template <class String>
void Compose(benchmark::State& state) {
  std::string const text = Decomposed(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(Normalize(Make<String>(text)));
}

#define SERIES(function, operation, type)    \
  BENCHMARK_TEMPLATE(function, type)         \
      ->Name("ustring/" operation "/" #type) \
      ->RangeMultiplier(2)                   \
      ->Range(8, 1024)
#define AGAINST_ALL(function, operation)    \
  SERIES(function, operation, ustring);     \
  SERIES(function, operation, std::string); \
  SERIES(function, operation, QString);     \
  SERIES(function, operation, icu::UnicodeString)

AGAINST_ALL(Construct, "construct");
AGAINST_ALL(Copy, "copy");
AGAINST_ALL(Append, "append");
AGAINST_ALL(FindAtEnd, "find");
AGAINST_ALL(Compare, "compare");
SERIES(Compose, "normalise", ustring);
SERIES(Compose, "normalise", QString);
SERIES(Compose, "normalise", icu::UnicodeString);

}  // namespace
