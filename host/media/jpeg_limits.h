#pragma once

#include <cstdint>
#include <span>

namespace host::media {

// Whether the decoder gets through these bytes in a bounded time, as far as they tell. It may not
// end for an arithmetic coding, which no photograph uses, and it works through the whole picture
// for every scan, of which a file may have millions.
bool is_quick_jpeg(std::span<const std::uint8_t> bytes);

}  // namespace host::media
