#include <gtest/gtest.h>

#include "platform/CoreGraphics/CGGeometry.h"
#include "tests/macho/loader/messages.h"

// On this processor the address of a result in memory is the first argument, and is also returned.

namespace {

using Function = CGRect* (*)(CGRect*, objc::Id, objc::Sel, double);

TEST(MessagesToNil, LeaveTheResultsMemoryUnchanged) {
  const auto send_rect = reinterpret_cast<Function>(&phone_message);
  CGRect place{{1, 2}, {3, 4}};
  EXPECT_EQ(send_rect(&place, nullptr, macho_tests::phone_selector("rectOf:"), 9), &place);
  EXPECT_EQ(place, (CGRect{{1, 2}, {3, 4}}));
}

}  // namespace
