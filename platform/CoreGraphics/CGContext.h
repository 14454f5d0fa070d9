#pragma once

#include <cstddef>

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/CoreGraphics/CGPath.h"
#include "platform/CoreGraphics/CGTypes.h"

enum CGBlendMode : int {
  kCGBlendModeNormal = 0,
  kCGBlendModeMultiply = 1,
  kCGBlendModeScreen = 2,
  kCGBlendModeOverlay = 3,
  kCGBlendModeClear = 16,
  kCGBlendModeCopy = 17,
  kCGBlendModeSourceIn = 18,
  kCGBlendModeSourceAtop = 20,
  kCGBlendModeDestinationIn = 22,
};

enum CGInterpolationQuality : int {
  kCGInterpolationDefault = 0,
  kCGInterpolationNone = 1,
  kCGInterpolationLow = 2,
  kCGInterpolationHigh = 3,
  kCGInterpolationMedium = 4,
};

// In this host, contexts have their origin at the top left and y pointing down, as UIKit sets them
// up. User space is in points.
extern "C" {
CGContextRef CGContextRetain(CGContextRef context);
void CGContextRelease(CGContextRef context);

void CGContextSaveGState(CGContextRef context);
void CGContextRestoreGState(CGContextRef context);
void CGContextTranslateCTM(CGContextRef context, CGFloat tx, CGFloat ty);
void CGContextScaleCTM(CGContextRef context, CGFloat sx, CGFloat sy);
void CGContextRotateCTM(CGContextRef context, CGFloat angle);
void CGContextConcatCTM(CGContextRef context, CGAffineTransform transform);
CGAffineTransform CGContextGetCTM(CGContextRef context);

void CGContextSetAlpha(CGContextRef context, CGFloat alpha);
void CGContextSetBlendMode(CGContextRef context, CGBlendMode mode);
void CGContextSetInterpolationQuality(CGContextRef context, CGInterpolationQuality quality);
void CGContextSetFillColorWithColor(CGContextRef context, CGColorRef color);
void CGContextSetStrokeColorWithColor(CGContextRef context, CGColorRef color);
void CGContextSetRGBFillColor(CGContextRef context, CGFloat red, CGFloat green, CGFloat blue,
                              CGFloat alpha);
void CGContextSetRGBStrokeColor(CGContextRef context, CGFloat red, CGFloat green, CGFloat blue,
                                CGFloat alpha);
void CGContextSetLineWidth(CGContextRef context, CGFloat width);
void CGContextSetLineCap(CGContextRef context, CGLineCap cap);
void CGContextSetLineJoin(CGContextRef context, CGLineJoin join);

void CGContextBeginPath(CGContextRef context);
void CGContextMoveToPoint(CGContextRef context, CGFloat x, CGFloat y);
void CGContextAddLineToPoint(CGContextRef context, CGFloat x, CGFloat y);
void CGContextAddRect(CGContextRef context, CGRect rect);
void CGContextAddEllipseInRect(CGContextRef context, CGRect rect);
void CGContextAddPath(CGContextRef context, CGPathRef path);
void CGContextClosePath(CGContextRef context);
void CGContextFillPath(CGContextRef context);
void CGContextEOFillPath(CGContextRef context);
void CGContextStrokePath(CGContextRef context);
void CGContextClip(CGContextRef context);
void CGContextClipToRect(CGContextRef context, CGRect rect);

void CGContextFillRect(CGContextRef context, CGRect rect);
void CGContextStrokeRect(CGContextRef context, CGRect rect);
void CGContextClearRect(CGContextRef context, CGRect rect);
void CGContextFillEllipseInRect(CGContextRef context, CGRect rect);
/// Draws the whole image into `rect`, upright in this host's coordinates.
void CGContextDrawImage(CGContextRef context, CGRect rect, CGImageRef image);

/// The pixels, as blue, green, red, alpha (premultiplied); null for a context without a bitmap.
void* CGBitmapContextGetData(CGContextRef context);
std::size_t CGBitmapContextGetWidth(CGContextRef context);
std::size_t CGBitmapContextGetHeight(CGContextRef context);
std::size_t CGBitmapContextGetBytesPerRow(CGContextRef context);
/// An image of the current pixels (+1).
CGImageRef CGBitmapContextCreateImage(CGContextRef context);
}
