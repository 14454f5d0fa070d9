#include "tests/macho/loader/registered_frames.h"

#include "device/macho/frame_table.h"

extern "C" {
void __register_frame(void* table);
void __deregister_frame(void* table);
}

namespace macho_tests {
namespace {

constexpr std::size_t kEnd = sizeof(std::uint32_t);

}  // namespace

// Registration needs a zero after the last entry, for which the image may have no space, so a copy
// is registered. Addresses in it are relative to their own position.
RegisteredFrames::RegisteredFrames(const Image& image, const Memory& memory) {
  const std::vector<FrameDescription> frames = frame_descriptions(image);
  if (frames.empty()) return;
  Bytes table = image.content(*frame_table(image));
  table.resize(table.size() + kEnd);
  const auto start = reinterpret_cast<std::uintptr_t>(table.data());
  for (const FrameDescription& each : frames) {
    if (each.size == 0 || !memory.is_inside(each.address) ||
        !memory.is_inside(each.address + each.size - 1))
      throw FormatError("the frame table refers to code outside the image");
    const auto code = reinterpret_cast<std::uintptr_t>(memory.at(each.address));
    put_little_64(table, each.address_place, code - (start + each.address_place));
  }
  table_ = std::move(table);
  __register_frame(table_.data());
}

RegisteredFrames::~RegisteredFrames() {
  if (!table_.empty()) __deregister_frame(table_.data());
}

}  // namespace macho_tests
