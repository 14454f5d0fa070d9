#include "host/media_player/range_exception.h"

#include <fmt/format.h>

#include "host/media_player/shelf.h"

namespace host::media_player {

void raise_range_exception(const char* what, NSUInteger index, NSUInteger count) {
  const std::string reason = fmt::format("index {} is beyond {} of {}", index, what, count);
  const auto exception = objc::send<objc::Object>(
      objc::Object(objc_getClass("NSException")), "exceptionWithName:reason:userInfo:"_sel,
      "NSRangeException"_ns, make_string(reason).autorelease(), objc::Object());
  objc::send<>(exception, "raise"_sel);
}

}  // namespace host::media_player
