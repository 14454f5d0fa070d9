#include "host/social/composers/composer_place.h"

#include <algorithm>
#include <cmath>

namespace host::social {
namespace {

struct Look {
  CGSize card;
  CGFloat keyboard;
  /// The maximum distance from the status bar, on however tall a screen.
  CGFloat most_above;
};

constexpr Look kPhone{{304, 172}, 216, 64};
constexpr Look kTablet{{480, 204}, 264, 150};
constexpr CGFloat kStatusBar = 20;
constexpr CGFloat kSideMargin = 8;
/// The card's share of the additional width of a wider phone.
constexpr CGFloat kShareOfWidth = 0.5;
constexpr CGFloat kNarrowestPhone = 320;

CGFloat card_width(const Look& look, CGFloat screen, ScreenKind kind) {
  const CGFloat more = kind == ScreenKind::Phone ? (screen - kNarrowestPhone) * kShareOfWidth : 0;
  return std::floor(std::min(look.card.width + more, screen - 2 * kSideMargin));
}

}  // namespace

CGRect composer_place(CGSize screen, ScreenKind kind) {
  const Look& look = kind == ScreenKind::Phone ? kPhone : kTablet;
  const CGFloat width = card_width(look, screen.width, kind);
  const CGFloat free = screen.height - kStatusBar - look.keyboard - look.card.height;
  const CGFloat above = std::clamp(free / 2, 0.0, look.most_above);
  return {std::floor((screen.width - width) / 2), kStatusBar + std::floor(above), width,
          look.card.height};
}

}  // namespace host::social
