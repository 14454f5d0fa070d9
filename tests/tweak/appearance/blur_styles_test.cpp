#include "platform/UIKit/_UIBackdropView.h"
#include "tests/tweak/coloured_panel.h"
#include "tests/tweak/receiver_spy.h"

namespace host::test {
namespace {

struct NamedBlur {
  const char* name;
  const char* settings;
  NSInteger style;
};

constexpr NamedBlur kBlurs[] = {
    {"adaptive_light", "_UIBackdropViewSettingsAdaptiveLight", 2060},
    {"dark", "_UIBackdropViewSettingsDark", 2030},
    {"ultra_light", "_UIBackdropViewSettingsUltraLight", 2010},
    {"light_low", "_UIBackdropViewSettingsLightLow", 2029},
    {"dark_low", "_UIBackdropViewSettingsDarkLow", 2039},
    {"ultra_dark", "_UIBackdropViewSettingsUltraDark", 2050},
    {"passcode", "_UIBackdropViewSettingsPasscodePaddle", 3900},
    {"light", "_UIBackdropViewSettingsLight", 2020},
    {"colored", "_UIBackdropViewSettingsColored", 2040},
    {"semi_light", "_UIBackdropViewSettingsSemiLight", 2070},
    {"flat_semi_light", "_UIBackdropViewSettingsFlatSemiLight", 2071},
    {"ultra_colored", "_UIBackdropViewSettingsUltraColored", 2080},
    {"light_keyboard", "_UIBackdropViewSettingsLightKeyboard", 3901},
};
constexpr NamedBlur kFallback = kBlurs[0];

/// Records the messages to the two backdrops in order: the receiver, the message, and the number or
/// class that is passed.
class BlurStyles : public ColouredPanel {
 protected:
  using Told = std::vector<std::string>;

  void SetUp() override { launch(); }

  Told told_by_change(const std::string& entries) {
    Told told;
    const auto note = [&](_UIBackdropView receiver, const char* message, const std::string& what) {
      for (const char* name : {"main", "blurTable"})
        if (view(name) == receiver) told.push_back(name + (message + what));
    };
    const auto noting = [&](const char* message) {
      return [&, message](_UIBackdropView receiver, NSObject settings) {
        note(receiver, message, settings.className().UTF8String());
        given_.push_back(settings);
      };
    };
    const ReceiverSpy<_UIBackdropView, "setStyle:", NSInteger> style(
        [&](_UIBackdropView receiver, NSInteger number) {
          note(receiver, " style ", std::to_string(number));
        });
    const ReceiverSpy<_UIBackdropView, "setInputSettings:", NSObject> input(noting(" input "));
    const ReceiverSpy<_UIBackdropView, "applySettings:", NSObject> applied(noting(" apply "));
    change_settings(entries);
    return told;
  }
  static Told expected(const NamedBlur& blur) {
    const std::string number = std::to_string(blur.style);
    const std::string settings = blur.settings;
    return {"main style " + number,   "blurTable style " + number,
            "main input " + settings, "blurTable input " + settings,
            "main apply " + settings, "blurTable apply " + settings};
  }
  void expect_look(const NamedBlur& blur) const {
    for (const char* name : {"main", "blurTable"}) {
      const auto backdrop = global<_UIBackdropView>(name);
      EXPECT_EQ(backdrop.style(), blur.style) << name;
      EXPECT_STREQ(backdrop.inputSettings().className().UTF8String(), blur.settings) << name;
    }
  }

  std::vector<NSObject> given_;
};

TEST_F(BlurStyles, EveryNameSetsItsSettingsAndNumberOnBothBackdrops) {
  for (const NamedBlur& blur : kBlurs) {
    SCOPED_TRACE(blur.name);
    EXPECT_EQ(told_by_change(text_entry("blur", blur.name)), expected(blur));
    expect_look(blur);
  }
}

TEST_F(BlurStyles, AnUnknownNameIsAdaptiveLight) {
  for (const char* name : {"sepia", "Dark", "dark ", ""}) {
    SCOPED_TRACE(name);
    change_settings(text_entry("blur", "ultra_dark"));
    EXPECT_EQ(told_by_change(text_entry("blur", name)), expected(kFallback));
    expect_look(kFallback);
  }
}

TEST_F(BlurStyles, AMissingNameIsAdaptiveLight) {
  change_settings(text_entry("blur", "ultra_dark"));
  EXPECT_EQ(told_by_change(""), expected(kFallback));
  expect_look(kFallback);
}

TEST_F(BlurStyles, AValueThatIsNotAStringIsAdaptiveLight) {
  change_settings(text_entry("blur", "ultra_dark"));
  EXPECT_EQ(told_by_change("<key>blur</key><integer>2030</integer>"), expected(kFallback));
}

TEST_F(BlurStyles, BothBackdropsShareOneSettingsObject) {
  told_by_change(text_entry("blur", "dark"));
  ASSERT_EQ(given_.size(), 4u);
  EXPECT_THAT(given_, ::testing::Each(given_.front()));
}

}  // namespace
}  // namespace host::test
