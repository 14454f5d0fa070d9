#pragma once

#include "objc/own_class.h"
#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UIView.h"

/// A row with a custom-drawn switch, bound to the setting whose text is the row's name. One of the
/// extension's own classes.
struct Switcher : objc::Own<Switcher, "Switcher", UIView> {
  Switcher initWithFrame(CGRect frame, NSString name, UIImage image, BOOL border) const {
    return call<"initWithFrame:name:image:border:", Switcher>(frame, name, image, border);
  }
  objc::Object getValue() const { return call<"getValue", objc::Object>(); }
  void setValue() const { call<"setValue">(); }
  void animate() const { call<"animate">(); }
};

namespace sonavue {

void make_switcher();

}  // namespace sonavue
