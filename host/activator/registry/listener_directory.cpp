#include "host/activator/registry/listener_directory.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <cmath>

#include "host/activator/event/strings.h"
#include "host/basics/user_warning.h"
#include "host/files/folder.h"
#include "host/files/replace_file.h"
#include "host/foundation/device_paths.h"
#include "host/foundation/property_list_file.h"
#include "host/quartzcore/drawing/image.h"
#include "host/runtime/log.h"
#include "platform/Foundation/NSArray.h"

namespace host::activator {
namespace {

/// Converts any name to a file name; different names get different file names.
std::string file_name(std::string_view name) {
  std::string made;
  for (const char byte : name) {
    const auto value = static_cast<unsigned char>(byte);
    const bool plain = std::isalnum(value) != 0 || byte == '.' || byte == '-';
    made += plain ? std::string(1, byte) : fmt::format("%{:02X}", value);
  }
  return made;
}

cairo_status_t append(void* bytes, const unsigned char* more, unsigned count) {
  static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(more), count);
  return CAIRO_STATUS_SUCCESS;
}

std::error_code write_png(const std::string& path, cairo_surface_t* surface) {
  std::string bytes;
  const cairo_status_t status = cairo_surface_write_to_png_stream(surface, &append, &bytes);
  // Only a lack of memory makes this fail.
  if (status != CAIRO_STATUS_SUCCESS) return std::make_error_code(std::errc::not_enough_memory);
  return files::replace_file(path, bytes).error;
}

objc::Object written(const ListenerRecord& record) {
  const auto entry = NSMutableDictionary::dictionary();
  entry.setObject(to_ns(record.name), "name"_ns);
  entry.setObject(to_ns(record.title), "title"_ns);
  entry.setObject(to_ns(record.description), "description"_ns);
  entry.setObject(to_ns(record.group), "group"_ns);
  entry.setObject(to_ns(record.icon), "icon"_ns);
  if (!record.modes) return entry;
  const auto modes = NSMutableArray::array();
  for (const std::string& mode : *record.modes)
    modes.addObject(to_ns(mode));
  entry.setObject(modes, "modes"_ns);
  return entry;
}

ListenerRecord record_in(NSDictionary entry) {
  ListenerRecord record;
  record.name = to_string(entry.objectForKey("name"_ns));
  record.title = to_string(entry.objectForKey("title"_ns));
  record.description = to_string(entry.objectForKey("description"_ns));
  record.group = to_string(entry.objectForKey("group"_ns));
  record.icon = to_string(entry.objectForKey("icon"_ns));
  const auto modes = objc::cast<NSArray>(entry.objectForKey("modes"_ns));
  if (!modes.isKindOfClass(NSArray::cls())) return record;
  record.modes.emplace();
  for (const objc::Object mode : modes.of())
    record.modes->push_back(to_string(mode));
  return record;
}

}  // namespace

std::vector<ListenerRecord> ListenerDirectory::read() const {
  const NSDictionary list = foundation::PropertyListFile(path_).read();
  const auto entries = objc::cast<NSArray>(list.objectForKey("listeners"_ns));
  std::vector<ListenerRecord> records;
  if (!entries.isKindOfClass(NSArray::cls())) return records;
  for (const NSDictionary entry : entries.of<NSDictionary>()) {
    if (!entry.isKindOfClass(NSDictionary::cls())) continue;
    ListenerRecord record = record_in(entry);
    if (!record.name.empty()) records.push_back(std::move(record));
  }
  std::sort(records.begin(), records.end(), [](const auto& one, const auto& other) {
    return std::pair(one.shown_title(), one.name) < std::pair(other.shown_title(), other.name);
  });
  return records;
}

ListenerRecord ListenerDirectory::find(const std::string& name) const {
  for (ListenerRecord& record : read()) {
    if (record.name == name) return record;
  }
  ListenerRecord unknown;
  unknown.name = name;
  return unknown;
}

bool ListenerDirectory::write(const std::vector<ListenerRecord>& records) const {
  const auto entries = NSMutableArray::array();
  for (const ListenerRecord& record : records)
    entries.addObject(written(record));
  return foundation::PropertyListFile(path_).write(
      NSDictionary::dictionaryWithObject(entries, "listeners"_ns));
}

std::string ListenerDirectory::keep_icon(const std::string& listener, UIImage icon) const {
  const quartzcore::Image* image = quartzcore::image_of(icon.CGImage());
  if (!image) return {};
  // The file name contains the scale, as for all pictures on the platform.
  const long scale = std::lround(icon.scale());
  const std::string suffix = scale > 1 ? fmt::format("@{}x", scale) : "";
  const std::string path = fmt::format("{}/icons/{}{}.png", path_.substr(0, path_.rfind('/')),
                                       file_name(listener), suffix);
  const std::string place = foundation::path_on_this_machine(path);
  files::make_folders(files::folder_of(place));
  const auto error = write_png(place, image->surface().get());
  if (!error) return path;
  spdlog::warn("the icon of gesture listener {} could not be kept: {}", listener, error.message());
  warn_user(kDiskWarning);
  return {};
}

}  // namespace host::activator
