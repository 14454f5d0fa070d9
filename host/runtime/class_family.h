#pragma once

#include "objc/class_builder.h"

namespace host {

/// Replaces the implementation of `selector` in `cls` and in all subclasses that inherit it, except
/// those with an implementation of their own. Returns the previous one, or nullptr if there was
/// none.
objc::Imp replace_in_family(objc::Class cls, const char* selector, objc::Imp body,
                            const char* encoding);

/// Makes every subclass of `cls`, a class or a metaclass, look up its inherited methods again.
void refresh_family(objc::Class cls);

template <auto Function>
objc::Imp replace_in_family(objc::Class cls, const char* selector) {
  return replace_in_family(cls, selector,
                           reinterpret_cast<objc::Imp>(&objc::MethodOf<Function>::call),
                           objc::MethodOf<Function>::encoding.c_str());
}

}  // namespace host
