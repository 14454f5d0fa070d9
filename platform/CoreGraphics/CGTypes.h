#pragma once

#include "objc/encoding.h"

// Opaque drawing objects of the platform's C interface, retained and released by C functions.
struct CGColor;
struct CGContext;
struct CGImage;
struct CGPath;
using CGColorRef = CGColor*;
using CGContextRef = CGContext*;
using CGImageRef = CGImage*;
using CGPathRef = const CGPath*;

// clang-format off
template <> struct objc::Encode<CGColorRef> { static constexpr FixedString text = "^{CGColor=}"; };
template <> struct objc::Encode<CGContextRef> { static constexpr FixedString text = "^{CGContext=}"; };
template <> struct objc::Encode<CGImageRef> { static constexpr FixedString text = "^{CGImage=}"; };
template <> struct objc::Encode<CGPathRef> { static constexpr FixedString text = "^{CGPath=}"; };
// clang-format on
