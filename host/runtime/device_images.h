#pragma once

#include <span>
#include <string_view>

namespace host {

/// A framework or library of the device, as the dynamic linker knows it.
struct DeviceImage {
  std::string_view path;                    ///< Of its file.
  std::span<const std::string_view> needs;  ///< Paths of those that come in with it, and before it.
  void (*load)();                           ///< Makes its classes. nullptr for one without.
};

/// What the device has. Nothing is in the process yet.
void set_device_images(std::span<const DeviceImage> images);

/// Brings the image into the process, and before it what it needs; once, however often it is asked
/// for. False when the device has none at that path.
bool load_device_image(std::string_view path);

}  // namespace host
