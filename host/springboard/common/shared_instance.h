#pragma once

#include <utility>

#include "objc/object.h"

namespace host::springboard {

/// The registry of singletons. Each is created on first use and kept until all are forgotten.
class SharedInstances {
 public:
  using Forget = void (*)();
  static void remember(Forget forget);
  /// Releases them all, the latest first. Ends a home screen so that another can be launched.
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
  /// Nil until it is first used.
  static T if_made() { return instance_; }

 private:
  static void forget() { std::exchange(instance_, T()).release(); }

  // A bare handle: nothing may be released after `main` has returned.
  static inline T instance_;
};

/// The same for parts of the home screen that are not runtime objects.
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
  /// Null until it is first used.
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
