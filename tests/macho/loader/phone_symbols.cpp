#include "tests/macho/loader/phone_symbols.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>

#include "objc/abi.h"
#include "platform/POSIX/uname.h"
#include "tests/macho/loader/messages.h"

namespace macho_tests {
namespace {

constexpr std::string_view kSystemLibrary = "/usr/lib/libSystem.B.dylib";
constexpr std::size_t kPhoneNameLength = 256;
constexpr std::size_t kPhoneNames = 5;

/// The fields of the phone's structure are longer than those of this machine's.
int phone_uname(char (*names)[kPhoneNameLength]) {
  SystemName here;
  if (uname(&here) != 0) return -1;
  const char* texts[kPhoneNames] = {here.sysname, here.nodename, here.release, here.version,
                                    here.machine};
  for (std::size_t i = 0; i < kPhoneNames; ++i)
    std::strncpy(names[i], texts[i], kPhoneNameLength);
  return 0;
}

objc::Class phone_object_class(objc::Id object) {
  return object ? objc::class_of(object) : nullptr;
}

/// Never called, since everything is bound before it is called.
void bind_when_called() {
  __builtin_trap();
}

// Any number that an overrun is unlikely to write.
std::uintptr_t stack_guard = 0x00ff'0a0d'5ca1'ab1e;

struct Known {
  std::string_view symbol;
  void* address;
};

template <class Function>
void* address_of(Function* function) {
  return reinterpret_cast<void*>(function);
}

template <auto Function>
struct Whole;

/// Calls a function of the runtime whose result is smaller than a word. The phone's code reads the
/// whole word, which the desktop's compilers do not set.
template <class Small, class... Arguments, Small (*Function)(Arguments...)>
struct Whole<Function> {
  static int call(Arguments... arguments) { return Function(arguments...); }
};

/// Made at the first call, which may precede the initialisation of this file's other statics.
std::span<const Known> made_here() {
  static const Known known[] = {
      {"_objc_msgSend", address_of(&phone_message)},
      {"_objc_msgSendSuper", address_of(&phone_super_message)},
      {"_sel_registerName", address_of(&phone_selector)},
      {"_object_getClass", address_of(&phone_object_class)},
      {"_uname", address_of(&phone_uname)},
      {"_class_addIvar", address_of(&Whole<&class_addIvar>::call)},
      {"_class_addMethod", address_of(&Whole<&class_addMethod>::call)},
      {"_class_addProtocol", address_of(&Whole<&class_addProtocol>::call)},
      {"_sel_isEqual", address_of(&Whole<&sel_isEqual>::call)},
      {"___stack_chk_guard", &stack_guard},
      {"dyld_stub_binder", address_of(&bind_when_called)},
  };
  return known;
}

/// The only functions of the phone's system library that are assumed to be the same as the
/// desktop's.
constexpr std::string_view kSameOnBothSystems[] = {
    "__Block_copy",      "__Block_release", "__NSConcreteStackBlock",
    "__dispatch_main_q", "_dispatch_async", "_dlopen",
    "___stack_chk_fail", "_free",           "_memcmp",
    "_realloc",          "_system",
};

}  // namespace

void* find_phone_symbol(const std::string& library, const std::string& symbol) {
  for (const Known& each : made_here())
    if (each.symbol == symbol) return each.address;
  const bool is_same =
      std::count(std::begin(kSameOnBothSystems), std::end(kSameOnBothSystems), symbol);
  if (library == kSystemLibrary && !is_same) return nullptr;
  // In this file format every C name has a leading underscore.
  return symbol.rfind('_', 0) == 0 ? dlsym(RTLD_DEFAULT, symbol.c_str() + 1) : nullptr;
}

}  // namespace macho_tests
