#include "qm-file.h"

#include <stdexcept>

namespace test {
namespace {

constexpr std::size_t kMagicSize = 16;
constexpr int kHashSection = 0x42;
constexpr int kMessageSection = 0x69;
constexpr int kEnd = 0x01;
constexpr int kTranslation = 0x03;
constexpr int kSource = 0x06;
constexpr int kContext = 0x07;
constexpr int kComment = 0x08;

class Reader {
 public:
  explicit Reader(std::string const& bytes) : bytes_(bytes) {}

  bool AtEnd() const { return position_ == bytes_.size(); }
  std::uint32_t position() const { return static_cast<std::uint32_t>(position_); }

  std::string Bytes(std::size_t size) {
    if (bytes_.size() - position_ < size) throw std::runtime_error("the catalogue ends early");
    position_ += size;
    return bytes_.substr(position_ - size, size);
  }
  int Byte() { return static_cast<unsigned char>(Bytes(1)[0]); }
  std::uint32_t Number() {
    std::uint32_t number = 0;
    for (char const byte : Bytes(4)) number = number << 8 | static_cast<unsigned char>(byte);
    return number;
  }
  std::string Block() { return Bytes(Number()); }

 private:
  std::string const& bytes_;
  std::size_t position_ = 0;
};

std::u16string FromBigEndian(std::string const& bytes) {
  if (bytes.size() % 2 != 0) throw std::runtime_error("half a character in a translation");
  std::u16string text;
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    auto const high = static_cast<unsigned char>(bytes[i]);
    auto const low = static_cast<unsigned char>(bytes[i + 1]);
    text += static_cast<char16_t>(high << 8 | low);
  }
  return text;
}

QmFile::Message ReadMessage(Reader& reader) {
  QmFile::Message message;
  message.offset = reader.position();
  for (;;) {
    int const tag = reader.Byte();
    message.tags.push_back(tag);
    switch (tag) {
      case kEnd:
        return message;
      case kTranslation:
        message.translation = FromBigEndian(reader.Block());
        break;
      case kSource:
        message.source = reader.Block();
        break;
      case kContext:
        message.context = reader.Block();
        break;
      case kComment:
        message.comment = reader.Block();
        break;
      default:
        throw std::runtime_error("a record of kind " + std::to_string(tag));
    }
  }
}

}  // namespace

QmFile ReadQmFile(std::string const& bytes) {
  QmFile file;
  Reader reader(bytes);
  file.magic = reader.Bytes(kMagicSize);
  while (!reader.AtEnd()) {
    int const tag = reader.Byte();
    file.sections.push_back({tag, reader.Block()});
  }
  for (QmFile::Section const& section : file.sections) {
    Reader inner(section.bytes);
    while (section.tag == kHashSection && !inner.AtEnd()) {
      std::uint32_t const hash = inner.Number();
      file.hashes.push_back({hash, inner.Number()});
    }
    while (section.tag == kMessageSection && !inner.AtEnd()) {
      file.messages.push_back(ReadMessage(inner));
    }
  }
  return file;
}

std::uint32_t QmHash(std::string const& source) {
  std::uint32_t hash = 0;
  for (char const byte : source) {
    hash = (hash << 4) + static_cast<unsigned char>(byte);
    std::uint32_t const high = hash & 0xf0000000U;
    hash ^= high >> 24;
    hash &= ~high;
  }
  return hash == 0 ? 1 : hash;
}

}  // namespace test
