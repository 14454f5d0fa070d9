#pragma once

#include "objc/abi.h"
#include "objc/fixed_string.h"

namespace objc {

template <FixedString Name>
inline constinit Sel cached_selector = nullptr;

/// The selector of that name, registered with the runtime at its first use and cached from then on.
template <FixedString Name>
inline Sel selector() {
  Sel found = __atomic_load_n(&cached_selector<Name>, __ATOMIC_RELAXED);
  if (found) [[likely]]
    return found;
  found = sel_registerName(Name.c_str());
  __atomic_store_n(&cached_selector<Name>, found, __ATOMIC_RELAXED);
  return found;
}

inline namespace literals {

template <FixedString Name>
inline Sel operator""_sel() {
  return selector<Name>();
}

}  // namespace literals
}  // namespace objc

using namespace objc::literals;
