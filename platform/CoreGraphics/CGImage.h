#pragma once

#include <cstddef>

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/CoreGraphics/CGTypes.h"

struct CGDataProvider;
using CGDataProviderRef = CGDataProvider*;
struct __CFData;
using CFDataRef = const __CFData*;

// An image is also an object of the runtime, so it can be a layer's contents. Its bytes are blue,
// green, red, alpha (premultiplied).
extern "C" {
CGImageRef CGImageRetain(CGImageRef image);
void CGImageRelease(CGImageRef image);
/// Sizes in pixels.
std::size_t CGImageGetWidth(CGImageRef image);
std::size_t CGImageGetHeight(CGImageRef image);
std::size_t CGImageGetBytesPerRow(CGImageRef image);
std::size_t CGImageGetBitsPerPixel(CGImageRef image);
std::size_t CGImageGetBitsPerComponent(CGImageRef image);
/// The part of the image inside `rect`, in pixels from the top left (+1); null if they do not
/// overlap.
CGImageRef CGImageCreateWithImageInRect(CGImageRef image, CGRect rect);
/// Borrowed: it lives as long as the image.
CGDataProviderRef CGImageGetDataProvider(CGImageRef image);
/// A copy of all bytes, an NSData (+1).
CFDataRef CGDataProviderCopyData(CGDataProviderRef provider);
const unsigned char* CFDataGetBytePtr(CFDataRef data);
NSInteger CFDataGetLength(CFDataRef data);
void CFRelease(const void* object);
const void* CFRetain(const void* object);
}
