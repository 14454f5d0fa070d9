#include "host/media_player/range_exception.h"

#include <fmt/format.h>

#include "host/foundation/exception.h"

namespace host::media_player {

void raise_range_exception(const char* what, NSUInteger index, NSUInteger count) {
  foundation::raise("NSRangeException"_ns,
                    fmt::format("index {} is beyond {} of {}", index, what, count));
}

}  // namespace host::media_player
