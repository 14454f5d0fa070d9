#pragma once

#include "objc/class_builder.h"

namespace sonavue::test {

/// Replaces a class's method for as long as this object exists.
template <auto Function>
class ReplacedMethod {
 public:
  ReplacedMethod(objc::Class cls, const char* selector)
      : method_(class_getInstanceMethod(cls, sel_registerName(selector))),
        before_(method_getImplementation(method_)) {
    objc::replace_method<Function>(cls, selector);
  }
  ~ReplacedMethod() { method_setImplementation(method_, before_); }
  ReplacedMethod(const ReplacedMethod&) = delete;
  ReplacedMethod& operator=(const ReplacedMethod&) = delete;

 private:
  objc::Method method_;
  objc::Imp before_;
};

}  // namespace sonavue::test
