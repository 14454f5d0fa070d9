#pragma once

#include <concepts>
#include <type_traits>

#include "objc/abi.h"

namespace objc {

/// A pointer to an object of the runtime, or nil. Copying it costs nothing and does not retain.
class Object {
 public:
  constexpr Object() = default;
  constexpr Object(std::nullptr_t) {}
  explicit constexpr Object(Id id) : id_(id) {}
  explicit Object(Class cls) : id_(reinterpret_cast<Id>(cls)) {}

  constexpr Id id() const { return id_; }
  explicit constexpr operator bool() const { return id_ != nullptr; }
  friend constexpr bool operator==(Object left, Object right) { return left.id_ == right.id_; }

 private:
  Id id_ = nullptr;
};

/// Any typed handle: `Object` or a class derived from it that adds no state.
template <class T>
concept Handle = std::derived_from<T, Object> && sizeof(T) == sizeof(Id);

/// A typed handle to the object at `id`.
template <Handle T>
constexpr T wrap(Id id) {
  T handle;
  static_cast<Object&>(handle) = Object(id);
  return handle;
}

/// The same object as a handle of another class. Unchecked: the caller knows the object's class.
template <Handle To>
constexpr To cast(Object object) {
  return wrap<To>(object.id());
}

/// Converts to the empty handle of any class.
struct Nil {
  template <Handle T>
  constexpr operator T() const {
    return T();
  }
};

template <class T>
concept SmallInteger = std::is_integral_v<T> &&(sizeof(T) < sizeof(int));

/// The type that a C++ type has when it is passed in a message: handles become bare pointers,
/// enumerations their integers, small integers what `kFillsWords` says; other types stay.
template <class T>
struct Abi {
  using Type = T;
};

template <SmallInteger T>
struct Abi<T> {
  using Type = std::conditional_t<kFillsWords, int, T>;
};

template <Handle T>
struct Abi<T> {
  using Type = Id;
};

template <class T>
requires std::is_enum_v<T>
struct Abi<T> : Abi<std::underlying_type_t<T>> {
};

template <class T>
using AbiType = typename Abi<std::remove_cvref_t<T>>::Type;

template <class T>
constexpr AbiType<T> to_abi(const T& value) {
  if constexpr (Handle<T>) {
    return value.id();
  } else {
    return static_cast<AbiType<T>>(value);
  }
}

template <class T>
constexpr T from_abi(AbiType<T> value) {
  if constexpr (Handle<T>) {
    return wrap<T>(value);
  } else if constexpr (std::is_same_v<T, bool>) {
    // The other side may leave anything above the lowest byte.
    return static_cast<bool>(static_cast<unsigned char>(value));
  } else {
    return static_cast<T>(value);
  }
}

}  // namespace objc

inline constexpr objc::Nil nil;
