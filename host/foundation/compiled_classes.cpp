#include <dlfcn.h>
#include <fmt/format.h>

#include <algorithm>
#include <limits>
#include <set>
#include <string>

#include "host/foundation/loader.h"
#include "host/runtime/device_images.h"
#include "host/runtime/exported.h"
#include "host/runtime/log.h"
#include "objc/abi.h"

// A compiler of Objective-C puts the size of a class's objects, and the places of its variables,
// into the library. They depend on the size of its base in the headers that it was compiled with.
// Here they are compared with the class as it is, before the runtime gets to know it: a variable
// within the base's own state would overwrite it.

extern "C" std::size_t class_getInstanceSize(objc::Class cls);

namespace {

// The layouts of the compiler.
struct CompiledVariable {
  const char* name;
  const char* type;
  int offset;
};

struct CompiledVariables {
  int count;
  CompiledVariable first;
};

struct CompiledClass {
  CompiledClass* metaclass;
  const char* base;  // the runtime replaces the name by the class
  const char* name;
  long version;
  unsigned long info;
  long instance_size;
  CompiledVariables* variables;
};

struct CompiledSymbols {
  unsigned long selector_count;
  void* selectors;
  unsigned short class_count;
  unsigned short category_count;
  CompiledClass* classes[1];  // as many as there are, then categories
};

struct CompiledModule {
  unsigned long version;
  unsigned long size;
  const char* name;
  CompiledSymbols* symbols;
};

/// The classes of one module, which may be bases of each other.
class ModuleClasses {
 public:
  explicit ModuleClasses(const CompiledModule& module)
      : begin_(module.symbols->classes), end_(begin_ + module.symbols->class_count) {}

  void settle() const {
    for (auto* each = begin_; each != end_; ++each)
      settle(**each);
  }

 private:
  /// Gives the class room for its base. Ends the process if its variables are in the way.
  void settle(CompiledClass& cls) const {
    if (!cls.base) return;
    const long needed = size_of(cls.base);
    const auto* variables = cls.variables;
    if (variables && variables->count > 0 && variables->first.offset < needed) {
      host::foundation::refuse_current_library(fmt::format(
          "its class {} was compiled when the objects of {} were smaller ({} bytes, {} now); "
          "compile it again, with new headers",
          cls.name, cls.base, variables->first.offset, needed));
    }
    cls.instance_size = std::max(cls.instance_size, needed);
  }

  long size_of(const char* name) const {
    const auto own = std::find_if(begin_, end_, [name](const CompiledClass* each) {
      return std::string_view(each->name) == name;
    });
    if (own != end_) {
      settle(**own);
      return (*own)->instance_size;
    }
    host::load_image_of_class(name);
    const objc::Class cls = objc_getClass(name);
    return cls ? static_cast<long>(class_getInstanceSize(cls)) : 0;
  }

  CompiledClass** begin_;
  CompiledClass** end_;
};

}  // namespace

// The start-up code of each compiled file calls this.
SONAVUE_EXPORTED void __objc_exec_class(CompiledModule* module) {
  static const auto next =
      reinterpret_cast<decltype(&__objc_exec_class)>(dlsym(RTLD_NEXT, "__objc_exec_class"));
  if (host::foundation::is_loading_library()) ModuleClasses(*module).settle();
  next(module);
}

// Compiled messages to a class look it up with this. The runtime's own ends the process when there
// is no such class; messages to nil go nowhere instead.
SONAVUE_EXPORTED objc::Class objc_get_class(const char* name) {
  if (const objc::Class found = objc_getClass(name)) return found;
  host::load_image_of_class(name);
  const objc::Class found = objc_getClass(name);
  static std::set<std::string> missing;
  if (!found && missing.insert(name).second) {
    const std::string library = host::foundation::library_with(__builtin_return_address(0));
    spdlog::warn("{} sends messages to the class {}, which this process does not have",
                 library.empty() ? "a library" : library, name);
  }
  return found;
}
