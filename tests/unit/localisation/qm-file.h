#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace test {

/// A compiled catalogue, taken apart byte for byte.
struct QmFile {
  struct Section {
    int tag = 0;
    std::string bytes;
  };
  struct HashEntry {
    std::uint32_t hash = 0;
    std::uint32_t offset = 0;
  };
  struct Message {
    std::uint32_t offset = 0;  ///< of the first record within the messages section
    std::vector<int> tags;     ///< of the records in their order, the end included
    std::u16string translation;
    std::string comment;
    std::string source;
    std::string context;
  };

  std::string magic;
  std::vector<Section> sections;
  std::vector<HashEntry> hashes;
  std::vector<Message> messages;
};

/// Throws std::runtime_error for bytes that are not a catalogue, a record of an unknown kind
/// included.
QmFile ReadQmFile(std::string const& bytes);

/// The hash under which a catalogue finds a text that has no comment.
std::uint32_t QmHash(std::string const& source);

}  // namespace test
