#include "host/runtime/device_model.h"

#include <algorithm>
#include <array>

namespace host {
namespace {

// The sizes in points and the scales are as published by the manufacturer.
constexpr std::array kModels{
    DeviceModel{"iPhone3,1", "iPhone 4", 320, 480, 2, false},
    DeviceModel{"iPhone4,1", "iPhone 4S", 320, 480, 2, false},
    DeviceModel{"iPhone5,1", "iPhone 5", 320, 568, 2, false},
    DeviceModel{"iPhone6,1", "iPhone 5S", 320, 568, 2, false},
    DeviceModel{"iPhone7,2", "iPhone 6", 375, 667, 2, false},
    DeviceModel{"iPhone7,1", "iPhone 6 Plus", 414, 736, 3, false},
    DeviceModel{"iPad4,1", "iPad Air", 768, 1024, 2, true},
};

DeviceModel chosen = *device_model(kDefaultDevice);

}  // namespace

std::span<const DeviceModel> device_models() {
  return kModels;
}

std::optional<DeviceModel> device_model(std::string_view identifier) {
  const auto found = std::find_if(kModels.begin(), kModels.end(), [&](const DeviceModel& model) {
    return model.identifier == identifier;
  });
  if (found == kModels.end()) return std::nullopt;
  return *found;
}

const DeviceModel& current_device() {
  return chosen;
}
void set_current_device(const DeviceModel& model) {
  chosen = model;
}

}  // namespace host
