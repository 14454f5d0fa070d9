#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace host {

/// A model of phone or tablet that this desktop can simulate.
struct DeviceModel {
  std::string_view identifier;  // the machine that `uname` reports
  std::string_view name;        // the name that people use
  double width;                 // of the screen, in points
  double height;
  double scale;  // in pixels per point
  bool is_tablet;
};

inline constexpr std::string_view kDefaultDevice = "iPhone7,2";

std::span<const DeviceModel> device_models();
std::optional<DeviceModel> device_model(std::string_view identifier);

/// The model that this process simulates; the default one until another is set.
const DeviceModel& current_device();
void set_current_device(const DeviceModel& model);

}  // namespace host
