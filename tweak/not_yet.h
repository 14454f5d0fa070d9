#pragma once

#include "platform/Foundation/NSLog.h"
#include "platform/SpringBoard/SpringBoard.h"
#include "platform/UIKit/UITextField.h"

namespace sonavue {

/// Stands where a method is still to be written: says its name in the log and does nothing.
template <objc::FixedString Selector>
void not_yet(SpringBoard) {
  NSLog("<Sonavue> %s is not there yet"_ns.id(), Selector.c_str());
}

template <objc::FixedString Selector>
void not_yet_with(SpringBoard self, objc::Object) {
  not_yet<Selector>(self);
}

template <objc::FixedString Selector>
BOOL not_yet_asked(SpringBoard self, objc::Object) {
  not_yet<Selector>(self);
  return YES;
}

}  // namespace sonavue
