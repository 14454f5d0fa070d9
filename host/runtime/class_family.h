#pragma once

#include "objc/class_builder.h"

namespace host {

/// Replaces what `cls` and all classes below it answer to `selector`, except where one of them
/// has its own word. Returns the implementation that answered before, or nullptr when none did.
objc::Imp replace_in_family(objc::Class cls, const char* selector, objc::Imp body,
                            const char* encoding);

/// Makes every class below `cls`, a class or a metaclass, look its inherited methods up again.
void refresh_family(objc::Class cls);

template <auto Function>
objc::Imp replace_in_family(objc::Class cls, const char* selector) {
  return replace_in_family(cls, selector,
                           reinterpret_cast<objc::Imp>(&objc::MethodOf<Function>::call),
                           objc::MethodOf<Function>::encoding.c_str());
}

}  // namespace host
