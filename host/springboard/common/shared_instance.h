#pragma once

#include <utility>

#include "objc/object.h"

namespace host::springboard {

/// Objects of which there is one, made when first asked for and kept until all are forgotten.
class SharedInstances {
 public:
  using Forget = void (*)();
  static void remember(Forget forget);
  /// Lets go of every one, last made first: the end of a home screen that another will follow.
  static void forget_all();
};

template <objc::Handle T>
class SharedInstance {
 public:
  static T get() {
    if (!instance_) {
      instance_ = T::alloc().init();
      SharedInstances::remember(&forget);
    }
    return instance_;
  }
  /// Nil while nobody has asked for it.
  static T if_made() { return instance_; }

 private:
  static void forget() { std::exchange(instance_, T()).release(); }

  // A bare handle: nothing is to be released behind the end of `main`.
  static inline T instance_;
};

/// The same for parts of the home screen that are no objects of the runtime.
template <class T>
class SharedPart {
 public:
  static T& get() {
    if (!part_) {
      part_ = new T;
      SharedInstances::remember(&forget);
    }
    return *part_;
  }
  /// Null while nobody has asked for it.
  static T* if_made() { return part_; }

 private:
  static void forget() { delete std::exchange(part_, nullptr); }

  static inline T* part_ = nullptr;
};

/// The body of `+sharedInstance`.
template <objc::Handle T>
T shared_instance(objc::Object) {
  return SharedInstance<T>::get();
}

}  // namespace host::springboard
