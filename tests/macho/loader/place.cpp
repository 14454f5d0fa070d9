#include "tests/macho/loader/place.h"

namespace macho_tests {
namespace {

constexpr std::uint64_t kPointer = sizeof(void*);
constexpr std::uint32_t kWritable = 2;

}  // namespace

// A damaged table could refer to places endlessly. No table needs more entries than the file has
// bytes.
Place::Place(const Image& image) : image_(image), left_(image.bytes().size()) {}

void Place::set(const OpcodeStream& stream, std::uint64_t segment, std::uint64_t offset) {
  if (segment >= image_.segments().size()) stream.refuse("there is no such segment");
  segment_ = &image_.segments()[segment];
  offset_ = offset;
}

std::uint64_t Place::take(const OpcodeStream& stream) {
  if (!segment_) stream.refuse("no place was given");
  if (left_-- == 0) stream.refuse("it refers to too many places");
  const std::uint64_t size = segment_->memory_size;
  if (size < kPointer || offset_ > size - kPointer)
    stream.refuse("the place is outside " + segment_->name);
  if (!(segment_->protection & kWritable)) stream.refuse(segment_->name + " cannot be written");
  const std::uint64_t address = segment_->address + offset_;
  offset_ += kPointer;
  return address;
}

}  // namespace macho_tests
