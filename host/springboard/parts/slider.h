#pragma once

#include <functional>

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIEvent.h"
#include "platform/UIKit/UITouch.h"

namespace host::springboard {

struct SBSurfaceSlider : objc::Bound<SBSurfaceSlider, "SBSurfaceSlider", UIView> {};

struct SliderColors {
  objc::Ref<UIColor> filled;
  objc::Ref<UIColor> empty;
};

/// A thin line with a white knob that a finger moves along it; values are 0 to 1. The knob moves as
/// far as the finger does, wherever on the slider the finger is.
class Slider : public objc::Implementation<Slider, SBSurfaceSlider> {
 public:
  using Implementation::Implementation;

  static objc::Ref<SBSurfaceSlider> make(CGRect frame, const SliderColors& colors,
                                         std::function<void(double)> on_change);

  double value() const { return value_; }
  /// Sets the value without reporting the change; no-op while a finger holds the knob.
  void show(double value);

  void touches_began(NSSet touches, UIEvent event);
  void touches_moved(NSSet touches, UIEvent event);
  void touches_ended(NSSet touches, UIEvent event);
  void touches_cancelled(NSSet touches, UIEvent event);

 private:
  void build(const SliderColors& colors);
  void place_knob() const;

  std::function<void(double)> on_change_;
  objc::Ref<UIView> filled_;
  objc::Ref<UIView> empty_;
  objc::Ref<UIView> knob_;
  double value_ = 0;
  bool held_ = false;
};

void export_slider();

}  // namespace host::springboard
