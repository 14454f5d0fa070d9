#pragma once

#include "tests/device/byte_writer.h"

namespace sonavue::device {

/// The size of the common entry, which precedes the descriptions of a frame table.
inline constexpr std::uint32_t kCommonFrameSize = 24;

/// A frame table at the address `place` for one piece of this machine's code. `program` describes
/// how its frame grows, in at most three bytes.
inline Bytes frame_bytes(std::uint64_t place, std::uint64_t code, std::uint64_t size,
                         const Bytes& program = {}) {
  constexpr std::uint32_t kDescriptionSize = 28;
  constexpr std::size_t kProgram = kCommonFrameSize + 25;
  ByteWriter writer(kCommonFrameSize + kDescriptionSize);
  writer.numbers({kCommonFrameSize - 4, 0});
  // Version 1, "zR", alignments 1 and -8, return address in register 16, one more byte: addresses
  // are relative to their own position. Then: the frame is 8 bytes above the stack pointer, with
  // the return address below it.
  writer.put({1, 'z', 'R', 0, 1, 0x78, 16, 1, 0x10, 0x0c, 7, 8, 0x90, 1}, writer.at());
  writer.skip_to(kCommonFrameSize);
  writer.numbers({kDescriptionSize - 4, kCommonFrameSize + 4});
  writer.long_numbers({code - (place + writer.at()), size});
  writer.put(program, kProgram);
  return writer.take();
}

}  // namespace sonavue::device
