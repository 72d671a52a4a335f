#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace test {

/// A compiled catalogue, parsed byte by byte.
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
    std::vector<int> tags;     ///< of the records in order, including the end
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

/// Throws std::runtime_error for anything that isn't a catalogue, unknown records included.
QmFile ReadQmFile(std::string const& bytes);

/// The hash under which a catalogue stores a text without comment.
std::uint32_t QmHash(std::string const& source);

}  // namespace test
