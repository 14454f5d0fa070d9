#include "objc/class_builder.h"

namespace objc {
namespace {

constexpr unsigned char kPointerAlignment = 3;

}  // namespace

ClassBuilder::ClassBuilder(const char* name, const char* base) {
  const Class base_class = objc_getClass(base);
  if (base_class) cls_ = objc_allocateClassPair(base_class, name, 0);
}

Class ClassBuilder::finish() {
  if (!cls_) return nullptr;
  objc_registerClassPair(cls_);
  if (find_offset_) find_offset_(cls_);
  return cls_;
}

void ClassBuilder::add_storage(std::size_t size) {
  // The runtime rejects an instance variable whose name a superclass already uses, and every class
  // here names its storage after itself. The unfinished class is abandoned: a class that is not
  // registered cannot be found.
  if (!class_addIvar(cls_, class_getName(cls_), size, kPointerAlignment, "?")) cls_ = nullptr;
}

void ClassBuilder::add_field(const char* name, const char* encoding) {
  if (cls_ && !class_addIvar(cls_, name, sizeof(void*), kPointerAlignment, encoding))
    cls_ = nullptr;
}

std::ptrdiff_t ClassBuilder::storage_offset(Class cls) {
  return ivar_getOffset(class_getInstanceVariable(cls, class_getName(cls)));
}

}  // namespace objc
