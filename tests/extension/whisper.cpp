// Another extension, unlike ours: it replaces a method of Foundation's strings and has no state
// except the previous implementation.

#include "objc/hook.h"
#include "objc/send.h"
#include "platform/Foundation/NSString.h"

namespace {

objc::Imp original = nullptr;

objc::Id whispered_uppercase(objc::Id self, objc::Sel selector) {
  using Body = objc::Id (*)(objc::Id, objc::Sel);
  const auto loud = objc::wrap<NSString>(reinterpret_cast<Body>(original)(self, selector));
  return loud.stringByAppendingString(" (whispered)"_ns).id();
}

[[gnu::constructor]] void load() {
  // Messages to constant strings reach this class.
  const objc::Class strings = objc::class_of("text"_ns.id());
  MSHookMessageEx(strings, "uppercaseString"_sel, reinterpret_cast<objc::Imp>(&whispered_uppercase),
                  &original);
}

}  // namespace
