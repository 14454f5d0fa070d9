#pragma once

#include "objc/abi.h"
#include "objc/fixed_string.h"

namespace objc {

template <FixedString Name>
inline constinit Sel cached_selector = nullptr;

/// The cached selector. The first use registers it with the runtime.
inline Sel cached(Sel& cache, const char* name) {
  Sel found = __atomic_load_n(&cache, __ATOMIC_RELAXED);
  if (found) [[likely]]
    return found;
  found = sel_registerName(name);
  __atomic_store_n(&cache, found, __ATOMIC_RELAXED);
  return found;
}

template <FixedString Name>
inline Sel selector() {
  return cached(cached_selector<Name>, Name.c_str());
}

inline namespace literals {

template <FixedString Name>
inline Sel operator""_sel() {
  return selector<Name>();
}

}  // namespace literals
}  // namespace objc

using namespace objc::literals;
