#pragma once

#include <span>
#include <string_view>

namespace host {

/// A framework or library of the device, as the dynamic linker knows it.
struct DeviceImage {
  std::string_view path;                    ///< The path of its file.
  std::span<const std::string_view> needs;  ///< The paths of those that are loaded before it.
  void (*load)();                           ///< Registers its classes; nullptr if it has none.
  std::span<const std::string_view> classes = {};  ///< The names of its classes.
};

/// Sets the device's images. None of them is loaded yet.
void set_device_images(std::span<const DeviceImage> images);

/// Loads the image into the process, after the images it needs. Idempotent. Returns false when the
/// device has no image at this path.
bool load_device_image(std::string_view path);

/// Loads the image that has a class with this name, if there is one.
void load_image_of_class(std::string_view name);

}  // namespace host
