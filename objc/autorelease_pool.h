#pragma once

#include "objc/send.h"

namespace objc {

/// Releases, at the end of its scope, the objects that were autoreleased while it existed.
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
