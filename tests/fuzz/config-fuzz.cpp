#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <map>
#include <string>

#include "service/config.h"

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size);

namespace {

using Pairs = std::map<std::string, std::string>;

constexpr size_t kNowhere = std::string::npos;
constexpr char kBlanks[] = "\t\n\v\f\r ";
constexpr char kKeyBytes[] = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_-.";

// ---- the grammar once more, on std::string and without a look at speed ----

bool IsControl(char c) { return static_cast<unsigned char>(c) < 32 || c == 127; }
bool EndsToken(char c) { return IsControl(c) || c == ' '; }

bool IsCommentOrNothing(std::string const& rest) {
  size_t const at = rest.find_first_not_of(kBlanks);
  return at == kNowhere || rest[at] == '#';
}

/// Parses what follows the `=`; returns false if it is malformed.
bool ModelValue(std::string const& text, std::string& value) {
  std::string rest;
  if (text[0] == '"' || text[0] == '\'') {
    size_t const close = text.find(text[0], 1);
    if (close == kNowhere) return false;
    value = text.substr(1, close - 1);
    rest = text.substr(close + 1);
    if (std::any_of(value.begin(), value.end(), IsControl)) return false;
  } else {
    auto const end = std::find_if(text.begin(), text.end(), EndsToken);
    value.assign(text.begin(), end);
    rest.assign(end, text.end());
  }
  return IsCommentOrNothing(rest);
}

bool ModelLine(std::string const& line, Pairs& pairs) {
  size_t const key = line.find_first_not_of(kBlanks);
  if (key == kNowhere) return true;
  size_t const key_end = line.find_first_not_of(kKeyBytes, key);
  if (key_end == kNowhere || line[key_end] == '#') return true;
  size_t const equals = line.find_first_not_of(kBlanks, key_end);
  if (equals == kNowhere || line[equals] != '=') return false;
  size_t const begin = line.find_first_not_of(kBlanks, equals + 1);
  std::string value;
  if (begin == kNowhere || !ModelValue(line.substr(begin), value)) return false;
  pairs[line.substr(key, key_end - key)] = value;
  return true;
}

int ModelRead(std::string const& bytes, Pairs& pairs) {
  for (size_t at = 0; at < bytes.size();) {
    size_t const line_end = std::min(bytes.find('\n', at), bytes.size() - 1) + 1;
    size_t const length = std::min<size_t>(line_end - at, 8191);
    std::string const line = bytes.substr(at, length);
    if (!ModelLine(line.substr(0, line.find('\0')), pairs)) {
      pairs.clear();
      return -1;
    }
    at += length;
  }
  return 0;
}

int ModelInt(std::string const& value) {
  constexpr long kLeast = std::numeric_limits<int>::min();
  constexpr long kMost = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(std::strtol(value.c_str(), nullptr, 10), kLeast, kMost));
}

// ---- the comparison ----

void Require(bool holds, char const* what) {
  if (holds) return;
  std::fprintf(stderr, "the config and its model differ: %s\n", what);
  std::abort();
}

/// The file that all inputs are written to, in memory.
class InputFile {
 public:
  InputFile() : file_(memfd_create("config", MFD_CLOEXEC)) {
    Require(file_ >= 0, "no file in memory");
    path_ = "/proc/self/fd/" + std::to_string(file_);
  }
  ~InputFile() { close(file_); }
  InputFile(InputFile const&) = delete;
  InputFile& operator=(InputFile const&) = delete;

  std::string const& path() const { return path_; }
  void Hold(std::string const& bytes) const {
    Require(ftruncate(file_, 0) == 0, "no truncating");
    ssize_t const written = pwrite(file_, bytes.data(), bytes.size(), 0);
    Require(written == static_cast<ssize_t>(bytes.size()), "no writing");
  }

 private:
  int file_;
  std::string path_;
};

void RequireSame(Config const& config, Pairs const& pairs) {
  Require(config.size() == pairs.size(), "number of pairs");
  auto expected = pairs.begin();
  for (auto const& [key, value] : config) {
    Require(key.c_str() == expected->first, "key");
    Require(value.c_str() == expected->second, "value");
    ++expected;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const* data, size_t size) {
  static InputFile const file;
  std::string const bytes(reinterpret_cast<char const*>(data), size);
  file.Hold(bytes);
  Config config;
  config["former"] = "1";
  Pairs pairs = {{"former", "1"}};
  int const expected = ModelRead(bytes, pairs);
  Require(config.read(file.path()) == expected, "result");
  RequireSame(config, pairs);
  for (auto const& [key, value] : pairs) {
    Require(config.get_int(key) == ModelInt(value), "number");
  }
  return 0;
}
