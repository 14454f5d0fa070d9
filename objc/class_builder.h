#pragma once

#include <new>

#include "objc/send.h"

namespace objc {

/// The C++ state behind one class: an ordinary object that lives in an instance variable, is
/// constructed at `alloc` and destroyed at `dealloc`. `self` is the object that holds it.
template <class Derived, Handle Self>
class Implementation {
 public:
  using SelfHandle = Self;
  explicit Implementation(Self owner) : self(owner) {}
  Implementation(const Implementation&) = delete;
  Implementation& operator=(const Implementation&) = delete;

 protected:
  /// Sends a message as the superclass of the class that `Derived` implements answers it.
  template <class Result = void, class... Arguments>
  Result super(Sel selector, const Arguments&... arguments) const;

  const Self self;
};

/// Where the state of class `T` stands in its objects; filled in when the class is made.
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

/// Makes a C function that the runtime can call out of a member function or a free function whose
/// first parameter is the receiver, and deduces its encoding.
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

/// Gives `cls` its own implementation of the selector, in place of one it may have had.
template <auto Function>
void replace_method(Class cls, const char* selector) {
  if (!cls) return;
  class_replaceMethod(cls, sel_registerName(selector),
                      reinterpret_cast<Imp>(&MethodOf<Function>::call),
                      MethodOf<Function>::encoding.c_str());
}

/// Makes a class. A class whose base is missing in this process is simply not made: every call on
/// the builder then does nothing, and `finish` gives nil.
class ClassBuilder {
 public:
  ClassBuilder(const char* name, const char* base);

  /// Gives every object a `T`: constructed with its handle at alloc, destroyed at dealloc.
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

  /// Gives every object an instance variable that others find by its name; zero at first.
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

  /// Registers the class with the runtime.
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
