#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace host {

/// A model of phone or tablet that this desktop can be.
struct DeviceModel {
  std::string_view identifier;  // what `uname` gives as the machine
  std::string_view name;        // what people call it
  double width;                 // of the screen, in points
  double height;
  double scale;  // pixels a point
  bool is_tablet;
};

inline constexpr std::string_view kDefaultDevice = "iPhone7,2";

std::span<const DeviceModel> device_models();
std::optional<DeviceModel> device_model(std::string_view identifier);

/// The model that this process is; the default one until it is chosen.
const DeviceModel& current_device();
void set_current_device(const DeviceModel& model);

}  // namespace host
