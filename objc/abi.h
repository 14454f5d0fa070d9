#pragma once

// The object runtime as this house uses it: a dozen C functions, declared here so that no runtime
// header is included. This is the one header that knows which home it is compiled for.

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

/// The receiver of a super send: the object and the class at which the search begins.
struct SuperReceiver {
  Id receiver;
  Class first_searched;
};

}  // namespace objc

/// One byte, 0 or 1, as the platform's method encodings have it.
using BOOL = signed char;
inline constexpr BOOL YES = 1;
inline constexpr BOOL NO = 0;

/// Bytes in each field of what `uname` fills in.
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
// Selectors of one name but other types are different pointers here: compare with this, never ==.
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

/// Does this home cross every call with whole words, where an integer is smaller? The phone's own
/// compiler fills a word with a small argument or result by itself, and relies on it where it takes
/// one. The desktop's compilers need not do the first, but may have the phone's code on the other
/// side.
inline constexpr bool kFillsWords = !SONAVUE_HOME_PHONE;

/// The class of a non-nil object; of a class, its metaclass.
inline Class class_of(Id object) {
#if SONAVUE_HOME_PHONE
  return object_getClass(object);
#else
  return *reinterpret_cast<Class*>(object);
#endif
}

/// The function to call, cast to the message's type, for a non-nil receiver.
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
