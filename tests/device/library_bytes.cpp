#include "tests/device/library_bytes.h"

#include "tests/device/byte_writer.h"

namespace sonavue::device {
namespace {

constexpr std::uint32_t kMagic = 0xfeedfacf;
constexpr std::size_t kVersionSize = 16;
constexpr std::size_t kLinkInformation = 100;
constexpr std::uint32_t kReadAndRun = 5;

}  // namespace

Bytes library_bytes(const LibraryShape& shape) {
  const std::size_t commands =
      2 * ByteWriter::kSegmentSize + ByteWriter::kSectionSize + kVersionSize;
  const std::size_t code = kHeaderSize + commands + shape.room;
  const std::size_t end = code + shape.code_size;
  ByteWriter writer(end + kLinkInformation);
  writer.numbers({kMagic, shape.processor, 0, shape.kind, 3, commands, 0, 0});
  writer.segment("__TEXT", {0, end, 0, end}, kReadAndRun, 1);
  writer.section("__text", "__TEXT", {code, shape.code_size, code, shape.code_size});
  writer.segment("__LINKEDIT", {end, kLinkInformation, end, kLinkInformation}, kReadAndRun, 0);
  writer.numbers({kMinimumPhoneVersion, kVersionSize, shape.least_system, shape.least_system});

  Bytes bytes = writer.take();
  for (std::size_t i = code; i < bytes.size(); ++i)
    bytes[i] = static_cast<std::uint8_t>(i * i / 7);
  return bytes;
}

}  // namespace sonavue::device
