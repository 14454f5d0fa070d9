#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

struct UIEdgeInsets {
  CGFloat top = 0, left = 0, bottom = 0, right = 0;
  friend constexpr bool operator==(const UIEdgeInsets&, const UIEdgeInsets&) = default;
};

template <>
struct objc::Encode<UIEdgeInsets> {
  static constexpr FixedString text = "{UIEdgeInsets=dddd}";
};
