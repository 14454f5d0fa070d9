#pragma once

#include <span>
#include <string_view>

namespace host {

/// A framework or library of the device, as the dynamic linker knows it.
struct DeviceImage {
  std::string_view path;                    ///< The path of its file.
  std::span<const std::string_view> needs;  ///< The paths of those that are loaded before it.
  void (*load)();                           ///< Registers its classes; nullptr if it has none.
};

/// Sets the device's images. None of them is loaded yet.
void set_device_images(std::span<const DeviceImage> images);

/// Loads the image into the process, after the images it needs. Idempotent. Returns false when the
/// device has no image at this path.
bool load_device_image(std::string_view path);

}  // namespace host
