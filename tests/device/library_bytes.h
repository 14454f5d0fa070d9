#pragma once

#include "device/macho/image.h"

namespace sonavue::device {

/// The parameters of a small library. The defaults satisfy the package's rules.
struct LibraryShape {
  std::uint32_t processor = 0x0100000c;
  std::uint32_t kind = kLibrary;
  std::uint32_t least_system = 0x00080000;
  std::size_t room = 256;
  std::size_t code_size = 9000;
};

/// The bytes of a library for the phone: a code segment, link information, the minimum system.
Bytes library_bytes(const LibraryShape& shape = {});

}  // namespace sonavue::device
