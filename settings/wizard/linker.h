#pragma once

#include "objc/own_class.h"
#include "platform/UIKit/UIImage.h"
#include "platform/UIKit/UIView.h"

/// A row with an arrow that sends an action when tapped. One of the extension's own classes.
struct Linker : objc::Own<Linker, "Linker", UIView> {
  Linker initWithFrame(CGRect frame, NSString name, UIImage image, BOOL border, objc::Object target,
                       objc::Sel action) const {
    return call<"initWithFrame:name:image:border:target:action:", Linker>(frame, name, image,
                                                                          border, target, action);
  }
};

namespace sonavue {

void make_linker();

}  // namespace sonavue
