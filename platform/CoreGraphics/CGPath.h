#pragma once

#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/CoreGraphics/CGTypes.h"

using CGMutablePathRef = CGPath*;

enum CGLineCap : int { kCGLineCapButt, kCGLineCapRound, kCGLineCapSquare };
enum CGLineJoin : int { kCGLineJoinMiter, kCGLineJoinRound, kCGLineJoinBevel };

// `transform` is applied to the points that the call adds. It may be null.
extern "C" {
CGMutablePathRef CGPathCreateMutable();
CGPathRef CGPathCreateCopy(CGPathRef path);
CGPathRef CGPathCreateCopyByTransformingPath(CGPathRef path, const CGAffineTransform* transform);
CGPathRef CGPathCreateWithRect(CGRect rect, const CGAffineTransform* transform);
CGPathRef CGPathCreateWithEllipseInRect(CGRect rect, const CGAffineTransform* transform);
CGPathRef CGPathCreateWithRoundedRect(CGRect rect, CGFloat corner_width, CGFloat corner_height,
                                      const CGAffineTransform* transform);
CGPathRef CGPathRetain(CGPathRef path);
void CGPathRelease(CGPathRef path);

void CGPathMoveToPoint(CGMutablePathRef path, const CGAffineTransform* transform, CGFloat x,
                       CGFloat y);
void CGPathAddLineToPoint(CGMutablePathRef path, const CGAffineTransform* transform, CGFloat x,
                          CGFloat y);
void CGPathAddCurveToPoint(CGMutablePathRef path, const CGAffineTransform* transform, CGFloat cp1x,
                           CGFloat cp1y, CGFloat cp2x, CGFloat cp2y, CGFloat x, CGFloat y);
void CGPathAddQuadCurveToPoint(CGMutablePathRef path, const CGAffineTransform* transform,
                               CGFloat cpx, CGFloat cpy, CGFloat x, CGFloat y);
void CGPathAddRect(CGMutablePathRef path, const CGAffineTransform* transform, CGRect rect);
void CGPathAddEllipseInRect(CGMutablePathRef path, const CGAffineTransform* transform, CGRect rect);
/// Angles are in radians from the x axis. The y axis points down, so an arc that is not `clockwise`
/// in the platform's sense runs clockwise on the screen.
void CGPathAddArc(CGMutablePathRef path, const CGAffineTransform* transform, CGFloat x, CGFloat y,
                  CGFloat radius, CGFloat start_angle, CGFloat end_angle, bool clockwise);
void CGPathAddPath(CGMutablePathRef path, const CGAffineTransform* transform, CGPathRef other);
void CGPathCloseSubpath(CGMutablePathRef path);

bool CGPathIsEmpty(CGPathRef path);
CGPoint CGPathGetCurrentPoint(CGPathRef path);
/// The bounds of the curve itself, without its control points.
CGRect CGPathGetPathBoundingBox(CGPathRef path);
CGRect CGPathGetBoundingBox(CGPathRef path);
bool CGPathContainsPoint(CGPathRef path, const CGAffineTransform* transform, CGPoint point,
                         bool even_odd);
}
