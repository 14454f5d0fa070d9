#include <cmath>

#include "objc/class_builder.h"
#include "platform/Foundation/NSValue.h"
#include "platform/UIKit/UIGraphics.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "settings/wizard/linker.h"
#include "settings/wizard/switcher.h"
#include "tests/host/uikit/support/recording_target.h"
#include "tests/host/uikit/support/uikit_test.h"
#include "tests/settings/settings_device.h"

namespace sonavue::test {
namespace {

constexpr CGRect kRow = {0, 100, 320, 45};

class WizardRows : public host::test::UIKitTest, public SettingsDevice {
 protected:
  WizardRows() {
    if (Linker::cls()) return;
    make_linker();
    make_switcher();
  }

  static Linker linker(BOOL border = YES) {
    return Linker::alloc()
        .initWithFrame(kRow, "Tutorial"_ns, nil, border, NSObject::alloc().init().autorelease(),
                       "self"_sel)
        .autorelease();
  }
  static Switcher switcher() {
    return Switcher::alloc().initWithFrame(kRow, "Enable Sonavue"_ns, nil, YES).autorelease();
  }
  void copy_picture(const char* name) const {
    fs::copy_file(fs::path(SONAVUE_PICTURES) / name, pictures() / name);
  }
  template <class T>
  static T subview(UIView view, NSUInteger index) {
    return objc::cast<T>(view.subviews().objectAtIndex(index));
  }
  // Frames are converted through centres, which rounds.
  static bool is_near(CGRect frame, CGRect other) {
    return std::abs(frame.origin.x - other.origin.x) < 1e-9 &&
           std::abs(frame.origin.y - other.origin.y) < 1e-9 &&
           std::abs(frame.size.width - other.size.width) < 1e-9 &&
           std::abs(frame.size.height - other.size.height) < 1e-9;
  }
  static UIView track(UIView row) { return subview<UIView>(row, 2); }
  // The knob is above the fill.
  static CGRect knob(UIView row) { return subview<UIView>(track(row), 1).frame(); }
  static CGRect fill(UIView row) { return subview<UIView>(track(row), 0).frame(); }
};

TEST_F(WizardRows, ARowHasAnIconATitleAndAnArrow) {
  const Linker row = linker();
  EXPECT_EQ(row.backgroundColor(), UIColor::whiteColor());
  EXPECT_STREQ(row.layer().name().UTF8String(), "Tutorial");
  EXPECT_EQ(row.layer().borderWidth(), 0.5);
  EXPECT_TRUE(row.layer().masksToBounds());
  EXPECT_EQ(subview<UIView>(row, 0).frame(), (CGRect{20, 8, 29, 29}));
  const auto title = subview<UILabel>(row, 1);
  EXPECT_EQ(title.frame().origin.x, 15);
  EXPECT_EQ(title.center().y, 22.5);
  EXPECT_STREQ(title.text().UTF8String(), "Tutorial");
  EXPECT_EQ(subview<UIView>(row, 2).frame(), (CGRect{275, 0, 25, 45}));
}

TEST_F(WizardRows, APictureMovesTheTitleAside) {
  UIGraphicsBeginImageContextWithOptions({29, 29}, YES, 2);
  const UIImage picture = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  const Switcher row =
      Switcher::alloc().initWithFrame(kRow, "Enable Sonavue"_ns, picture, YES).autorelease();
  const auto icon = subview<UIImageView>(row, 0);
  EXPECT_EQ(icon.image(), picture);
  EXPECT_EQ(icon.contentMode(), UIViewContentModeCenter);
  EXPECT_EQ(subview<UIView>(row, 1).frame().origin.x, 20 + 29 + 15);
}

TEST_F(WizardRows, TheArrowIsAPicture) {
  copy_picture("dir@2x.png");
  const auto arrow = subview<UIImageView>(linker(), 2);
  EXPECT_TRUE(arrow.image());
  EXPECT_EQ(arrow.contentMode(), UIViewContentModeCenter);
}

TEST_F(WizardRows, ATapReachesTheTarget) {
  const auto target = host::test::RecordingTarget::make("target");
  const Linker row = Linker::alloc()
                         .initWithFrame(kRow, "Tutorial"_ns, nil, YES, target.get(), "press"_sel)
                         .autorelease();
  window.addSubview(row);
  told();
  tap({160, 90});
  EXPECT_EQ(told(), Events{}) << "above the row";
  for (const CGFloat x : {5.0, 160.0, 290.0}) {
    tap({x, 122});
    EXPECT_EQ(told(), Events{"target pressed"}) << x;
    advance(1);
  }
}

TEST_F(WizardRows, ATapMovesTheSwitchAndNothingElse) {
  const Switcher row = switcher();
  const Switcher other = switcher();
  window.addSubview(row);
  tap({160, 122});
  advance(0.4);
  EXPECT_NEAR(knob(row).origin.x, 55 - 34.8, 1e-9);
  EXPECT_TRUE(is_near(knob(other), {0.1, 0.1, 34.8, 34.8}));
  EXPECT_EQ(stored(), "checked = 0, enable = 1");
}

TEST_F(WizardRows, TheTrackAndItsKnobAreRoundAndOutlined) {
  copy_picture("pattern@2x.png");
  const Switcher row = switcher();
  const UIView fill = subview<UIView>(track(row), 0);
  for (const UIView round : {track(row), subview<UIView>(track(row), 1)}) {
    EXPECT_EQ(round.layer().cornerRadius(), round.frame().size.height / 2);
    EXPECT_EQ(round.layer().borderWidth(), 0.5);
    EXPECT_EQ(round.backgroundColor(), UIColor::whiteColor());
  }
  EXPECT_TRUE(fill.backgroundColor());
}

TEST_F(WizardRows, WithoutABorderTheRowHasNone) {
  EXPECT_FALSE(linker(NO).layer().masksToBounds());
  EXPECT_EQ(linker(NO).layer().borderWidth(), 0);
}

TEST_F(WizardRows, ASwitchStartsInTheStateOfItsSetting) {
  const Switcher off = switcher();
  EXPECT_EQ(track(off).frame(), (CGRect{245, 5, 55, 35}));
  EXPECT_TRUE(is_near(knob(off), {0.1, 0.1, 34.8, 34.8}));
  EXPECT_EQ(fill(off), (CGRect{0, 0, 17.4, 34.8}));
  advance(1);
  EXPECT_EQ(stored(), "");

  write_dictionary(preferences(), switch_entry("enable", true) + switch_entry("checked", true));
  const Switcher on = switcher();
  advance(0.1);
  EXPECT_EQ(stored(), "checked = 1, enable = 1");
  advance(0.3);
  EXPECT_NEAR(knob(on).origin.x, 55 - 34.8, 1e-9);
  EXPECT_NEAR(fill(on).size.width, 55, 1e-9);
  EXPECT_EQ(stored(), "checked = 0, enable = 1") << "a stored YES is written once more";
}

TEST_F(WizardRows, ASwitchStoresItsStateAfterItsMovement) {
  const Switcher row = switcher();
  row.animate();
  advance(0.25);
  EXPECT_EQ(stored(), "");
  advance(0.1);
  EXPECT_EQ(stored(), "checked = 0, enable = 1");
  EXPECT_TRUE(objc::cast<NSNumber>(row.getValue()).boolValue());

  row.animate();
  advance(0.4);
  EXPECT_EQ(stored(), "checked = 0, enable = 0");
  EXPECT_EQ(knob(row).origin.x, 0);
  EXPECT_EQ(fill(row).size.width, 17.4);
}

TEST_F(WizardRows, ASwitchWithoutATextStoresUnderNull) {
  const Switcher row = Switcher::alloc().initWithFrame(kRow, "Nothing"_ns, nil, NO).autorelease();
  row.animate();
  advance(0.4);
  EXPECT_EQ(stored(), "(null) = 1, checked = 0");
}

}  // namespace
}  // namespace sonavue::test
