#pragma once

#include "device/macho/image.h"

namespace macho_tests {

using sonavue::device::Bytes;

/// What a small library for this machine is made of: a page of code that holds the header, a page
/// of data, and the tables, each of them given byte by byte.
struct ImageShape {
  static constexpr std::uint64_t kPage = 0x1000;
  static constexpr std::uint64_t kCode = 0x800;    // where the code lies in its page
  static constexpr std::uint64_t kFrames = 0xc00;  // and the frame table behind it
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
  std::uint64_t initialisers = 0;  // how many pointers at the start of the data are to be run
  std::string data_section = "__data";
  std::uint32_t kind_of_data = 0;
  std::uint32_t protection_of_data = 3;
  std::uint64_t address_of_data = kData;
  std::vector<std::string> libraries = {"/usr/lib/first.dylib", "/usr/lib/second.dylib"};
};

Bytes image_bytes(const ImageShape& shape);

/// A number as the tables write it: seven bits a byte, the last byte without the eighth.
Bytes packed(std::uint64_t value);
/// Several pieces one behind the other; a text ends with a zero.
Bytes joined(std::initializer_list<Bytes> pieces);
Bytes zero_ended(std::string_view text);
Bytes pointers(std::initializer_list<std::uint64_t> values);

}  // namespace macho_tests
