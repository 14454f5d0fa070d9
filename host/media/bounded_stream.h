#pragma once

#include <tfilestream.h>

#include <cstddef>

namespace host::media {

// A file that seems to end once a tag reader has read far more of it than any song needs. The
// reader searches a file without sound to its end, piece by piece, and takes any length that a file
// claims for one of its parts.
class BoundedStream final : public TagLib::FileStream {
 public:
  explicit BoundedStream(TagLib::FileName path);

  TagLib::ByteVector readBlock(unsigned long length) override;

 private:
  std::size_t reads_ = 0;
  std::size_t bytes_ = 0;
};

}  // namespace host::media
