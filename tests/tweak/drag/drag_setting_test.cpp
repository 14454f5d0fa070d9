#include "host/springboard/system/system_actions.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "tests/tweak/coloured_panel.h"

namespace host::test {
namespace {

/// The settings "enable" and "apex", and the recognisers of the Music icon.
class DragSetting : public ColouredPanel {
 protected:
  NSUInteger recognizers() const { return music_icon().gestureRecognizers().count(); }
  UIGestureRecognizer recognizer() const {
    return objc::cast<UIGestureRecognizer>(music_icon().gestureRecognizers().firstObject());
  }
  /// Drags the icon far up and returns whether the panel opened.
  bool a_drag_opens() {
    drag(on_screen(kMusic), {screen().width / 2, 80}, 0.3);
    lift();
    settle();
    const bool opened = is("isShow");
    if (opened) {
      objc::send<>(application, "dismisWithNoAction"_sel);
      settle();
    }
    return opened;
  }
};

TEST_F(DragSetting, OffRemovesEveryRecognizerFromTheIcon) {
  launch();
  ASSERT_TRUE(is("enabled"));
  ASSERT_EQ(recognizers(), 1u);
  change_settings(switch_entry("enable", false));
  EXPECT_FALSE(is("enabled"));
  EXPECT_EQ(recognizers(), 0u);
  EXPECT_FALSE(a_drag_opens());
}

TEST_F(DragSetting, OffRemovesTheSystemsOwnRecognizersToo) {
  launch();
  const auto own = UIPanGestureRecognizer::alloc().initWithTarget(application, "nothing:"_sel);
  music_icon().addGestureRecognizer(own);
  ASSERT_EQ(recognizers(), 2u);
  change_settings(switch_entry("enable", false));
  EXPECT_EQ(recognizers(), 0u);
  own.release();
}

TEST_F(DragSetting, OnAgainTheIconHasOnlyTheDrag) {
  launch();
  change_settings(switch_entry("enable", false));
  music_icon().setUserInteractionEnabled(NO);
  const auto own = UIPanGestureRecognizer::alloc().initWithTarget(application, "nothing:"_sel);
  music_icon().addGestureRecognizer(own);
  change_settings(switch_entry("enable", true));
  EXPECT_TRUE(is("enabled"));
  ASSERT_EQ(recognizers(), 1u);
  EXPECT_NE(recognizer(), own);
  EXPECT_TRUE(recognizer().isKindOfClass(UIPanGestureRecognizer::cls()));
  EXPECT_TRUE(recognizer().cancelsTouchesInView());
  EXPECT_TRUE(music_icon().isUserInteractionEnabled());
  EXPECT_TRUE(a_drag_opens());
  own.release();
}

TEST_F(DragSetting, AFileWithoutTheSettingMeansOff) {
  launch();
  use_no_preferences();
  advance(0.2);
  EXPECT_FALSE(is("enabled"));
  EXPECT_EQ(recognizers(), 0u);
}

TEST_F(DragSetting, WithoutAFileItIsOff) {
  use_no_preferences();
  load_extension();
  silence("changePreferences"_sel);
  launch();
  ASSERT_FALSE(std::filesystem::exists(preferences_file()));
  EXPECT_FALSE(is("enabled"));
}

TEST_F(DragSetting, ApexLeavesTheIconUnchangedWhateverEnableSays) {
  launch();
  const UIGestureRecognizer before = recognizer();
  for (const bool on : {false, true}) {
    change_settings(switch_entry("apex", true) + switch_entry("enable", on));
    EXPECT_EQ(recognizers(), 1u);
    EXPECT_EQ(recognizer(), before);
    EXPECT_TRUE(is("enabled"));
  }
}

TEST_F(DragSetting, ApexAtLaunchKeepsTheSystemsRecognizers) {
  write_preferences(switch_entry("apex", true) + switch_entry("enable", true));
  launch();
  EXPECT_EQ(recognizers(), icon_view(kCalendar).gestureRecognizers().count());
  EXPECT_FALSE(a_drag_opens());
}

TEST_F(DragSetting, InAFolderTheIconGetsNoDragWhateverSettingChanges) {
  launch();
  ASSERT_TRUE(springboard::move_to_folder(kMusic));
  advance(0.2);
  ASSERT_EQ(recognizers(), 0u);
  change_settings(switch_entry("enable", false));
  change_settings(switch_entry("enable", true));
  EXPECT_TRUE(is("enabled"));
  EXPECT_EQ(recognizers(), 0u);
  const auto own = UIPanGestureRecognizer::alloc().initWithTarget(application, "nothing:"_sel);
  music_icon().addGestureRecognizer(own);
  change_settings(switch_entry("enable", true));
  EXPECT_EQ(recognizers(), 0u);
  own.release();
}

TEST_F(DragSetting, LaunchedWithTheIconInAFolderItGetsNoDrag) {
  PhoneTest::launch();
  ASSERT_TRUE(springboard::move_to_folder(kMusic));
  settle();
  launch();
  EXPECT_FALSE(is("added"));
  EXPECT_EQ(recognizers(), 0u);
  advance(1.5);
  EXPECT_EQ(recognizers(), 0u);
  EXPECT_TRUE(is("enabled"));
}

TEST_F(DragSetting, ApplyingTheSettingsReplacesTheRecognizerEveryTime) {
  launch();
  for (int time = 0; time < 5; ++time)
    change_settings(switch_entry("enable", true));
  EXPECT_EQ(recognizers(), 1u);
  EXPECT_TRUE(a_drag_opens());
}

}  // namespace
}  // namespace host::test
