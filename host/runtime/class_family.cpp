#include "host/runtime/class_family.h"

#include <vector>

extern "C" {
int objc_getClassList(objc::Class* buffer, int capacity);
// A function of the runtime that its headers do not declare.
void __objc_update_dispatch_table_for_class(objc::Class cls);
}

namespace host {
namespace {

bool descends_from(objc::Class cls, objc::Class ancestor) {
  for (; cls; cls = class_getSuperclass(cls)) {
    if (cls == ancestor) return true;
  }
  return false;
}

std::vector<objc::Class> all_classes() {
  std::vector<objc::Class> classes(static_cast<std::size_t>(objc_getClassList(nullptr, 0)));
  objc_getClassList(classes.data(), static_cast<int>(classes.size()));
  return classes;
}

}  // namespace

void refresh_family(objc::Class cls) {
  for (const objc::Class each : all_classes()) {
    const objc::Class metaclass = objc::class_of(reinterpret_cast<objc::Id>(each));
    if (descends_from(each, cls)) __objc_update_dispatch_table_for_class(each);
    if (descends_from(metaclass, cls)) __objc_update_dispatch_table_for_class(metaclass);
  }
}

objc::Imp replace_in_family(objc::Class cls, const char* name, objc::Imp body,
                            const char* encoding) {
  const objc::Sel selector = sel_registerName(name);
  const objc::Method method = cls ? class_getInstanceMethod(cls, selector) : nullptr;
  if (!method) return nullptr;
  const objc::Imp before = method_getImplementation(method);
  class_replaceMethod(cls, selector, body, encoding);
  refresh_family(cls);
  return before;
}

}  // namespace host
