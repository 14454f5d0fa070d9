#include "host/foundation/bundles.h"

#include <filesystem>
#include <utility>

#include "host/foundation/device_paths.h"
#include "host/foundation/exports.h"
#include "host/runtime/class_family.h"
#include "host/runtime/device_images.h"
#include "platform/Foundation/NSBundle.h"

namespace host::foundation {
namespace {

objc::Imp original_main = nullptr;
objc::Imp original_load = nullptr;
std::string main_path;

NSBundle main_bundle(NSObject cls) {
  const auto original = reinterpret_cast<objc::Id (*)(objc::Id, objc::Sel)>(original_main);
  NSBundle found;
  if (!main_path.empty())
    found = NSBundle::bundleWithPath(NSString::stringWithUTF8String(main_path.c_str()));
  return found ? found : objc::cast<NSBundle>(objc::Object(original(cls.id(), "mainBundle"_sel)));
}

/// Foundation resolves a bundle's folder to a path on this machine; callers expect device paths.
NSString device_path(objc::Id path) {
  const char* found = objc::wrap<NSString>(path).UTF8String();
  return found ? NSString::stringWithUTF8String(path_on_device(found).c_str()) : nil;
}

template <objc::FixedString Selector>
objc::Imp original_resource_path = nullptr;

template <objc::FixedString Selector>
NSString path_of(NSBundle self) {
  using Function = objc::Id (*)(objc::Id, objc::Sel);
  return device_path(reinterpret_cast<Function>(original_resource_path<Selector>)(
      self.id(), sel_registerName(Selector.c_str())));
}

template <objc::FixedString Selector>
void replace_path() {
  original_resource_path<Selector> =
      replace_in_family<&path_of<Selector>>(NSBundle::cls(), Selector.c_str());
}

// The device's bundles are flat.
NSString resource_path(NSBundle self) {
  const NSString path = path_of<"resourcePath">(self);
  std::error_code ignored;
  const bool is_there = std::filesystem::exists(path_on_this_machine(path.UTF8String()), ignored);
  return is_there ? path : self.bundlePath();
}

NSString path_of_resource(NSBundle self, NSString name, NSString extension) {
  using Function = objc::Id (*)(objc::Id, objc::Sel, objc::Id, objc::Id);
  return device_path(reinterpret_cast<Function>(original_resource_path<"pathForResource:ofType:">)(
      self.id(), "pathForResource:ofType:"_sel, name.id(), extension.id()));
}

// A framework has no file on the disk: its code is part of the system's single image.
BOOL load_bundle(NSBundle self) {
  const std::filesystem::path folder = self.bundlePath().UTF8String();
  if (load_device_image((folder / folder.stem()).string())) return YES;
  return reinterpret_cast<BOOL (*)(objc::Id, objc::Sel)>(original_load)(self.id(), "load"_sel);
}

}  // namespace

void set_main_bundle(std::string device_path) {
  main_path = std::move(device_path);
}

void export_bundles() {
  if (original_main) return;
  const objc::Class cls = NSBundle::cls();
  original_main = replace_in_family<&main_bundle>(objc::class_of(reinterpret_cast<objc::Id>(cls)),
                                                  "mainBundle");
  replace_path<"bundlePath">();
  original_resource_path<"resourcePath"> = replace_in_family<&resource_path>(cls, "resourcePath");
  replace_path<"executablePath">();
  original_resource_path<"pathForResource:ofType:"> =
      replace_in_family<&path_of_resource>(cls, "pathForResource:ofType:");
  original_load = replace_in_family<&load_bundle>(cls, "load");
}

}  // namespace host::foundation
