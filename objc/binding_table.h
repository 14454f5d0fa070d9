#pragma once

#include "objc/fixed_string.h"

namespace objc {

/// One method that the bindings declare. A test walks the list and looks each up in the runtime.
struct Binding {
  const char* class_name;
  const char* selector;
  const char* encoding;
  bool of_class;
  const Binding* next;

  static inline const Binding* first = nullptr;

  Binding(const char* cls, const char* sel, const char* types, bool on_class)
      : class_name(cls), selector(sel), encoding(types), of_class(on_class), next(first) {
    first = this;
  }
};

template <FixedString Name, FixedString Selector, bool OfClass, FixedString Encoding>
struct NotedBinding {
  static inline const Binding noted{Name.c_str(), Selector.c_str(), Encoding.c_str(), OfClass};
};

}  // namespace objc
