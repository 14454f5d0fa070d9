#pragma once

#include "host/quartzcore/drawing/color.h"
#include "objc/class_builder.h"
#include "platform/UIKit/UIColor.h"

namespace host::uikit {

using quartzcore::Rgba;

/// Returns the components of a colour; nil counts as opaque black.
Rgba components_of(UIColor color);

class Color : public objc::Implementation<Color, UIColor> {
 public:
  explicit Color(UIColor owner) : Implementation(owner) {}
  ~Color();

  UIColor init_with_white(CGFloat white, CGFloat alpha);
  UIColor init_with_rgba(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha);
  /// Takes ownership of the reference.
  void take_pattern(CGColorRef pattern);
  UIColor with_alpha(CGFloat alpha) const;
  BOOL get_rgba(CGFloat* red, CGFloat* green, CGFloat* blue, CGFloat* alpha) const;
  BOOL get_white(CGFloat* white, CGFloat* alpha) const;
  BOOL get_hue(CGFloat* hue, CGFloat* saturation, CGFloat* brightness, CGFloat* alpha) const;
  CGColorRef cg_color();
  BOOL is_equal(objc::Object other) const;
  NSUInteger hash() const;
  NSString description() const;
  /// Colours are immutable, so a copy is the colour itself.
  UIColor copy_with_zone(void*) const;

  void set();
  void set_fill();
  void set_stroke();

  const Rgba& rgba() const { return rgba_; }

 private:
  bool is_gray() const;

  Rgba rgba_;
  CGColorRef cg_color_ = nullptr;
};

void export_color();

}  // namespace host::uikit
