#include <cstring>

#include "host/process/phone_screen.h"
#include "host/runtime/device_model.h"
#include "host/uikit/control/exports.h"
#include "host/uikit/shortcuts/shortcuts.h"
#include "platform/UIKit/UIButton.h"
#include "tests/host/uikit/support/uikit_test.h"

namespace host::test {
namespace {

/// Keeps the latest picture.
class KeptPicture : public screen::Screen {
 public:
  void show(const screen::Picture& picture, std::span<const screen::PixelRect>) override {
    picture_ = picture;
    ++count;
  }
  /// The colours at a point of the screen, without alpha.
  std::uint32_t at(CGPoint point) const {
    const auto pixel = [](double points) {
      return static_cast<int>(points * current_device().scale);
    };
    const auto* row =
        picture_.pixels + static_cast<std::ptrdiff_t>(pixel(point.y)) * picture_.stride;
    std::uint32_t value = 0;
    std::memcpy(&value, row + static_cast<std::ptrdiff_t>(pixel(point.x)) * 4, sizeof value);
    return value & 0xFFFFFF;
  }

  int count = 0;

 private:
  screen::Picture picture_;
};

class PhoneScreenTest : public UIKitTest {
 protected:
  PhoneScreenTest() { uikit::export_control(); }

  KeptPicture picture;
  process::PhoneScreen phone_screen{loop, picture};
};

TEST_F(PhoneScreenTest, TheRingIsDrawnOverAllWindowsUntilItEnds) {
  constexpr std::uint32_t kWhite = 0xFFFFFF;
  constexpr CGPoint kBesideButton{97, 120};
  constexpr CGPoint kInButton{150, 120};
  window.setBackgroundColor(UIColor::whiteColor());
  const UIButton button = UIButton::alloc().initWithFrame({100, 100, 100, 40}).autorelease();
  window.addSubview(button);
  advance(0.1);
  EXPECT_EQ(picture.at(kBesideButton), kWhite);
  EXPECT_TRUE(uikit::perform_shortcut("tab"));
  advance(0.1);
  EXPECT_NE(picture.at(kBesideButton), kWhite);
  EXPECT_EQ(picture.at(kInButton), kWhite);
  uikit::end_focus();
  loop.perform([] {});
  advance(0.1);
  EXPECT_EQ(picture.at(kBesideButton), kWhite);
}

TEST_F(PhoneScreenTest, AnUnchangedRingIsNotDrawnAgain) {
  const UIButton button = UIButton::alloc().initWithFrame({100, 100, 100, 40}).autorelease();
  window.addSubview(button);
  uikit::perform_shortcut("tab");
  advance(0.1);
  const int before = picture.count;
  loop.perform([] {});
  advance(1);
  EXPECT_EQ(picture.count, before);
}

}  // namespace
}  // namespace host::test
