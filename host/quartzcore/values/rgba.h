#pragma once

namespace host::quartzcore {

/// Components from 0 to 1, not premultiplied.
struct Rgba {
  double red = 0, green = 0, blue = 0, alpha = 0;
  friend constexpr bool operator==(const Rgba&, const Rgba&) = default;
};

}  // namespace host::quartzcore
