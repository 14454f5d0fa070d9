#pragma once

#include <algorithm>
#include <string_view>

#include "device/macho/image.h"

namespace sonavue::device {

/// Writes structures of the phone's file format one after the other.
class ByteWriter {
 public:
  static constexpr std::size_t kNameSize = 16;
  static constexpr std::size_t kSegmentSize = 72;
  static constexpr std::size_t kSectionSize = 80;

  struct Extent {
    std::uint64_t address;
    std::uint64_t memory_size;
    std::uint64_t offset;
    std::uint64_t size;
  };

  explicit ByteWriter(std::size_t size) : bytes_(size) {}

  void numbers(std::initializer_list<std::uint64_t> values) {
    for (const std::uint64_t value : values) {
      put_little_32(bytes_, at_, static_cast<std::uint32_t>(value));
      at_ += sizeof(std::uint32_t);
    }
  }
  void long_numbers(std::initializer_list<std::uint64_t> values) {
    for (const std::uint64_t value : values) {
      put_little_64(bytes_, at_, value);
      at_ += sizeof value;
    }
  }
  void text(std::string_view text, std::size_t room) {
    std::copy(text.begin(), text.end(), bytes_.begin() + static_cast<std::ptrdiff_t>(at_));
    at_ += room;
  }
  void segment(std::string_view name, const Extent& extent, std::uint32_t protection,
               std::size_t sections) {
    numbers({kSegment, kSegmentSize + sections * kSectionSize});
    text(name, kNameSize);
    long_numbers({extent.address, extent.memory_size, extent.offset, extent.size});
    numbers({protection, protection, sections, 0});
  }
  void section(std::string_view name, std::string_view segment, const Extent& extent,
               std::uint32_t flags = 0) {
    text(name, kNameSize);
    text(segment, kNameSize);
    long_numbers({extent.address, extent.memory_size});
    numbers({extent.offset, 0, 0, 0, flags, 0, 0, 0});
  }
  void put(const Bytes& bytes, std::size_t offset) {
    std::copy(bytes.begin(), bytes.end(), bytes_.begin() + static_cast<std::ptrdiff_t>(offset));
  }

  void skip_to(std::size_t offset) { at_ = offset; }

  std::size_t at() const { return at_; }
  Bytes take() { return std::move(bytes_); }

 private:
  Bytes bytes_;
  std::size_t at_ = 0;
};

}  // namespace sonavue::device
