#include "host/uikit/drawing/color.h"

#include <fmt/format.h>

#include <algorithm>
#include <functional>

#include "host/uikit/drawing/hue.h"
#include "platform/CoreGraphics/CGColor.h"
#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UIImage.h"

namespace host::uikit {
namespace {

// The platform clamps these components; all others it keeps as given.
double clamped(double component) {
  return std::clamp(component, 0.0, 1.0);
}

void fill_in(CGFloat* place, double value) {
  if (place) *place = value;
}

UIColor color_with_white(objc::Object, CGFloat white, CGFloat alpha) {
  return UIColor::alloc().initWithWhite(white, alpha).autorelease();
}

UIColor color_with_rgba(objc::Object, CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) {
  return UIColor::alloc().initWithRed(red, green, blue, alpha).autorelease();
}

UIColor color_with_hue(objc::Object, CGFloat hue, CGFloat saturation, CGFloat brightness,
                       CGFloat alpha) {
  const Rgb rgb = rgb_from({clamped(hue), clamped(saturation), clamped(brightness)});
  return UIColor::colorWithRed(rgb.red, rgb.green, rgb.blue, alpha);
}

/// Takes ownership of the reference.
UIColor color_of_pattern(CGColorRef pattern) {
  const UIColor color = UIColor::alloc().init().autorelease();
  objc::state_of<Color>(color).take_pattern(pattern);
  return color;
}

UIColor color_with_cg_color(objc::Object, CGColorRef color) {
  if (!color) return nil;
  if (quartzcore::pattern_of(color)) return color_of_pattern(CGColorRetain(color));
  const Rgba rgba = quartzcore::rgba_of(color);
  return UIColor::colorWithRed(rgba.red, rgba.green, rgba.blue, rgba.alpha);
}

UIColor color_with_pattern(objc::Object, UIImage image) {
  const CGColorRef pattern = quartzcore::make_pattern_color(image.CGImage(), image.scale());
  return pattern ? color_of_pattern(pattern) : UIColor();
}

// Named colours are created once and live as long as the process.
template <int Red, int Green, int Blue>
UIColor named_color(objc::Object) {
  static const UIColor color =
      UIColor::alloc().initWithRed(Red / 6.0, Green / 6.0, Blue / 6.0, 1.0);
  return color;
}

UIColor dark_gray(objc::Object) {
  static const UIColor color = UIColor::alloc().initWithWhite(1.0 / 3, 1);
  return color;
}

UIColor light_gray(objc::Object) {
  static const UIColor color = UIColor::alloc().initWithWhite(2.0 / 3, 1);
  return color;
}

UIColor brown(objc::Object) {
  static const UIColor color = UIColor::alloc().initWithRed(0.6, 0.4, 0.2, 1);
  return color;
}

UIColor clear(objc::Object) {
  static const UIColor color = UIColor::alloc().initWithWhite(0, 0);
  return color;
}

}  // namespace

Rgba components_of(UIColor color) {
  Rgba rgba{0, 0, 0, 1};
  color.getRed(&rgba.red, &rgba.green, &rgba.blue, &rgba.alpha);
  return rgba;
}

Color::~Color() {
  CGColorRelease(cg_color_);
}

UIColor Color::init_with_white(CGFloat white, CGFloat alpha) {
  return init_with_rgba(white, white, white, alpha);
}

UIColor Color::init_with_rgba(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) {
  rgba_ = {clamped(red), clamped(green), clamped(blue), clamped(alpha)};
  return self;
}

void Color::take_pattern(CGColorRef pattern) {
  CGColorRelease(cg_color_);
  cg_color_ = pattern;
  rgba_ = quartzcore::rgba_of(pattern);
}

UIColor Color::with_alpha(CGFloat alpha) const {
  return UIColor::colorWithRed(rgba_.red, rgba_.green, rgba_.blue, alpha);
}

BOOL Color::get_rgba(CGFloat* red, CGFloat* green, CGFloat* blue, CGFloat* alpha) const {
  fill_in(red, rgba_.red);
  fill_in(green, rgba_.green);
  fill_in(blue, rgba_.blue);
  fill_in(alpha, rgba_.alpha);
  return YES;
}

bool Color::is_gray() const {
  return rgba_.red == rgba_.green && rgba_.green == rgba_.blue;
}

BOOL Color::get_white(CGFloat* white, CGFloat* alpha) const {
  if (!is_gray()) return NO;
  fill_in(white, rgba_.red);
  fill_in(alpha, rgba_.alpha);
  return YES;
}

BOOL Color::get_hue(CGFloat* hue, CGFloat* saturation, CGFloat* brightness, CGFloat* alpha) const {
  const Hsb hsb = hsb_from({rgba_.red, rgba_.green, rgba_.blue});
  fill_in(hue, hsb.hue);
  fill_in(saturation, hsb.saturation);
  fill_in(brightness, hsb.brightness);
  fill_in(alpha, rgba_.alpha);
  return YES;
}

CGColorRef Color::cg_color() {
  if (!cg_color_) cg_color_ = quartzcore::make_color(rgba_);
  return cg_color_;
}

BOOL Color::is_equal(objc::Object other) const {
  if (other == self) return YES;
  if (!objc::cast<NSObject>(other).isKindOfClass(UIColor::cls())) return NO;
  const UIColor color = objc::cast<UIColor>(other);
  return components_of(color) == rgba_ &&
         quartzcore::pattern_of(color.CGColor()) == quartzcore::pattern_of(cg_color_);
}

NSUInteger Color::hash() const {
  const std::hash<double> hash;
  return ((hash(rgba_.red) * 31 + hash(rgba_.green)) * 31 + hash(rgba_.blue)) * 31 +
         hash(rgba_.alpha);
}

NSString Color::description() const {
  const std::string text = fmt::format("UIColor ({:.3g} {:.3g} {:.3g} {:.3g})", rgba_.red,
                                       rgba_.green, rgba_.blue, rgba_.alpha);
  return NSString::stringWithUTF8String(text.c_str());
}

UIColor Color::copy_with_zone(void*) const {
  return self.retain();
}

void Color::set() {
  self.setFill();
  self.setStroke();
}

void Color::set_fill() {
  if (const CGContextRef context = UIGraphicsGetCurrentContext())
    CGContextSetFillColorWithColor(context, cg_color());
}

void Color::set_stroke() {
  if (const CGContextRef context = UIGraphicsGetCurrentContext())
    CGContextSetStrokeColorWithColor(context, cg_color());
}

void export_color() {
  if (objc_getClass("UIColor")) return;
  objc::ClassBuilder("UIColor", "NSObject")
      .state<Color>()
      .class_method<&named_color<0, 0, 0>>("blackColor")
      .class_method<&dark_gray>("darkGrayColor")
      .class_method<&light_gray>("lightGrayColor")
      .class_method<&named_color<6, 6, 6>>("whiteColor")
      .class_method<&named_color<3, 3, 3>>("grayColor")
      .class_method<&named_color<6, 0, 0>>("redColor")
      .class_method<&named_color<0, 6, 0>>("greenColor")
      .class_method<&named_color<0, 0, 6>>("blueColor")
      .class_method<&named_color<0, 6, 6>>("cyanColor")
      .class_method<&named_color<6, 6, 0>>("yellowColor")
      .class_method<&named_color<6, 0, 6>>("magentaColor")
      .class_method<&named_color<6, 3, 0>>("orangeColor")
      .class_method<&named_color<3, 0, 3>>("purpleColor")
      .class_method<&brown>("brownColor")
      .class_method<&clear>("clearColor")
      .class_method<&color_with_white>("colorWithWhite:alpha:")
      .class_method<&color_with_rgba>("colorWithRed:green:blue:alpha:")
      .class_method<&color_with_hue>("colorWithHue:saturation:brightness:alpha:")
      .class_method<&color_with_cg_color>("colorWithCGColor:")
      .class_method<&color_with_pattern>("colorWithPatternImage:")
      .method<&Color::init_with_white>("initWithWhite:alpha:")
      .method<&Color::init_with_rgba>("initWithRed:green:blue:alpha:")
      .method<&Color::with_alpha>("colorWithAlphaComponent:")
      .method<&Color::get_rgba>("getRed:green:blue:alpha:")
      .method<&Color::get_white>("getWhite:alpha:")
      .method<&Color::get_hue>("getHue:saturation:brightness:alpha:")
      .method<&Color::cg_color>("CGColor")
      .method<&Color::is_equal>("isEqual:")
      .method<&Color::hash>("hash")
      .method<&Color::description>("description")
      .method<&Color::copy_with_zone>("copyWithZone:")
      .method<&Color::set>("set")
      .method<&Color::set_fill>("setFill")
      .method<&Color::set_stroke>("setStroke")
      .finish();
}

}  // namespace host::uikit
