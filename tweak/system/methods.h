#pragma once

#include "objc/class_builder.h"

// The rows of the table of methods that the extension adds to the system.

namespace sonavue {

struct AddedMethod {
  const char* selector;
  objc::Imp body;
  const char* types;
};

template <auto Function>
AddedMethod adds(const char* selector) {
  return {selector, reinterpret_cast<objc::Imp>(&objc::MethodOf<Function>::call),
          objc::MethodOf<Function>::encoding.c_str()};
}

}  // namespace sonavue
