#include "host/process/library_globals.h"

#include <dlfcn.h>

#include "host/foundation/loader.h"

namespace host::process {

console::Globals globals_of_libraries() {
  console::Globals globals;
  for (const auto& library : foundation::loaded_libraries()) {
    const void* table = dlsym(library.handle, console::Globals::kTableSymbol);
    globals.add_table(static_cast<const console::ExportedGlobal*>(table));
  }
  return globals;
}

}  // namespace host::process
