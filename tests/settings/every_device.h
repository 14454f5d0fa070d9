#pragma once

#include <gtest/gtest.h>

#include <string>

#include "host/runtime/device_model.h"
#include "platform/UIKit/UIScreen.h"

namespace host {

inline void PrintTo(const DeviceModel& model, std::ostream* stream) {
  *stream << model.name;
}

}  // namespace host

namespace sonavue::test {

/// Runs a test of pages on the screen of every device.
template <class Pages>
class OnEveryDevice : public Pages, public testing::WithParamInterface<host::DeviceModel> {
 protected:
  OnEveryDevice() {
    host::set_current_device(GetParam());
    this->window.setFrame(UIScreen::mainScreen().bounds());
  }
  ~OnEveryDevice() override { host::set_current_device(*host::device_model(host::kDefaultDevice)); }

  void photograph_device(const std::string& name) {
    this->photograph(name + "-" + std::string(GetParam().identifier));
  }
};

inline auto every_device() {
  return testing::ValuesIn(host::device_models());
}

/// The suffix of a test's name for that device.
inline std::string device_name(const testing::TestParamInfo<host::DeviceModel>& device) {
  std::string name(device.param.name);
  std::erase(name, ' ');
  return name;
}

}  // namespace sonavue::test
