#include "host/runtime/hooking.h"

#include "host/runtime/class_family.h"
#include "host/runtime/class_lists.h"
#include "host/runtime/compiled_selector.h"

namespace {

// Returns the class's own method, not one that it inherits.
objc::Method own_method(objc::Class cls, objc::Sel selector) {
  const host::ClassMethods methods(cls);
  for (const objc::Method method : methods.items()) {
    if (sel_isEqual(method_getName(method), selector)) return method;
  }
  return nullptr;
}

}  // namespace

void MSHookMessageEx(objc::Class cls, objc::Sel selector, objc::Imp replacement,
                     objc::Imp* original) {
  if (const host::CompiledSelector* early = host::as_unregistered(selector))
    selector = sel_registerTypedName(early->name, early->types);
  const objc::Method answering = cls ? class_getInstanceMethod(cls, selector) : nullptr;
  if (!answering) return;
  const objc::Imp before = method_getImplementation(answering);
  if (original) *original = before;
  if (const objc::Method own = own_method(cls, selector)) {
    method_setImplementation(own, replacement);
    // The runtime updates only the class's own dispatch table. A subclass has its inherited methods
    // in a separate table or shares part of this one, unpredictably.
    host::refresh_family(cls);
  } else {
    class_addMethod(cls, selector, replacement, method_getTypeEncoding(answering));
  }
}
