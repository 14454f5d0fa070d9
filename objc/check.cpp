#include <cstdio>
#include <cstdlib>

#include "objc/send.h"

// Compiled only into builds with checks. It reports a call with wrong types before the call can
// corrupt memory.

namespace objc {
namespace {

struct Verified {
  Class cls;
  Sel selector;
  const char* encoding;
};

constexpr std::size_t kSlots = 1 << 14;
thread_local Verified verified[kSlots];

Verified& slot_of(Class cls, Sel selector, const char* encoding) {
  const auto mix = reinterpret_cast<std::uintptr_t>(cls) * 31 +
                   reinterpret_cast<std::uintptr_t>(selector) * 17 +
                   reinterpret_cast<std::uintptr_t>(encoding);
  return verified[(mix >> 3) % kSlots];
}

void check(Class cls, Sel selector, const char* encoding) {
  Verified& slot = slot_of(cls, selector, encoding);
  if (slot.cls == cls && slot.selector == selector && slot.encoding == encoding) return;
  const Method method = class_getInstanceMethod(cls, selector);
  if (!method) return;  // The runtime reports unknown selectors itself.
  const char* answered_by = method_getTypeEncoding(method);
  if (answered_by && !same_encoding(answered_by, encoding)) {
    std::fprintf(stderr, "message %s to %s: called as %s, implemented as %s\n",
                 sel_getName(selector), class_getName(cls), encoding, answered_by);
    std::abort();
  }
  slot = {cls, selector, encoding};
}

}  // namespace

void check_call(Id receiver, Sel selector, const char* encoding) {
  check(class_of(receiver), selector, encoding);
}

void check_super_call(SuperReceiver target, Sel selector, const char* encoding) {
  check(target.first_searched, selector, encoding);
}

}  // namespace objc
