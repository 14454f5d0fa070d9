#pragma once

#include "host/browser/phone/messages.h"

namespace host::browser {

/// What a page can learn of the phone's views. It can only look.
class ViewSource {
 public:
  virtual ~ViewSource() = default;
  virtual Views views() = 0;
  /// Describes one of the views that were listed last; empty if the index is invalid.
  virtual std::string description(std::uint32_t view) = 0;
};

}  // namespace host::browser
