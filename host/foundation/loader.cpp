#include "host/foundation/loader.h"

#include <dlfcn.h>
#include <fmt/format.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <map>

#include "host/files/folder.h"
#include "host/foundation/crash_report.h"
#include "host/foundation/device_paths.h"
#include "host/foundation/load_filter.h"
#include "host/foundation/load_guard.h"
#include "host/foundation/unanswered_messages.h"
#include "host/runtime/hang_watch.h"
#include "host/runtime/log.h"
#include "host/runtime/patience.h"
#include "objc/autorelease_pool.h"

namespace host::foundation {
namespace {

constexpr std::string_view kLibraries = "/Library/MobileSubstrate/DynamicLibraries";
// Seconds after which a load is slow, and after which it counts as endless.
constexpr double kSlowLoad = 2;
constexpr double kEndlessLoad = 10;
constexpr std::string_view kHomeScreenBundle = "com.apple.springboard";
constexpr std::string_view kMarks = "/var/mobile/Library/Caches/loader";

// The status of a process that ends itself because of a library.
constexpr int kEndedByLoader = 1;

std::vector<LoadedLibrary> loaded;

/// The library whose `dlopen` is running.
struct CurrentLoad {
  const std::string& name;
  const std::filesystem::path& file;
  LoadGuard& guard;
};
CurrentLoad* current_load = nullptr;

struct Library {
  std::filesystem::path file;
  bool is_installed = true;
};

/// By the names of their files.
using Libraries = std::map<std::string, Library>;

Libraries installed_libraries() {
  Libraries libraries;
  const std::filesystem::path folder = libraries_folder();
  std::error_code error;
  for (const std::filesystem::path& path : files::paths_in(folder, error)) {
    if (path.extension() == ".so") libraries[path.filename()] = {path};
  }
  if (error && error != std::errc::no_such_file_or_directory)
    spdlog::error("extensions are left out: {}: {}", folder.string(), error.message());
  return libraries;
}

bool is_missing(const std::filesystem::path& file) {
  std::error_code error;
  return symlink_status(file, error).type() == std::filesystem::file_type::not_found;
}

bool is_wanted(const Library& library, const std::string& name, std::string_view bundle,
               std::string_view executable) {
  auto filter = library.file;
  filter.replace_extension(".plist");
  if (!library.is_installed && is_missing(filter)) return bundle == kHomeScreenBundle;
  const std::string list = path_on_device(filter.string());
  const Admission answer = admission(list, bundle, executable);
  if (answer == Admission::kNoFilter)
    spdlog::warn("{} is left out: {} has no process filter", name, list);
  return answer == Admission::kAdmitted;
}

/// Watches the loads of one call of `load_libraries`.
class LoadWatch {
 public:
  /// Runs the load of the library that `guard` is for.
  void during(const std::string& name, LoadGuard& guard, const std::function<void()>& load) {
    guard_ = &guard;
    slow_.during(name, [&] { endless_.during(name, load); });
  }

 private:
  void end_process(const std::string& name) {
    spdlog::error("{} does not finish loading: the process ends, and leaves it out from now on",
                  name);
    guard_->will_not_load("its load did not end");
    _exit(kEndedByLoader);
  }

  LoadGuard* guard_ = nullptr;
  HangWatch slow_{patience_of(kSlowLoad), [](const std::string& name) {
                    spdlog::warn("{} is still being loaded after {} seconds", name,
                                 kSlowLoad * patience_scale());
                  }};
  HangWatch endless_{patience_of(kEndlessLoad),
                     [this](const std::string& name) { end_process(name); }};
};

std::string reason_for_giving_up(const LoadGuard& guard) {
  if (!guard.reason().empty()) return guard.reason();
  return fmt::format("it crashed {} times while being loaded", guard.crashes());
}

/// Compiled libraries refer to a class by a symbol with this beginning.
constexpr std::string_view kClassSymbol = "undefined symbol: __objc_class_name_";

std::string reason_of(std::string_view error) {
  const auto symbol = error.find(kClassSymbol);
  if (symbol == error.npos) return std::string(error);
  return fmt::format("it needs the class {}, which this home screen does not have",
                     error.substr(symbol + kClassSymbol.size()));
}

void load(const std::filesystem::path& file, const std::string& name, LoadWatch& watch) {
  LoadGuard guard(file, path_on_this_machine(kMarks));
  if (guard.is_given_up()) {
    spdlog::error("{} is left out: {} (replace {} to try again)", name, reason_for_giving_up(guard),
                  file.string());
    return;
  }
  guard.will_load();
  crash_report_begins_load(name);
  void* handle = nullptr;
  CurrentLoad current{name, file, guard};
  current_load = &current;
  watch.during(name, guard, [&] { handle = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL); });
  current_load = nullptr;
  crash_report_ends_load(name, handle);
  guard.did_load();
  if (!handle) {
    spdlog::error("{} is left out: {}", name, reason_of(dlerror()));
    return;
  }
  loaded.push_back({name, handle, file});
  spdlog::info("loaded {}", name);
}

}  // namespace

std::filesystem::path libraries_folder() {
  return path_on_this_machine(kLibraries);
}

std::vector<LoadedLibrary> load_libraries(std::string_view bundle_identifier,
                                          std::string_view executable,
                                          std::span<const std::filesystem::path> tried) {
  objc::AutoreleasePool pool;
  report_unanswered_messages();
  LoadWatch watch;
  const std::size_t before = loaded.size();
  Libraries libraries = installed_libraries();
  for (const auto& file : tried)
    libraries[file.filename()] = {file, false};
  for (const auto& [_, library] : libraries) {
    const std::string name = library.file.stem().string();
    if (is_wanted(library, name, bundle_identifier, executable)) load(library.file, name, watch);
  }
  return {loaded.begin() + static_cast<std::ptrdiff_t>(before), loaded.end()};
}

std::string library_with(const void* code) {
  Dl_info found;
  if (!dladdr(code, &found) || !found.dli_fname) return {};
  if (current_load && current_load->file == found.dli_fname) return current_load->name;
  for (const LoadedLibrary& library : loaded) {
    if (library.file == found.dli_fname) return library.name;
  }
  return {};
}

bool is_loading_library() {
  return current_load != nullptr;
}

void refuse_current_library(const std::string& reason) {
  spdlog::error("{} cannot be loaded: {}. The process ends, and leaves it out from now on",
                current_load->name, reason);
  current_load->guard.will_not_load(reason);
  _exit(kEndedByLoader);
}

const std::vector<LoadedLibrary>& loaded_libraries() {
  return loaded;
}

}  // namespace host::foundation
