#include "platform/spelling-posix.h"

#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unicode/bytestream.h>
#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>
#include <unicode/ustring.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <iterator>
#include <string_view>
#include <system_error>
#include <vector>

namespace platform {
namespace {

bool IsUtf8(std::string const& text) {
  UErrorCode status = U_ZERO_ERROR;
  u_strFromUTF8(nullptr, 0, nullptr, text.data(), static_cast<int32_t>(text.size()), &status);
  return status != U_INVALID_CHAR_FOUND;
}

/// Empty for invalid UTF-8.
std::string Normalised(icu::Normalizer2 const* (*form)(UErrorCode&), std::string const& text) {
  if (!IsUtf8(text)) return {};
  UErrorCode status = U_ZERO_ERROR;
  icu::Normalizer2 const* const normalizer = form(status);
  if (U_FAILURE(status)) return {};
  std::string result;
  icu::StringByteSink<std::string> sink(&result);
  normalizer->normalizeUTF8(0, text, sink, nullptr, status);
  return U_SUCCESS(status) ? result : std::string();
}

std::string Composed(std::string const& text) {
  return Normalised(icu::Normalizer2::getNFCInstance, text);
}

/// Whether other names can have this one's normal form. Three ASCII characters are the normal form
/// of others: of the Kelvin sign, the Greek question mark and the Greek varia.
bool HasTwins(std::string_view name) {
  return std::any_of(name.begin(), name.end(),
                     [](char c) { return !U8_IS_SINGLE(c) || c == 'K' || c == ';' || c == '`'; });
}

bool Exists(std::string const& path, bool follow) {
  struct stat info;
  return (follow ? stat(path.c_str(), &info) : lstat(path.c_str(), &info)) == 0;
}

/// The names in a folder; none if it can't be listed. An empty path is the working folder.
std::vector<std::string> NamesIn(std::string const& folder) {
  std::vector<std::string> names;
  std::error_code error;
  std::filesystem::directory_iterator entry(folder.empty() ? "." : folder, error);
  for (std::filesystem::directory_iterator const end; !error && entry != end;
       entry.increment(error)) {
    names.push_back(entry->path().filename().string());
  }
  return names;
}

/// The names in a folder with this normal form, except `except`.
std::vector<std::string> NamesOfForm(std::string const& composed, std::string const& folder,
                                     std::vector<std::string> const& except) {
  std::vector<std::string> names;
  for (std::string const& name : NamesIn(folder)) {
    bool const is_new = std::find(except.begin(), except.end(), name) == except.end();
    if (is_new && HasTwins(name) && Composed(name) == composed) names.push_back(name);
  }
  return names;
}

/// Searches for `rest` below `above`, which exists and is empty or ends in a slash.
bool Find(std::string const& above, std::string_view rest, bool follow_leaf, std::string& found) {
  std::size_t const begin = std::min(rest.find_first_not_of('/'), rest.size());
  std::size_t const end = std::min(rest.find('/', begin), rest.size());
  std::string const folder = above + std::string(rest.substr(0, begin));
  std::string const name(rest.substr(begin, end - begin));
  rest.remove_prefix(end);

  auto const leads_on = [&](std::string const& spelling) {
    std::string const path = folder + spelling;
    if (!rest.empty()) return Exists(path, true) && Find(path, rest, follow_leaf, found);
    if (!Exists(path, follow_leaf)) return false;
    found = path;
    return true;
  };

  if (leads_on(name)) return true;
  if (!HasTwins(name)) return false;
  std::string const composed = Composed(name);
  if (composed.empty()) return false;
  // Nearly every name is stored in one of the two forms, so try them before listing the folder.
  std::vector<std::string> tried = {name};
  for (auto* const form : {icu::Normalizer2::getNFCInstance, icu::Normalizer2::getNFDInstance}) {
    std::string const spelling = Normalised(form, name);
    if (std::find(tried.begin(), tried.end(), spelling) != tried.end()) continue;
    if (leads_on(spelling)) return true;
    tried.push_back(spelling);
  }
  std::vector<std::string> const others = NamesOfForm(composed, folder, tried);
  return std::any_of(others.begin(), others.end(), leads_on);
}

/// Whether the volume may ignore case. That depends on its type and, for some types, on a mount
/// option that can't be queried.
bool MayBeBlindToCase(char const* path) {
  constexpr unsigned long kTypes[] = {
      MSDOS_SUPER_MAGIC,
      EXFAT_SUPER_MAGIC,
      0x5346544E,  // NTFS
      0x7366746E,  // the same, by another driver
      SMB_SUPER_MAGIC,
      SMB2_SUPER_MAGIC,
      CIFS_SUPER_MAGIC,
      0x4244,  // HFS
      0x482B,  // HFS+
      FUSE_SUPER_MAGIC,
  };
  struct statfs info;
  if (statfs(path, &info) != 0) return false;
  // Signed in some C libraries, and then sign-extended.
  auto const type = static_cast<std::uint32_t>(info.f_type);
  return std::find(std::begin(kTypes), std::end(kTypes), type) != std::end(kTypes);
}

icu::UnicodeString Folded(std::string const& name) {
  return icu::UnicodeString::fromUTF8(Composed(name)).foldCase();
}

/// The name in the opposite case, or unchanged if it has no case.
std::string InOtherCase(std::string const& name) {
  icu::UnicodeString const text = icu::UnicodeString::fromUTF8(name);
  icu::UnicodeString other = icu::UnicodeString(text).toUpper(icu::Locale::getRoot());
  if (other == text) other.toLower(icu::Locale::getRoot());
  std::string result;
  return other.toUTF8String(result);
}

bool IsSameObject(std::string const& a, std::string const& b) {
  struct stat first;
  struct stat second;
  return lstat(a.c_str(), &first) == 0 && lstat(b.c_str(), &second) == 0 &&
         first.st_ino == second.st_ino && first.st_dev == second.st_dev;
}

/// How a folder stores a name; its path ends in a slash.
std::string StoredName(std::string const& folder, std::string const& name) {
  std::string const other = IsUtf8(name) ? InOtherCase(name) : name;
  if (other == name || !IsSameObject(folder + name, folder + other)) return name;
  std::string stored = name;
  icu::UnicodeString const folded = Folded(name);
  for (std::string const& candidate : NamesIn(folder)) {
    if (Folded(candidate) == folded) stored = candidate;
    if (candidate == name) break;
  }
  return stored;
}

}  // namespace

std::string AsStored(char const* path) {
  if (!MayBeBlindToCase(path)) return path;
  std::string stored;
  for (std::string_view rest = path;;) {
    rest.remove_prefix(std::min(rest.find_first_not_of('/'), rest.size()));
    if (rest.empty()) return stored.empty() ? "/" : stored;
    std::size_t const end = std::min(rest.find('/'), rest.size());
    stored += '/';
    stored += StoredName(stored, std::string(rest.substr(0, end)));
    rest.remove_prefix(end);
  }
}

bool FindByNormalForm(char const* path, bool follow_leaf, std::string& found) {
  return HasTwins(path) && Find("", path, follow_leaf, found);
}

}  // namespace platform
