#include "host/media/bounded_stream.h"

namespace host::media {
namespace {

// A search reads pieces of a kilobyte; a song needs some dozen reads.
constexpr std::size_t most_reads = 4'000;
// Twice the largest picture, which some formats write as text.
constexpr unsigned long longest_part_bytes = 64ul << 20;
constexpr std::size_t most_bytes = 2 * longest_part_bytes;

constexpr bool opens_for_reading_only = true;

}  // namespace

BoundedStream::BoundedStream(TagLib::FileName path)
    : TagLib::FileStream(path, opens_for_reading_only) {}

TagLib::ByteVector BoundedStream::readBlock(unsigned long length) {
  const bool may_read =
      length <= longest_part_bytes && ++reads_ <= most_reads && bytes_ <= most_bytes;
  if (!may_read) return {};
  TagLib::ByteVector block = TagLib::FileStream::readBlock(length);
  bytes_ += block.size();
  return block;
}

}  // namespace host::media
