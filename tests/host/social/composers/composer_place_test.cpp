#include "host/social/composers/composer_place.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using host::social::composer_place;
using host::social::ScreenKind;

struct Screen {
  CGSize size;
  ScreenKind kind;
  CGFloat keyboard;
};

void PrintTo(const Screen& screen, std::ostream* out) {
  *out << screen.size.width << " x " << screen.size.height;
}

class ComposerPlace : public ::testing::TestWithParam<Screen> {};

TEST_P(ComposerPlace, IsClearOfTheStatusBarAndOfTheKeyboard) {
  const auto& [size, kind, keyboard] = GetParam();
  const CGRect place = composer_place(size, kind);
  EXPECT_GE(place.min_y(), 20);
  EXPECT_LE(place.max_y(), size.height - keyboard);
}

TEST_P(ComposerPlace, IsCentredHorizontallyOnWholePoints) {
  const auto& [size, kind, keyboard] = GetParam();
  const CGRect place = composer_place(size, kind);
  EXPECT_NEAR(place.centre().x, size.width / 2, 0.5);
  EXPECT_GT(place.min_x(), 0);
  EXPECT_EQ(place.min_x(), std::floor(place.min_x()));
  EXPECT_EQ(place.min_y(), std::floor(place.min_y()));
}

TEST(ComposerPlaceOnALowScreen, IsStillBelowTheStatusBar) {
  EXPECT_EQ(composer_place({480, 320}, ScreenKind::Phone).min_y(), 20);
}

INSTANTIATE_TEST_SUITE_P(Screens, ComposerPlace,
                         ::testing::Values(Screen{{320, 480}, ScreenKind::Phone, 216},
                                           Screen{{320, 568}, ScreenKind::Phone, 216},
                                           Screen{{375, 667}, ScreenKind::Phone, 216},
                                           Screen{{414, 736}, ScreenKind::Phone, 216},
                                           Screen{{768, 1024}, ScreenKind::Tablet, 264}));

TEST(ComposerPlaceOnAPhone, IsCentredInTheFreeHeightOfTheShortest) {
  const CGRect place = composer_place({320, 480}, ScreenKind::Phone);
  EXPECT_NEAR(place.min_y() - 20, 480 - 216 - place.max_y(), 1);
}

TEST(ComposerPlaceOnAPhone, StaysNearTheTopHoweverTallThePhone) {
  EXPECT_LE(composer_place({414, 2000}, ScreenKind::Phone).min_y(), 100);
}

}  // namespace
