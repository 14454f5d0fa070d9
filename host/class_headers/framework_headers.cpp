#include "host/class_headers/framework_headers.h"

#include <fmt/format.h>

#include <map>
#include <vector>

#include "host/class_headers/class_text.h"
#include "host/files/folder.h"
#include "host/files/replace_file.h"
#include "host/process/device_images.h"

extern "C" {
int objc_getClassList(objc::Class* buffer, int capacity);
objc::Protocol* objc_copyProtocolList(unsigned* count);
}

namespace host::class_headers {
namespace {

constexpr const char* kHooking =
    "#import <objc/objc.h>\n\n"
    "/* Replaces a method; `original` receives what was there. */\n"
    "void MSHookMessageEx(Class cls, SEL selector, IMP replacement, IMP *original);\n";

constexpr const char* kNotifications =
    "#import <Foundation/Foundation.h>\n\n"
    "/* Notifications between processes: names without contents. */\n"
    "typedef void *CFNotificationCenterRef;\n"
    "typedef void (*CFNotificationCallback)(CFNotificationCenterRef center, void *observer,\n"
    "                                       NSString *name, const void *object, id userInfo);\n"
    "CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter(void);\n"
    "void CFNotificationCenterAddObserver(CFNotificationCenterRef center, const void *observer,\n"
    "                                     CFNotificationCallback callback, NSString *name,\n"
    "                                     const void *object, NSInteger behavior);\n"
    "void CFNotificationCenterRemoveObserver(CFNotificationCenterRef center,\n"
    "                                        const void *observer, NSString *name,\n"
    "                                        const void *object);\n"
    "void CFNotificationCenterPostNotification(CFNotificationCenterRef center, NSString *name,\n"
    "                                          const void *object, const void *userInfo,\n"
    "                                          unsigned char immediately);\n"
    "unsigned notify_post(const char *name);\n";

/// The methods of each class, by name.
using Methods = std::map<std::string, std::set<std::string>>;

std::vector<objc::Class> all_classes() {
  std::vector<objc::Class> classes(static_cast<std::size_t>(objc_getClassList(nullptr, 0)));
  objc_getClassList(classes.data(), static_cast<int>(classes.size()));
  return classes;
}

/// Names beginning like this are parts of Foundation that no header shows.
bool is_hidden(std::string_view name) {
  return name.starts_with("GS") || name.starts_with("_NS") || name.starts_with("__");
}

Methods all_methods() {
  Methods methods;
  for (const objc::Class cls : all_classes())
    methods[class_getName(cls)] = methods_of(cls);
  return methods;
}

std::string file_of(const std::string& framework) {
  return framework + "/" + framework + ".h";
}

/// Writes one header after the other, each with what has come since the last one.
class Writer {
 public:
  explicit Writer(std::filesystem::path folder) : folder_(std::move(folder)) {}

  void write_framework(const std::string& name) {
    std::string text = "#import <CoreGraphics/CoreGraphics.h>\n";
    for (const std::string& before : written_)
      text += fmt::format("#import <{}>\n", file_of(before));
    text += "\n";
    const std::string own = text_since();
    if (own.empty()) return;
    write(file_of(name), text + own);
    written_.push_back(name);
  }

  void write_structures() {
    write(file_of("CoreGraphics"),
          "#import <Foundation/Foundation.h>\n\n" + structures_.definitions());
  }

  void write(const std::string& name, const std::string& text) {
    if (!problem_.empty()) return;
    const auto file = folder_ / name;
    auto error = files::make_folders(file.parent_path());
    const std::string guarded = "/* Made by `sonavue --headers`. */\n#pragma once\n\n" + text;
    if (!error) error = files::replace_file(file, guarded).error;
    if (error) problem_ = fmt::format("{}: {}", file.string(), error.message());
  }

  const std::string& problem() const { return problem_; }

 private:
  std::string text_since() {
    std::string categories;
    std::map<std::string, std::string> made;
    std::string text;
    std::map<std::string, objc::Class> classes;
    for (const objc::Class cls : all_classes())
      if (!is_hidden(class_getName(cls))) classes[class_getName(cls)] = cls;
    for (const auto& [name, cls] : classes) {
      if (known_.contains(name)) {
        text += category_of(cls, "SonavueAdditions", known_[name], structures_);
      } else {
        add_class(cls, text);
      }
    }
    known_ = all_methods();
    return text;
  }

  /// A class comes after its base.
  void add_class(objc::Class cls, std::string& text) {
    const std::string name = class_getName(cls);
    if (known_.contains(name)) return;
    if (const objc::Class base = class_getSuperclass(cls)) add_class(base, text);
    known_[name] = methods_of(cls);
    text += interface_of(cls, structures_);
  }

  std::filesystem::path folder_;
  Structures structures_;
  Methods known_ = all_methods();
  std::vector<std::string> written_;
  std::string problem_;
};

}  // namespace

std::string write_headers(const std::filesystem::path& folder) {
  Writer writer(folder);
  process::start_program({});
  for (const DeviceImage& image : process::device_images()) {
    load_device_image(image.path);
    writer.write_framework(std::filesystem::path(image.path).stem());
  }
  process::start_home_screen();
  writer.write_framework("SpringBoard");
  writer.write_structures();
  writer.write("substrate.h", kHooking);
  writer.write(file_of("CoreFoundation"), kNotifications);
  return writer.problem();
}

}  // namespace host::class_headers
