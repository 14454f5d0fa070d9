#include <dlfcn.h>

#include <algorithm>
#include <filesystem>
#include <memory>

#include "host/console/globals.h"
#include "host/runtime/log.h"
#include "tests/macho/loader/loaded_image.h"
#include "tests/macho/loader/phone_symbols.h"

// An extension for the desktop with no function of its own: it maps the library in the phone's file
// format that is next to it, and exports that library's table to the console.

namespace {

using host::console::ExportedGlobal;

constexpr std::size_t kMostGlobals = 256;

}  // namespace

extern "C" [[gnu::visibility("default")]] ExportedGlobal exported_globals[kMostGlobals];
ExportedGlobal exported_globals[kMostGlobals] = {};

namespace {

using namespace macho_tests;

std::filesystem::path phone_library() {
  Dl_info here{};
  dladdr(exported_globals, &here);
  return std::filesystem::path(here.dli_fname).replace_extension(".dylib");
}

/// Loads the libraries that the image is linked to.
void load_libraries_of(const Image& image) {
  for (const std::string& each : image.libraries())
    if (!dlopen(each.c_str(), RTLD_LAZY))
      throw FormatError("it needs " + each + ", which the phone does not have");
}

/// The last of the `kMostGlobals` entries marks the end of the table.
void show_globals(const LoadedImage& image) {
  const auto* row = static_cast<const ExportedGlobal*>(image.exported("_exported_globals"));
  for (std::size_t i = 0; row && row->name && i + 1 < kMostGlobals; ++i)
    exported_globals[i] = *row++;
}

[[gnu::constructor]] void load() {
  const auto file = phone_library();
  try {
    const Image image(read_file(file), kOwnProcessor);
    load_libraries_of(image);
    // Never unloaded: its methods belong to classes that cannot be removed.
    static const LoadedImage* loaded = new LoadedImage(image, &find_phone_symbol);
    show_globals(*loaded);
    loaded->run_initialisers();
    spdlog::info("{} runs, with {} symbols bound", file.filename().string(),
                 loaded->count_of_bindings());
  } catch (const FormatError& problem) {
    spdlog::error("{} does not run: {}", file.string(), problem.what());
  }
}

}  // namespace
