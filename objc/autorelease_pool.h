#pragma once

#include "objc/send.h"

namespace objc {

/// Objects autoreleased while it lives are released at the end of its scope.
class AutoreleasePool {
 public:
  AutoreleasePool()
      : pool_(send<Object>(send<Object>(Object(objc_getClass("NSAutoreleasePool")), "alloc"_sel),
                           "init"_sel)) {}
  ~AutoreleasePool() { send<>(pool_, "drain"_sel); }
  AutoreleasePool(const AutoreleasePool&) = delete;
  AutoreleasePool& operator=(const AutoreleasePool&) = delete;

 private:
  Object pool_;
};

}  // namespace objc
