#include "tests/device/library_bytes.h"

#include <algorithm>
#include <string_view>

namespace sonavue::device {
namespace {

constexpr std::uint32_t kMagic = 0xfeedfacf;
constexpr std::size_t kSegmentSize = 72;
constexpr std::size_t kSectionSize = 80;
constexpr std::size_t kVersionSize = 16;
constexpr std::size_t kLinkInformation = 100;

class Writer {
 public:
  explicit Writer(std::size_t size) : bytes_(size) {}

  void number(std::uint32_t value) {
    put_little_32(bytes_, at_, value);
    at_ += sizeof value;
  }
  void long_number(std::uint64_t value) {
    put_little_64(bytes_, at_, value);
    at_ += sizeof value;
  }
  void name(std::string_view text) {
    std::copy(text.begin(), text.end(), bytes_.begin() + static_cast<std::ptrdiff_t>(at_));
    at_ += 16;
  }
  void segment(std::string_view title, std::size_t offset, std::size_t size, std::uint32_t parts) {
    number(kSegment);
    number(static_cast<std::uint32_t>(kSegmentSize + parts * kSectionSize));
    name(title);
    for (const std::uint64_t value : {offset, size, offset, size})
      long_number(value);
    for (const std::uint32_t value : {5u, 5u, parts, 0u})
      number(value);
  }
  Bytes take() { return std::move(bytes_); }

 private:
  Bytes bytes_;
  std::size_t at_ = 0;
};

}  // namespace

Bytes library_bytes(const LibraryShape& shape) {
  const std::size_t commands = 2 * kSegmentSize + kSectionSize + kVersionSize;
  const std::size_t code = kHeaderSize + commands + shape.room;
  const std::size_t end = code + shape.code_size;
  Writer writer(end + kLinkInformation);
  for (const std::uint32_t value :
       {kMagic, shape.processor, 0u, shape.kind, 3u, static_cast<std::uint32_t>(commands), 0u, 0u})
    writer.number(value);
  writer.segment("__TEXT", 0, end, 1);
  writer.name("__text");
  writer.name("__TEXT");
  writer.long_number(code);
  writer.long_number(shape.code_size);
  writer.number(static_cast<std::uint32_t>(code));
  for (int i = 0; i < 7; ++i)
    writer.number(0);
  writer.segment("__LINKEDIT", end, kLinkInformation, 0);
  for (const std::uint32_t value :
       {static_cast<std::uint32_t>(kMinimumPhoneVersion), static_cast<std::uint32_t>(kVersionSize),
        shape.least_system, shape.least_system})
    writer.number(value);

  Bytes bytes = writer.take();
  for (std::size_t i = code; i < bytes.size(); ++i)
    bytes[i] = static_cast<std::uint8_t>(i * i / 7);
  return bytes;
}

}  // namespace sonavue::device
