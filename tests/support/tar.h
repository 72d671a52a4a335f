#pragma once

#include <cstddef>
#include <string>

/// Tar archives byte by byte, for what no library writes.
namespace test {

/// A header, with its checksum.
std::string TarHeader(std::string const& name, char type, size_t size, std::string const& link = "",
                      unsigned mode = 0644);
/// Fills the header's checksum in.
void SealTarHeader(std::string& header);
/// A file's header and bytes.
std::string TarFile(std::string const& name, std::string const& bytes, unsigned mode = 0644);
/// The bytes of an entry, up to the end of their last block.
std::string Padded(std::string bytes);
/// A name in UTF-8 for the entry that follows, as a pax archive stores it.
std::string PaxName(std::string const& name);
/// A name of any length for the entry that follows, as GNU tar stores it.
std::string LongName(std::string const& name);

}  // namespace test
