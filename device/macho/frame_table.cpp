#include "device/macho/frame_table.h"

#include <algorithm>
#include <string_view>

namespace sonavue::device {
namespace {

constexpr std::size_t kNumber = sizeof(std::uint32_t);
constexpr std::size_t kAddress = sizeof(std::uint64_t);
constexpr std::uint32_t kLongLength = 0xffffffff;
constexpr std::uint8_t kVersion = 1;
constexpr std::string_view kAugmentation("zR\0", 3);
constexpr std::uint8_t kCountedFromItsPlace = 0x10;
constexpr std::uint8_t kMoreFollows = 0x80;

class Reader {
 public:
  Reader(const Image& image, const Section& table) : table_(table), bytes_(image.content(table)) {}

  std::vector<FrameDescription> read() {
    std::vector<FrameDescription> found;
    for (std::size_t at = 0; at < bytes_.size();) {
      const std::uint32_t length = little_32(bytes_, at);
      if (length == 0) break;
      if (length == kLongLength || length < kNumber) refuse(at, "has an impossible length");
      const std::size_t content = at + kNumber;
      bytes_at(bytes_, content, length);
      const std::uint32_t back = little_32(bytes_, content);
      if (back == 0) {
        check_common(at);
        commons_.push_back(at);
      } else {
        found.push_back(description(at, content - back, length));
      }
      at = content + length;
    }
    return found;
  }

 private:
  [[noreturn]] static void refuse(std::size_t at, const std::string& why) {
    throw FormatError("the frame table's entry at byte " + std::to_string(at) + " " + why);
  }

  FrameDescription description(std::size_t at, std::size_t common, std::size_t length) const {
    if (!std::binary_search(commons_.begin(), commons_.end(), common))
      refuse(at, "refers to no common entry");
    if (length < kNumber + 2 * kAddress) refuse(at, "is too short");
    const std::size_t place = at + 2 * kNumber;
    const std::uint64_t distance = little_64(bytes_, place);
    return {at, place, table_.address + place + distance, little_64(bytes_, place + kAddress)};
  }

  /// Checks that a common entry, which several descriptions share, has the one format that is
  /// supported here.
  void check_common(std::size_t at) const {
    std::size_t next = at + 2 * kNumber;
    if (*bytes_at(bytes_, next, 1) != kVersion) refuse(at, "has an unknown version");
    const std::uint8_t* name = bytes_at(bytes_, ++next, kAugmentation.size());
    if (!std::equal(kAugmentation.begin(), kAugmentation.end(), name))
      refuse(at, "has an unsupported augmentation");
    next += kAugmentation.size();
    // Skip two alignments, the return address register, and the length of the rest.
    for (int i = 0; i < 4; ++i)
      next = behind_number(next);
    if (*bytes_at(bytes_, next, 1) != kCountedFromItsPlace)
      refuse(at, "has an unsupported address encoding");
  }

  std::size_t behind_number(std::size_t at) const {
    while (*bytes_at(bytes_, at++, 1) & kMoreFollows) {
    }
    return at;
  }

  const Section& table_;
  const Bytes bytes_;
  /// In ascending order.
  std::vector<std::size_t> commons_;
};

}  // namespace

const Section* frame_table(const Image& image) {
  return image.section("__TEXT", "__eh_frame");
}

std::vector<FrameDescription> frame_descriptions(const Image& image) {
  const Section* table = frame_table(image);
  return table ? Reader(image, *table).read() : std::vector<FrameDescription>();
}

}  // namespace sonavue::device
