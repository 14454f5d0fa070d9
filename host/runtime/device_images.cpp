#include "host/runtime/device_images.h"

#include <algorithm>
#include <set>

namespace host {
namespace {

std::span<const DeviceImage> device_images;

std::set<std::string_view>& loaded_paths() {
  static std::set<std::string_view> paths;
  return paths;
}

}  // namespace

void set_device_images(std::span<const DeviceImage> images) {
  device_images = images;
}

bool load_device_image(std::string_view path) {
  const auto found = std::find_if(device_images.begin(), device_images.end(),
                                  [path](const DeviceImage& image) { return image.path == path; });
  if (found == device_images.end()) return false;
  if (!loaded_paths().insert(found->path).second) return true;
  for (const std::string_view needed : found->needs)
    load_device_image(needed);
  if (found->load) found->load();
  return true;
}

void load_image_of_class(std::string_view name) {
  for (const DeviceImage& image : device_images) {
    if (std::find(image.classes.begin(), image.classes.end(), name) != image.classes.end())
      load_device_image(image.path);
  }
}

}  // namespace host
