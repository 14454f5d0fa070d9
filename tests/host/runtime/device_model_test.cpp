#include "host/runtime/device_model.h"

#include <gtest/gtest.h>
#include <sys/utsname.h>

namespace {

TEST(DeviceModel, EveryModelIsFoundByItsIdentifier) {
  EXPECT_EQ(host::device_models().size(), 7u);
  for (const auto& model : host::device_models()) {
    const auto found = host::device_model(model.identifier);
    ASSERT_TRUE(found);
    EXPECT_EQ(found->height, model.height);
  }
  EXPECT_FALSE(host::device_model("iPhone99,1"));
  EXPECT_FALSE(host::device_model(""));
}

TEST(Uname, ReturnsTheChosenDevice) {
  host::set_current_device(*host::device_model("iPad4,1"));
  utsname name{};
  EXPECT_EQ(uname(&name), 0);
  EXPECT_STREQ(name.machine, "iPad4,1");
  EXPECT_STREQ(name.sysname, "Darwin");
  host::set_current_device(*host::device_model(host::kDefaultDevice));
  EXPECT_EQ(uname(nullptr), -1);
}

}  // namespace
