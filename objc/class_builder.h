#pragma once

#include <new>

#include "objc/send.h"

namespace objc {

/// The C++ state behind one class: an ordinary object that is stored in an instance variable,
/// constructed at `alloc` and destroyed at `dealloc`. `self` is the object that contains it.
template <class Derived, Handle Self>
class Implementation {
 public:
  using SelfHandle = Self;
  explicit Implementation(Self owner) : self(owner) {}
  Implementation(const Implementation&) = delete;
  Implementation& operator=(const Implementation&) = delete;

 protected:
  /// Sends a message to `self`, starting at the superclass of the class that `Derived` implements.
  template <class Result = void, class... Arguments>
  Result super(Sel selector, const Arguments&... arguments) const;

  const Self self;
};

/// The offset of the state `T` within its objects, and its class; set when the class is made.
template <class T>
struct StatePlace {
  static inline Class cls = nullptr;
  static inline std::ptrdiff_t offset = 0;
};

/// The state of a non-nil object whose class is, or derives from, the one that `T` implements.
template <class T>
inline T& state_of(Object object) {
  return *reinterpret_cast<T*>(reinterpret_cast<char*>(object.id()) + StatePlace<T>::offset);
}

template <class Derived, Handle Self>
template <class Result, class... Arguments>
Result Implementation<Derived, Self>::super(Sel selector, const Arguments&... arguments) const {
  return send_super<Result>(self, StatePlace<Derived>::cls, selector, arguments...);
}

/// Wraps a member function, or a free function whose first parameter is the receiver, in a C
/// function that the runtime can call, and deduces its encoding.
template <auto Function>
struct MethodOf;

template <class T, class Result, class... Arguments, Result (T::*Member)(Arguments...)>
struct MethodOf<Member> {
  static AbiType<Result> call(Id self, Sel, AbiType<Arguments>... arguments) {
    T& state = state_of<T>(Object(self));
    if constexpr (std::is_void_v<Result>) {
      (state.*Member)(from_abi<std::remove_cvref_t<Arguments>>(arguments)...);
    } else {
      return to_abi<Result>(
          (state.*Member)(from_abi<std::remove_cvref_t<Arguments>>(arguments)...));
    }
  }
  static constexpr auto& encoding = MethodEncoding<Result, Arguments...>::text;
};

template <class T, class Result, class... Arguments, Result (T::*Member)(Arguments...) const>
struct MethodOf<Member> {
  static AbiType<Result> call(Id self, Sel, AbiType<Arguments>... arguments) {
    const T& state = state_of<T>(Object(self));
    if constexpr (std::is_void_v<Result>) {
      (state.*Member)(from_abi<std::remove_cvref_t<Arguments>>(arguments)...);
    } else {
      return to_abi<Result>(
          (state.*Member)(from_abi<std::remove_cvref_t<Arguments>>(arguments)...));
    }
  }
  static constexpr auto& encoding = MethodEncoding<Result, Arguments...>::text;
};

template <class Self, class Result, class... Arguments, Result (*Function)(Self, Arguments...)>
struct MethodOf<Function> {
  static AbiType<Result> call(Id self, Sel, AbiType<Arguments>... arguments) {
    if constexpr (std::is_void_v<Result>) {
      Function(wrap<Self>(self), from_abi<std::remove_cvref_t<Arguments>>(arguments)...);
    } else {
      return to_abi<Result>(
          Function(wrap<Self>(self), from_abi<std::remove_cvref_t<Arguments>>(arguments)...));
    }
  }
  static constexpr auto& encoding = MethodEncoding<Result, Arguments...>::text;
};

/// Adds the method to `cls` unless the class itself already implements the selector.
template <auto Function>
bool add_method(Class cls, const char* selector) {
  return cls && class_addMethod(cls, sel_registerName(selector),
                                reinterpret_cast<Imp>(&MethodOf<Function>::call),
                                MethodOf<Function>::encoding.c_str());
}

/// Gives `cls` this implementation of the selector and replaces its own, if it has one.
template <auto Function>
void replace_method(Class cls, const char* selector) {
  if (!cls) return;
  class_replaceMethod(cls, sel_registerName(selector),
                      reinterpret_cast<Imp>(&MethodOf<Function>::call),
                      MethodOf<Function>::encoding.c_str());
}

/// Makes a class. If its base is missing in this process or its name is taken, no class is made:
/// the builder's methods then do nothing, and `finish` returns nil.
class ClassBuilder {
 public:
  ClassBuilder(const char* name, const char* base);

  /// Gives every object a `T`, constructed with the object's handle at `alloc` and destroyed at
  /// `dealloc`.
  template <class T>
  ClassBuilder& state() {
    static_assert(alignof(T) <= alignof(void*), "objects are aligned to a pointer");
    if (!cls_) return *this;
    StatePlace<T>::cls = cls_;
    add_storage(sizeof(T));
    find_offset_ = [](Class cls) { StatePlace<T>::offset = storage_offset(cls); };
    add_method<&construct<T>>(metaclass(), "allocWithZone:");
    add_method<&destroy<T>>(cls_, "dealloc");
    return *this;
  }

  /// Gives every object an instance variable, initially zero, that other code looks up by name.
  template <class T>
  ClassBuilder& field(const char* name) {
    static_assert(sizeof(T) == sizeof(void*), "a pointer of some kind");
    add_field(name, Encode<T>::text.c_str());
    return *this;
  }

  template <auto Function>
  ClassBuilder& method(const char* selector) {
    add_method<Function>(cls_, selector);
    return *this;
  }

  template <auto Function>
  ClassBuilder& class_method(const char* selector) {
    add_method<Function>(metaclass(), selector);
    return *this;
  }

  /// Registers the class with the runtime and returns it.
  Class finish();

 private:
  Class metaclass() const { return cls_ ? class_of(reinterpret_cast<Id>(cls_)) : nullptr; }
  void add_storage(std::size_t size);
  void add_field(const char* name, const char* encoding);
  static std::ptrdiff_t storage_offset(Class cls);

  template <class T>
  static Object construct(Object cls, void* zone) {
    const Object made = send_super<Object>(cls, class_of(reinterpret_cast<Id>(StatePlace<T>::cls)),
                                           "allocWithZone:"_sel, zone);
    if (made) new (&state_of<T>(made)) T(cast<typename T::SelfHandle>(made));
    return made;
  }

  template <class T>
  static void destroy(Object object) {
    state_of<T>(object).~T();
    send_super<>(object, StatePlace<T>::cls, "dealloc"_sel);
  }

  Class cls_ = nullptr;
  void (*find_offset_)(Class) = nullptr;
};

}  // namespace objc
