#include "host/foundation/loader.h"

#include <dlfcn.h>

#include <algorithm>
#include <filesystem>

#include "host/foundation/device_paths.h"
#include "host/foundation/load_filter.h"
#include "host/foundation/load_guard.h"
#include "host/runtime/log.h"
#include "objc/autorelease_pool.h"

namespace host::foundation {
namespace {

constexpr std::string_view kLibraries = "/Library/MobileSubstrate/DynamicLibraries";
constexpr std::string_view kMarks = "/var/mobile/Library/Caches/loader";

std::vector<LoadedLibrary> loaded;

std::vector<std::filesystem::path> library_files() {
  std::vector<std::filesystem::path> files;
  std::error_code error;
  for (const auto& entry :
       std::filesystem::directory_iterator(path_on_this_machine(kLibraries), error)) {
    if (entry.path().extension() == ".so") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

bool is_wanted(const std::string& name, std::string_view bundle, std::string_view executable) {
  const std::string list = std::string(kLibraries) + "/" + name + ".plist";
  const Admission answer = admission(list, bundle, executable);
  if (answer == Admission::kNoFilter)
    spdlog::warn("{} is left out: {} has no process filter", name, list);
  return answer == Admission::kAdmitted;
}

void load(const std::filesystem::path& file, const std::string& name) {
  LoadGuard guard(file, path_on_this_machine(kMarks));
  if (guard.is_given_up()) {
    spdlog::error(
        "{} is left out: it crashed {} times while being loaded (replace {} to try again)", name,
        guard.crashes(), file.string());
    return;
  }
  guard.will_load();
  void* handle = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  guard.did_load();
  if (!handle) {
    spdlog::error("{} is left out: {}", name, dlerror());
    return;
  }
  loaded.push_back({name, handle});
  spdlog::info("loaded {}", name);
}

}  // namespace

std::vector<LoadedLibrary> load_libraries(std::string_view bundle_identifier,
                                          std::string_view executable) {
  objc::AutoreleasePool pool;
  const std::size_t before = loaded.size();
  for (const auto& file : library_files()) {
    const std::string name = file.stem().string();
    if (is_wanted(name, bundle_identifier, executable)) load(file, name);
  }
  return {loaded.begin() + static_cast<std::ptrdiff_t>(before), loaded.end()};
}

const std::vector<LoadedLibrary>& loaded_libraries() {
  return loaded;
}

}  // namespace host::foundation
