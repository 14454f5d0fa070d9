#pragma once

#include <utility>

#include "objc/send.h"

namespace objc {

/// Owns one reference to an object: `adopt` takes over a +1, `retain` adds one.
template <Handle T>
class Ref {
 public:
  Ref() = default;
  [[nodiscard]] static Ref adopt(T object) { return Ref(object); }
  [[nodiscard]] static Ref retain(T object) {
    send<Id>(object, "retain"_sel);
    return Ref(object);
  }

  Ref(const Ref& other) : Ref(retain(other.object_)) {}
  Ref(Ref&& other) noexcept : object_(std::exchange(other.object_, T())) {}
  Ref& operator=(Ref other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Ref() { send<>(object_, "release"_sel); }

  T get() const { return object_; }
  /// A plain handle that borrows the object.
  operator T() const& { return object_; }
  operator T() && = delete;
  const T* operator->() const { return &object_; }
  const T& operator*() const { return object_; }
  explicit operator bool() const { return static_cast<bool>(object_); }

  /// Replaces the object. The new one is retained before the old one is released.
  void reset(T object = T()) { *this = retain(object); }
  /// Returns the object and empties this `Ref`. Ownership of the +1 passes to the caller.
  [[nodiscard]] T leak() { return std::exchange(object_, T()); }

 private:
  explicit Ref(T object) : object_(object) {}
  T object_;
};

/// Owns an object that `alloc` or `copy` returned until the end of the scope.
template <Handle T>
[[nodiscard]] Ref<T> adopt(T object) {
  return Ref<T>::adopt(object);
}

}  // namespace objc
