#include <set>
#include <tuple>

#include "host/quartzcore/kinds/backdrop_layer.h"
#include "host/uikit/backdrop/backdrop_look.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/_UIBackdropView.h"
#include "tests/host/uikit/support/view_test.h"

namespace {

class Backdrop : public host::test::TextViewTest {
 protected:
  static const host::quartzcore::BackdropLook& look_of(_UIBackdropView view) {
    return objc::state_of<host::quartzcore::BackdropLayer>(view.layer()).look();
  }
};

TEST_F(Backdrop, EveryStyleHasItsOwnLook) {
  std::set<std::tuple<double, double, double, double, double, double>> looks;
  for (const auto& look : host::uikit::backdrop_looks()) {
    looks.insert({look.blur_radius, look.saturation, look.gray_alpha, look.tint.red, look.tint.blue,
                  look.tint.alpha});
  }
  EXPECT_EQ(looks.size(), 13u);
}

TEST_F(Backdrop, ASettingsClassHasItsOwnLookWhateverTheNumber) {
  const auto dark = _UIBackdropViewSettingsDark::settingsForStyle(2020);

  EXPECT_EQ(dark.style(), 2030);
  EXPECT_LT(dark.grayscaleTintLevel() + dark.colorTintAlpha(), 1);
  EXPECT_TRUE(dark.isKindOfClass(_UIBackdropViewSettings::cls()));
}

TEST_F(Backdrop, AnUnknownNumberIsTheAdaptiveLightLook) {
  EXPECT_EQ(_UIBackdropViewSettings::settingsForStyle(12345).style(), 2060);
  EXPECT_EQ(_UIBackdropViewSettings::settingsForStyle(3900).style(), 3900);
}

TEST_F(Backdrop, TheViewsLayerTakesTheSettings) {
  const auto settings = _UIBackdropViewSettingsPasscodePaddle::settingsForStyle(3900);
  const _UIBackdropView view =
      _UIBackdropView::alloc().initWithFrame({0, 0, 50, 50}, NO, settings).autorelease();

  EXPECT_EQ(view.style(), 3900);
  EXPECT_EQ(view.inputSettings(), settings);
  EXPECT_EQ(look_of(view).blur_radius, settings.blurRadius());
  EXPECT_EQ(view.frame(), (CGRect{0, 0, 50, 50}));
}

TEST_F(Backdrop, ChangingStyleThenSettingsShowsTheSettings) {
  const _UIBackdropView view = _UIBackdropView::alloc().initWithStyle(3900).autorelease();
  const auto colored = _UIBackdropViewSettingsColored::settingsForStyle(2040);

  view.setStyle(2040);
  view.setInputSettings(colored);
  view.applySettings(colored);

  EXPECT_EQ(view.style(), 2040);
  EXPECT_EQ(view.inputSettings(), colored);
  EXPECT_EQ(look_of(view).saturation, colored.saturationDeltaFactor());
  EXPECT_EQ(look_of(view).tint.alpha, 0) << "this look has no tint";
}

TEST_F(Backdrop, FillsItsSuperviewOnlyWhenItAutosizes) {
  const UIView parent = UIView::alloc().initWithFrame({0, 0, 80, 60}).autorelease();
  const auto settings = _UIBackdropViewSettings::settingsForStyle(2020);
  const _UIBackdropView filling =
      _UIBackdropView::alloc().initWithFrame({0, 0, 10, 10}, YES, settings).autorelease();
  const _UIBackdropView fixed =
      _UIBackdropView::alloc().initWithFrame({0, 0, 10, 10}, NO, settings).autorelease();

  parent.addSubview(filling);
  parent.addSubview(fixed);
  EXPECT_EQ(filling.frame(), (CGRect{0, 0, 80, 60}));
  EXPECT_EQ(fixed.frame(), (CGRect{0, 0, 10, 10}));

  parent.setFrame({0, 0, 100, 100});
  EXPECT_EQ(filling.frame(), (CGRect{0, 0, 100, 100}));
}

TEST_F(Backdrop, TheAdaptiveTintIsThickerOverTheDark) {
  EXPECT_GT(host::uikit::adaptive_tint_alpha(0), host::uikit::adaptive_tint_alpha(1));
  EXPECT_GT(host::uikit::adaptive_tint_alpha(0.2), host::uikit::adaptive_tint_alpha(0.3));
}

}  // namespace
