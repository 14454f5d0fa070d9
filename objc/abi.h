#pragma once

// The parts of the object runtime that this project uses, declared here so that no runtime header
// needs to be included. This is the only header that knows its home: the target it is compiled
// for, the phone or the desktop.

#include <cstddef>
#include <cstdint>

#if defined(__APPLE__)
#define SONAVUE_HOME_PHONE 1
#else
#define SONAVUE_HOME_PHONE 0
#endif

struct objc_class;
struct objc_ivar;
struct objc_method;
struct objc_object;
struct objc_protocol;
struct objc_selector;

namespace objc {

using Id = objc_object*;
using Class = objc_class*;
using Sel = const objc_selector*;
using Method = objc_method*;
using Ivar = objc_ivar*;
using Protocol = objc_protocol*;
using Imp = void (*)();

/// The receiver of a super send: the object, and the class where the method lookup starts.
struct SuperReceiver {
  Id receiver;
  Class first_searched;
};

}  // namespace objc

/// One byte, 0 or 1, as in the platform's method encodings.
using BOOL = signed char;
inline constexpr BOOL YES = 1;
inline constexpr BOOL NO = 0;

/// Size in bytes of each field that `uname` fills in.
inline constexpr std::size_t kSystemNameLength = SONAVUE_HOME_PHONE ? 256 : 65;

using CGFloat = double;
using NSInteger = long;
using NSUInteger = unsigned long;
inline constexpr NSUInteger NSNotFound = static_cast<NSUInteger>(INTPTR_MAX);

extern "C" {
objc::Class objc_getClass(const char* name);
objc::Class objc_getMetaClass(const char* name);
objc::Protocol objc_getProtocol(const char* name);
objc::Sel sel_registerName(const char* name);
const char* sel_getName(objc::Sel selector);
// Selectors with the same name but different types are different pointers: compare them with this,
// never with ==.
signed char sel_isEqual(objc::Sel left, objc::Sel right);

const char* class_getName(objc::Class cls);
objc::Class class_getSuperclass(objc::Class cls);
objc::Method class_getInstanceMethod(objc::Class cls, objc::Sel selector);
objc::Method class_getClassMethod(objc::Class cls, objc::Sel selector);
objc::Ivar class_getInstanceVariable(objc::Class cls, const char* name);
objc::Method* class_copyMethodList(objc::Class cls, unsigned* count);
signed char class_addMethod(objc::Class cls, objc::Sel selector, objc::Imp body, const char* types);
objc::Imp class_replaceMethod(objc::Class cls, objc::Sel selector, objc::Imp body,
                              const char* types);
signed char class_addIvar(objc::Class cls, const char* name, std::size_t size,
                          unsigned char log2_alignment, const char* types);
signed char class_addProtocol(objc::Class cls, objc::Protocol protocol);

objc::Sel method_getName(objc::Method method);
const char* method_getTypeEncoding(objc::Method method);
objc::Imp method_getImplementation(objc::Method method);
objc::Imp method_setImplementation(objc::Method method, objc::Imp body);
std::ptrdiff_t ivar_getOffset(objc::Ivar ivar);

objc::Class objc_allocateClassPair(objc::Class base, const char* name, std::size_t extra_bytes);
void objc_registerClassPair(objc::Class cls);

#if SONAVUE_HOME_PHONE
void objc_msgSend();
void objc_msgSendSuper();
objc::Class object_getClass(objc::Id object);
#else
objc::Imp objc_msg_lookup(objc::Id receiver, objc::Sel selector);
objc::Imp objc_msg_lookup_super(objc::SuperReceiver* receiver, objc::Sel selector);
#endif

void* _Block_copy(const void* block);
void _Block_release(const void* block);
extern void* _NSConcreteStackBlock[];
}

namespace objc {

/// Whether integers smaller than a word are passed and returned as whole words. The phone's
/// compiler extends a small argument or result to a word, and expects the other side to do the
/// same. The desktop's compilers need not extend it, but the phone's code may be on the other side
/// of the call.
inline constexpr bool kFillsWords = !SONAVUE_HOME_PHONE;

/// The class of a non-nil object; for a class, its metaclass.
inline Class class_of(Id object) {
#if SONAVUE_HOME_PHONE
  return object_getClass(object);
#else
  return *reinterpret_cast<Class*>(object);
#endif
}

/// The function to call for a non-nil receiver, to be cast to the message's type.
inline Imp message_function([[maybe_unused]] Id receiver, [[maybe_unused]] Sel selector) {
#if SONAVUE_HOME_PHONE
  return &objc_msgSend;
#else
  return objc_msg_lookup(receiver, selector);
#endif
}

/// Calls `selector` as the superclass implements it. `Function` is the method's own C type.
template <class Function, class... Arguments>
auto call_super(SuperReceiver target, Sel selector, Arguments... arguments) {
#if SONAVUE_HOME_PHONE
  using SuperFunction = decltype([]<class R, class... A>(R (*)(Id, Sel, A...)) {
    return static_cast<R (*)(SuperReceiver*, Sel, A...)>(nullptr);
  }(static_cast<Function>(nullptr)));
  return reinterpret_cast<SuperFunction>(&objc_msgSendSuper)(&target, selector, arguments...);
#else
  return reinterpret_cast<Function>(objc_msg_lookup_super(&target, selector))(
      target.receiver, selector, arguments...);
#endif
}

}  // namespace objc
