#pragma once

#include "device/macho/image.h"

namespace macho_tests {

using sonavue::device::Bytes;

/// The parts of a small library for this machine: a page with the header and code, a page of data,
/// and the tables, all given as bytes.
struct ImageShape {
  static constexpr std::uint64_t kPage = 0x1000;
  static constexpr std::uint64_t kCode = 0x800;    // offset of the code in its page
  static constexpr std::uint64_t kFrames = 0xc00;  // offset of the frame table after it
  static constexpr std::uint64_t kData = kPage;    // the address of the page of data
  static constexpr std::size_t kDataSegment = 1;

  Bytes rebase = {};
  Bytes bind = {};
  Bytes weak_bind = {};
  Bytes lazy_bind = {};
  Bytes exports = {};
  Bytes code = {};
  Bytes frames = {};
  Bytes data = {};
  std::uint64_t initialisers = 0;  // how many pointers at the start of the data are initialisers
  std::string data_section = "__data";
  std::uint32_t kind_of_data = 0;
  std::uint32_t protection_of_data = 3;
  std::uint64_t address_of_data = kData;
  std::vector<std::string> libraries = {"/usr/lib/first.dylib", "/usr/lib/second.dylib"};
};

Bytes image_bytes(const ImageShape& shape);

/// A number as encoded in the tables: seven bits per byte; the eighth is set in all but the last.
Bytes packed(std::uint64_t value);
/// Concatenates the pieces.
Bytes joined(std::initializer_list<Bytes> pieces);
/// The bytes of the text with a terminating zero.
Bytes zero_ended(std::string_view text);
Bytes pointers(std::initializer_list<std::uint64_t> values);

}  // namespace macho_tests
