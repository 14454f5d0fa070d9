#pragma once

#include "device/macho/image.h"

namespace sonavue::device {

/// What a small library is made with; each default is what the package's rules want.
struct LibraryShape {
  std::uint32_t processor = 0x0100000c;
  std::uint32_t kind = kLibrary;
  std::uint32_t least_system = 0x00080000;
  std::size_t room = 256;
  std::size_t code_size = 9000;
};

/// The bytes of a library of the phone's: a code segment, link information, the least system.
Bytes library_bytes(const LibraryShape& shape = {});

}  // namespace sonavue::device
