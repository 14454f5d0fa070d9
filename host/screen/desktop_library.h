#pragma once

#include <dlfcn.h>

namespace host::screen {

/// Calls `function` of a library that SDL has loaded for its desktop, with one parameter; returns
/// `otherwise` without it. It is looked up by name, because linking would require the libraries of
/// both desktops.
template <class Result>
Result ask_desktop(const char* library, const char* function, void* parameter, Result otherwise) {
  void* loaded = dlopen(library, RTLD_LAZY | RTLD_NOLOAD);
  if (!loaded) return otherwise;
  const auto found = reinterpret_cast<Result (*)(void*)>(dlsym(loaded, function));
  const Result result = found ? found(parameter) : otherwise;
  dlclose(loaded);
  return result;
}

}  // namespace host::screen
