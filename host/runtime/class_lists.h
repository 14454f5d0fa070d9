#pragma once

#include <cstdlib>
#include <memory>
#include <span>

#include "objc/abi.h"

extern "C" {
objc::Ivar* class_copyIvarList(objc::Class cls, unsigned* count);
objc::Protocol* class_copyProtocolList(objc::Class cls, unsigned* count);
}

namespace host {

/// A list that the object runtime makes for its caller: what a class has of its own, not what it
/// inherits.
template <class T, T* (*Copy)(objc::Class, unsigned*)>
class ClassList {
 public:
  explicit ClassList(objc::Class cls) : list_(Copy(cls, &count_)) {}
  std::span<const T> items() const { return {list_.get(), list_ ? count_ : 0}; }

 private:
  struct Free {
    void operator()(void* list) const { std::free(list); }
  };

  unsigned count_ = 0;
  std::unique_ptr<T, Free> list_;
};

using ClassMethods = ClassList<objc::Method, &class_copyMethodList>;
using ClassIvars = ClassList<objc::Ivar, &class_copyIvarList>;
using ClassProtocols = ClassList<objc::Protocol, &class_copyProtocolList>;

}  // namespace host
