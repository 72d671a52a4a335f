#include "support/tar.h"

#include <cstdio>
#include <string>

namespace test {

std::string TarHeader(std::string const& name, char type, size_t size, std::string const& link,
                      unsigned mode) {
  std::string header(512, '\0');
  auto const put = [&](size_t at, std::string const& text) {
    header.replace(at, text.size(), text);
  };
  char octal[16];
  auto const number = [&](unsigned long value, int width) {
    std::snprintf(octal, sizeof(octal), "%0*lo", width, value);
    return std::string(octal);
  };
  put(0, name.substr(0, 100));
  put(100, number(mode, 7));
  put(108, number(0, 7));
  put(116, number(0, 7));
  put(124, number(size, 11));
  put(136, number(0, 11));
  header[156] = type;
  put(157, link.substr(0, 100));
  put(257, std::string("ustar\0"
                       "00",
                       8));
  put(329, number(1, 7));
  put(337, number(3, 7));
  SealTarHeader(header);
  return header;
}

void SealTarHeader(std::string& header) {
  header.replace(148, 8, "        ");
  unsigned sum = 0;
  for (char byte : header) sum += static_cast<unsigned char>(byte);
  char number[16];
  std::snprintf(number, sizeof(number), "%06o", sum);
  header.replace(148, 8, std::string(number) + std::string("\0 ", 2));
}

std::string Padded(std::string bytes) {
  bytes.resize((bytes.size() + 511) / 512 * 512);
  return bytes;
}

std::string TarFile(std::string const& name, std::string const& bytes, unsigned mode) {
  return TarHeader(name, '0', bytes.size(), "", mode) + Padded(bytes);
}

std::string PaxName(std::string const& name) {
  std::string const rest = " path=" + name + "\n";
  std::string length = std::to_string(rest.size() + 2);
  if (length.size() + rest.size() != std::stoul(length)) {
    length = std::to_string(rest.size() + length.size() + 1);
  }
  std::string const record = length + rest;
  return TarHeader("PaxHeaders/x", 'x', record.size()) + Padded(record);
}

std::string LongName(std::string const& name) {
  return TarHeader("././@LongLink", 'L', name.size() + 1) + Padded(name + '\0');
}

}  // namespace test
