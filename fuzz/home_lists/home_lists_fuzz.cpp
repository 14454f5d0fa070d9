#include <stdlib.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "host/activator/assignment/assignments.h"
#include "host/applications/loader/loader_entries.h"
#include "host/foundation/device_paths.h"
#include "host/foundation/exports.h"
#include "host/foundation/load_filter.h"
#include "host/runtime/log.h"
#include "host/springboard/model/application_catalog.h"
#include "host/springboard/model/default_layout.h"
#include "host/springboard/model/icon_state.h"
#include "objc/autorelease_pool.h"
#include "platform/Foundation/NSDictionary.h"

namespace fs = std::filesystem;
using namespace host;

namespace {

constexpr const char* kLoaderEntry = "/Library/PreferenceLoader/Preferences/Input.plist";
constexpr const char* kInformation = "/Applications/Input.app/Info.plist";

NSString text(const char* utf8) {
  return NSString::stringWithUTF8String(utf8);
}

/// Writes the input where the device has such a list. It replaces the file, as installers do.
const char* put(const char* path, std::string_view bytes) {
  const std::string file = foundation::path_on_this_machine(path);
  fs::remove(file);
  std::ofstream(file, std::ios::binary) << bytes;
  return path;
}

void remove_device() {
  fs::remove_all(foundation::device_root());
}

void arrange_icons(const char* path) {
  constexpr springboard::HomeLayout::Capacity kCapacity{4, 2, 9};
  foundation::PropertyListFile file(path);
  const auto layout = springboard::read_icon_state(file, kCapacity);
  fs::remove(foundation::path_on_this_machine(path) + ".damaged");
  if (!layout) return;
  const auto fitted = springboard::fit_to_installed(*layout, {{"a", "A", {}}, {"b", "B", {}}});
  if (fitted.applications().size() != 2) std::abort();
}

/// What is read is written and read again as the same.
void keep_assignments(NSString path) {
  using activator::Assignments;
  const auto read = Assignments::from(NSDictionary::dictionaryWithContentsOfFile(path));
  if (!read) return;
  const auto again = Assignments::from(read->property_list());
  if (!again || !again->property_list().isEqualToDictionary(read->property_list())) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  spdlog::set_level(spdlog::level::off);
  std::string root = (fs::temp_directory_path() / "fuzz-device-XXXXXX").string();
  foundation::set_device_root(::mkdtemp(root.data()));
  std::atexit(&remove_device);
  const objc::AutoreleasePool pool;
  foundation::export_foundation();
  for (const char* file : {kLoaderEntry, kInformation})
    fs::create_directories(fs::path(foundation::path_on_this_machine(file)).parent_path());
  return 0;
}

// The first byte selects the list.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1) return 0;
  const objc::AutoreleasePool pool;
  const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);
  switch (data[0] % 5) {
    case 0:
      arrange_icons(put("/Library/Input.plist", bytes));
      break;
    case 1:
      keep_assignments(text(put("/Library/Input.plist", bytes)));
      break;
    case 2:
      foundation::admission(put("/Library/Input.plist", bytes), "a", "b");
      break;
    case 3:
      put(kLoaderEntry, bytes);
      settings::read_loader_entries();
      break;
    default:
      put(kInformation, bytes);
      springboard::read_applications("/Applications"_ns);
  }
  return 0;
}
