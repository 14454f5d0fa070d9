#include "host/quartzcore/compositing/compositor.h"
#include "settings/wizard/switcher.h"
#include "tests/settings/wizard_pages_test.h"

// Touches on the custom-drawn switch.

namespace sonavue::test {
namespace {

class WizardSwitch : public WizardPages {
 protected:
  void SetUp() override {
    start_questions();
    row = part<Switcher>("Switcher");
    ASSERT_TRUE(row);
    track = objc::cast<UIView>(row.subviews().lastObject());
  }
  void quick_tap() {
    const CGPoint middle = row.convertPointToView(row.bounds().centre(), nil);
    press(middle);
    advance(0.02);
    lift(middle);
  }
  bool shows_on() const {
    const UIView knob = objc::cast<UIView>(track.subviews().lastObject());
    return knob.frame().origin.x > track.bounds().size.width / 4;
  }
  bool stores_on() const { return stored().find("enable = 1") != std::string::npos; }
  /// The colour on the screen at that point of the track, as 0xRRGGBB.
  std::uint32_t color_at(CGPoint place) {
    host::quartzcore::Compositor compositor(750, 1334, 2);
    const CALayer roots[] = {window.layer()};
    compositor.render(roots, clock.now());
    cairo_surface_t* const surface = compositor.surface().get();
    cairo_surface_flush(surface);
    const CGPoint point = track.convertPointToView(place, nil);
    const auto* line = cairo_image_surface_get_data(surface) +
                       static_cast<int>(2 * point.y) * cairo_image_surface_get_stride(surface);
    return reinterpret_cast<const std::uint32_t*>(line)[static_cast<int>(2 * point.x)] & 0xffffff;
  }

  Switcher row;
  UIView track;
};

TEST_F(WizardSwitch, ASecondTapDuringTheMovementIsIgnored) {
  quick_tap();
  advance(0.08);
  quick_tap();
  advance(1);
  EXPECT_TRUE(shows_on());
  EXPECT_TRUE(stores_on());

  quick_tap();
  advance(1);
  EXPECT_FALSE(shows_on()) << "a tap at rest works again";
  EXPECT_FALSE(stores_on());
}

TEST_F(WizardSwitch, AfterTapsOfAnySpeedItShowsWhatIsStored) {
  for (const double pause : {0.0, 0.1, 0.2, 0.27, 0.28, 0.3}) {
    for (int taps = 2; taps <= 5; ++taps) {
      for (int tap = 0; tap < taps; ++tap) {
        quick_tap();
        advance(pause);
      }
      advance(1);
      EXPECT_EQ(shows_on(), stores_on()) << taps << " taps, " << pause << " s between them";
    }
  }
}

TEST_F(WizardSwitch, NothingIsStoredUntilTheMovementEnds) {
  const std::string before = stored();
  quick_tap();
  advance(0.25);
  EXPECT_EQ(stored(), before);
  advance(0.1);
  EXPECT_TRUE(stores_on());
}

TEST_F(WizardSwitch, TheFillStaysWithinTheRoundTrack) {
  constexpr std::uint32_t kWhite = 0xffffff;
  const CGSize size = track.bounds().size;
  const auto expect_white_corners = [&] {
    for (const CGFloat x : {1.0, size.width - 1.5}) {
      for (const CGFloat y : {1.0, size.height - 1.5})
        EXPECT_EQ(color_at({x, y}), kWhite) << x << ", " << y;
    }
  };
  expect_white_corners();
  quick_tap();
  advance(1);
  expect_white_corners();
  EXPECT_NE(color_at({size.width / 4, size.height / 2}), kWhite) << "the fill is there";
  photograph("wizard-switch-on");
}

}  // namespace
}  // namespace sonavue::test
