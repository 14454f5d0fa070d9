#pragma once

#include <cstddef>

#include "platform/CoreGraphics/CGTypes.h"

// A colour is also an object of the runtime, as on the platform, so it can be put into an array.
extern "C" {
/// A new colour (+1). Components from 0 to 1, not premultiplied.
CGColorRef CGColorCreateGenericRGB(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha);
CGColorRef CGColorCreateGenericGray(CGFloat white, CGFloat alpha);
CGColorRef CGColorCreateCopyWithAlpha(CGColorRef color, CGFloat alpha);
CGColorRef CGColorRetain(CGColorRef color);
void CGColorRelease(CGColorRef color);
bool CGColorEqualToColor(CGColorRef left, CGColorRef right);
std::size_t CGColorGetNumberOfComponents(CGColorRef color);
/// Red, green, blue, alpha; they live as long as the colour.
const CGFloat* CGColorGetComponents(CGColorRef color);
CGFloat CGColorGetAlpha(CGColorRef color);
}
