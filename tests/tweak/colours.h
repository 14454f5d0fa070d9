#pragma once

#include <cmath>
#include <ostream>

#include "platform/CoreGraphics/CGColor.h"
#include "platform/UIKit/UIColor.h"

namespace host::test {

/// A colour's components, from 0 to 1. The default, no colour, differs from every colour.
struct Rgba {
  CGFloat red = -1;
  CGFloat green = -1;
  CGFloat blue = -1;
  CGFloat alpha = -1;

  friend bool operator==(const Rgba& left, const Rgba& right) {
    const auto near = [](CGFloat a, CGFloat b) { return std::abs(a - b) < 1e-6; };
    return near(left.red, right.red) && near(left.green, right.green) &&
           near(left.blue, right.blue) && near(left.alpha, right.alpha);
  }
};

inline void PrintTo(const Rgba& colour, std::ostream* out) {
  *out << "(" << colour.red << ", " << colour.green << ", " << colour.blue << "; " << colour.alpha
       << ")";
}

inline Rgba rgba(UIColor colour) {
  Rgba found;
  if (colour) colour.getRed(&found.red, &found.green, &found.blue, &found.alpha);
  return found;
}

inline Rgba rgba(CGColorRef colour) {
  if (!colour) return {};
  const CGFloat* parts = CGColorGetComponents(colour);
  return {parts[0], parts[1], parts[2], parts[3]};
}

inline constexpr Rgba kBlack{0, 0, 0, 1};
inline constexpr Rgba kWhite{1, 1, 1, 1};
/// The colour named "clear".
inline constexpr Rgba kTranslucentBlack{0, 0, 0, 0.45};

/// A colour's name in the settings, and its value.
struct NamedColour {
  const char* name;
  Rgba colour;
};

inline constexpr NamedColour kNamedColours[] = {
    {"black", kBlack},
    {"white", kWhite},
    {"gray", {0.5, 0.5, 0.5, 1}},
    {"red", {1, 0, 0, 1}},
    {"green", {0, 1, 0, 1}},
    {"blue", {0, 0, 1, 1}},
    {"cyan", {0, 1, 1, 1}},
    {"magenta", {1, 0, 1, 1}},
    {"orange", {1, 0.5, 0, 1}},
    {"purple", {0.5, 0, 0.5, 1}},
    {"brown", {0.6, 0.4, 0.2, 1}},
    {"clear", kTranslucentBlack},
};

}  // namespace host::test
