#include "host/foundation/device_paths.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "host/foundation/atomic_write.h"
#include "host/foundation/errors.h"
#include "host/foundation/exports.h"
#include "host/runtime/class_family.h"
#include "platform/Foundation/NSData.h"

namespace host::foundation {
namespace {

constexpr std::array<std::string_view, 4> kDeviceFolders{"/var/mobile", "/Library", "/System",
                                                         "/Applications"};
std::string root;
std::string root_without_links;

bool is_inside(std::string_view path, std::string_view folder) {
  return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

objc::Imp original_of_string = nullptr;
objc::Imp original_of_manager = nullptr;

// The result is autoreleased: callers use a file system representation before their pool ends.
const char* mapped(const char* path) {
  if (!path) return path;
  const std::string real = path_on_this_machine(path);
  return real == path ? path : NSString::stringWithUTF8String(real.c_str()).UTF8String();
}

const char* string_representation(NSString self) {
  using Function = const char* (*)(objc::Id, objc::Sel);
  const auto original = reinterpret_cast<Function>(original_of_string);
  return mapped(original(self.id(), "fileSystemRepresentation"_sel));
}

const char* manager_representation(NSObject self, NSString path) {
  using Function = const char* (*)(objc::Id, objc::Sel, objc::Id);
  const auto original = reinterpret_cast<Function>(original_of_manager);
  return mapped(original(self.id(), "fileSystemRepresentationWithPath:"_sel, path.id()));
}

// NSData writes to the literal path, so it gets the mapped one. Its atomic write is not safe when
// the process or the machine stops meanwhile, and replaces links: it is done here.
constexpr NSUInteger kAtomically = 1;
objc::Imp original_write = nullptr;

BOOL write_data(NSData self, NSString path, NSUInteger options, objc::Id* error) {
  using Function = BOOL (*)(objc::Id, objc::Sel, objc::Id, NSUInteger, objc::Id*);
  const char* real = mapped(path.UTF8String());
  if (!real || (options & kAtomically) == 0) {
    const auto original = reinterpret_cast<Function>(original_write);
    const NSString name = real ? NSString::stringWithUTF8String(real) : NSString();
    return original(self.id(), "writeToFile:options:error:"_sel, name.id(), options, error);
  }
  const std::error_code failure =
      write_atomically(real, {static_cast<const char*>(self.bytes()), self.length()});
  if (failure && error) *error = system_error(failure).id();
  return failure ? NO : YES;
}

}  // namespace

void set_device_root(std::string new_root) {
  while (new_root.size() > 1 && new_root.back() == '/')
    new_root.pop_back();
  root = std::move(new_root);
  std::error_code error;
  root_without_links = root.empty() ? "" : std::filesystem::weakly_canonical(root, error).string();
}

const std::string& device_root() {
  return root;
}

std::string path_on_this_machine(std::string_view device_path) {
  const bool of_device = !root.empty() && !is_inside(device_path, root) &&
                         std::any_of(kDeviceFolders.begin(), kDeviceFolders.end(),
                                     [&](auto folder) { return is_inside(device_path, folder); });
  return of_device ? root + std::string(device_path) : std::string(device_path);
}

std::string path_on_device(std::string_view path) {
  for (const std::string& each : {root, root_without_links})
    if (!each.empty() && is_inside(path, each)) return std::string(path.substr(each.size()));
  return std::string(path);
}

void export_device_paths() {
  if (original_of_string) return;
  original_of_string = replace_in_family<&string_representation>(objc_getClass("NSString"),
                                                                 "fileSystemRepresentation");
  original_of_manager = replace_in_family<&manager_representation>(
      objc_getClass("NSFileManager"), "fileSystemRepresentationWithPath:");
  original_write =
      replace_in_family<&write_data>(objc_getClass("NSData"), "writeToFile:options:error:");
}

}  // namespace host::foundation
