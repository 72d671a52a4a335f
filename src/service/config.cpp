#include "service/config.h"

#include <cstdio>
#include <memory>
#include <sstream>

namespace {

enum class Line { kIgnored, kPair, kSyntaxError };

// Not <cctype>, which depends on the locale.

bool IsBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

bool IsKey(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' ||
         c == '-' || c == '.';
}

bool IsControl(char c) { return static_cast<unsigned char>(c) < ' ' || c == 127; }

char* SkipBlanks(char* c) {
  while (IsBlank(*c)) ++c;
  return c;
}

/// Only a comment may follow a value.
bool IsTail(char* c) {
  c = SkipBlanks(c);
  return *c == '\0' || *c == '#';
}

/// Terminates the value that begins at `value`, and moves `value` past an opening quote. Returns
/// false if something invalid follows.
bool CutValue(char*& value) {
  char const quote = *value == '"' || *value == '\'' ? *value : '\0';
  if (quote != '\0') ++value;
  char* end = value;
  while (!IsControl(*end) && *end != (quote != '\0' ? quote : ' ')) ++end;
  if (quote != '\0' && *end != quote) return false;
  if (!IsTail(quote != '\0' ? end + 1 : end)) return false;
  *end = '\0';
  return true;
}

/// Splits a line in place.
Line Parse(char* line, char*& key, char*& value) {
  key = SkipBlanks(line);
  char* key_end = key;
  while (IsKey(*key_end)) ++key_end;
  if (*key_end == '\0' || *key_end == '#') return Line::kIgnored;

  char* const equals = SkipBlanks(key_end);
  if (*equals != '=') return Line::kSyntaxError;
  value = SkipBlanks(equals + 1);
  if (*value == '\0' || !CutValue(value)) return Line::kSyntaxError;
  *key_end = '\0';
  return Line::kPair;
}

struct FileCloser {
  void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

}  // namespace

int Config::read(ustring const& path) {
  if (path.empty()) return -1;
  std::unique_ptr<std::FILE, FileCloser> const file(std::fopen(path.c_str_utf8(), "re"));
  if (!file) return -1;

  char line[8192];
  while (std::fgets(line, sizeof line, file.get()) != nullptr) {
    char* key = nullptr;
    char* value = nullptr;
    switch (Parse(line, key, value)) {
      case Line::kIgnored:
        break;
      case Line::kPair:
        (*this)[key] = value;
        break;
      case Line::kSyntaxError:
        clear();
        return -1;
    }
  }
  return 0;
}

int Config::get_int(ustring const& key) {
  std::stringstream text(std::ios::in | std::ios::out);
  text << (*this)[key].c_str_utf8();
  int number = 0;
  text >> number;
  return number;
}
