#include "platform/Foundation/NSValue.h"
#include "platform/QuartzCore/CABasicAnimation.h"
#include "tests/tweak/library/album_page.h"

namespace host::test {
namespace {

/// Taps on an album's tile.
class AlbumZoom : public AlbumPage {
 protected:
  void SetUp() override {
    launch();
    open_album_page();
  }
  CGRect zoomed_frame() const {
    const CGFloat side = zoomed_side();
    return {10, strip().contentOffset().y + (frame("albums").size.height - side) / 2, side, side};
  }
};

TEST_F(AlbumZoom, TheTileGrowsToTheCentreAndTheOthersFade) {
  const UIView two = tile("Two");
  tap_on(two);
  // The views have their final frames as soon as the animation begins; the presentation follows.
  EXPECT_EQ(two, objc::cast<UIView>(strip().subviews().lastObject()));
  const auto shown = [&] { return two.layer().presentationLayer().frame(); };
  EXPECT_THAT(seconds_until([&] { return is_near(shown(), zoomed_frame()); }), IsSoonAfter(0.2));
  settle();
  EXPECT_THAT(two.frame(), IsNear(zoomed_frame()));
  EXPECT_THAT(cover_of(two).frame(), IsNear(CGRect{0, 0, zoomed_side(), zoomed_side()}));
  for (const UIView one : tiles())
    EXPECT_EQ(one.alpha(), one == two ? 1 : 0);
}

TEST_F(AlbumZoom, TheStripStopsScrolling) {
  EXPECT_TRUE(strip().isScrollEnabled());
  tap_on(tile("One"));
  EXPECT_FALSE(strip().isScrollEnabled());
  settle();
  EXPECT_FALSE(strip().isScrollEnabled());
}

TEST_F(AlbumZoom, TheFramesAreSaved) {
  const UIView one = tile("One");
  const CGRect places[] = {one.frame(), cover_of(one).frame(), title_of(one).frame()};
  zoom_in("One");
  EXPECT_EQ(global<CGRect>("oldPos"), places[0]);
  EXPECT_EQ(global<CGRect>("oldPosIcon"), places[1]);
  EXPECT_EQ(global<CGRect>("oldPosLbl"), places[2]);
}

TEST_F(AlbumZoom, TheTitleBecomesAHeading) {
  const UILabel title = title_of(tile("One"));
  const CGRect before = title.frame();
  tap_on(tile("One"));
  advance(0.15);
  EXPECT_EQ(title.frame(), before);
  EXPECT_EQ(title.font().pointSize(), 12);
  EXPECT_GE(seconds_until([&] { return title.font().pointSize() == 28; }), 0);
  EXPECT_EQ(text(title.font().fontName()), "HelveticaNeue-Light");
  EXPECT_THAT(title.frame(), IsNear(CGRect{0, -40, zoomed_side(), 40}));
  // It fades in.
  const auto opacity = [&] {
    return static_cast<CGFloat>(title.layer().presentationLayer().opacity());
  };
  EXPECT_LT(opacity(), 0.2);
  EXPECT_THAT(seconds_until([&] { return is_near(opacity(), 1); }), IsSoonAfter(0.3));
  EXPECT_EQ(title.alpha(), 1);
  EXPECT_EQ(text(title.text()), "One");
}

TEST_F(AlbumZoom, TheCornersGetRounderLinearly) {
  const CALayer cover = cover_of(tile("One")).layer();
  tap_on(tile("One"));
  EXPECT_EQ(cover.cornerRadius(), 15);
  const auto started = [&] { return static_cast<bool>(cover.animationForKey("cornerRadius"_ns)); };
  EXPECT_THAT(seconds_until(started), IsSoonAfter(0.2));
  EXPECT_EQ(cover.cornerRadius(), 30);
  const auto animation = objc::cast<CABasicAnimation>(cover.animationForKey("cornerRadius"_ns));
  EXPECT_EQ(text(animation.keyPath()), "cornerRadius");
  EXPECT_EQ(animation.duration(), 0.3);
  EXPECT_EQ(objc::cast<NSNumber>(animation.fromValue()).doubleValue(), 15);
  EXPECT_EQ(objc::cast<NSNumber>(animation.toValue()).doubleValue(), 30);
  advance(0.15);
  EXPECT_NEAR(cover.presentationLayer().cornerRadius(), 22.5, 15 * 1.5 / 60 / 0.3);
  settle();
  EXPECT_EQ(cover.presentationLayer().cornerRadius(), 30);
}

TEST_F(AlbumZoom, TheBackdropFadesInOverTheCover) {
  tap_on(tile("Two"));
  const auto backdrop = backdrop_of(tile("Two"));
  ASSERT_TRUE(backdrop);
  EXPECT_TRUE(backdrop.autosizesToFitSuperview());
  EXPECT_TRUE(backdrop.isUserInteractionEnabled());
  const auto opacity = [&] {
    return static_cast<CGFloat>(backdrop.layer().presentationLayer().opacity());
  };
  EXPECT_LT(opacity(), 0.5);
  EXPECT_THAT(seconds_until([&] { return is_near(opacity(), 1); }), IsSoonAfter(0.2));
  settle();
  EXPECT_EQ(backdrop.alpha(), 1);
  EXPECT_THAT(backdrop.frame(), IsNear(CGRect{0, 0, zoomed_side(), zoomed_side()}));
}

TEST_F(AlbumZoom, TheBackdropHasTheChosenBlur) {
  const std::pair<const char*, const char*> blurs[] = {
      {"adaptive_light", "AdaptiveLight"},
      {"dark", "Dark"},
      {"ultra_light", "UltraLight"},
      {"light_low", "LightLow"},
      {"dark_low", "DarkLow"},
      {"ultra_dark", "UltraDark"},
      {"passcode", "PasscodePaddle"},
      {"light", "Light"},
      {"colored", "Colored"},
      {"semi_light", "SemiLight"},
      {"flat_semi_light", "FlatSemiLight"},
      {"ultra_colored", "UltraColored"},
      {"light_keyboard", "LightKeyboard"},
      {"sepia", "AdaptiveLight"},
  };
  for (const auto& [name, settings] : blurs) {
    change_settings(text_entry("blur", name));
    zoom_in("One");
    EXPECT_EQ(backdrop_of(tile("One")).inputSettings().className().UTF8String(),
              std::string("_UIBackdropViewSettings") + settings)
        << name;
    tap_beside();
    settle();
    ASSERT_TRUE(strip().isScrollEnabled());
  }
}

TEST_F(AlbumZoom, ATapOnAnotherTileIsIgnored) {
  zoom_in("One");
  const CGRect saved = global<CGRect>("oldPos");
  const CGRect before = tile("Two").frame();
  objc::send<>(application, "zoomInAlbum:"_sel, tile("Two").gestureRecognizers().firstObject());
  settle();
  EXPECT_EQ(tile("Two").frame(), before);
  EXPECT_EQ(tile("Two").alpha(), 0);
  EXPECT_FALSE(backdrop_of(tile("Two")));
  EXPECT_EQ(global<CGRect>("oldPos"), saved);
  EXPECT_EQ(tile("One"), objc::cast<UIView>(strip().subviews().lastObject()));
}

TEST_F(AlbumZoom, ATapOnTheZoomedTileItselfIsIgnored) {
  zoom_in("Two");
  const CGRect place = tile("Two").convertRectToView(tile("Two").bounds(), nil);
  tap({place.max_x() - 8, place.max_y() - 8});
  settle();
  EXPECT_FALSE(strip().isScrollEnabled());
  EXPECT_THAT(tile("Two").frame(), IsNear(zoomed_frame()));
}

class ScrolledAlbumZoom : public AlbumZoom {
 protected:
  ScrolledAlbumZoom() {
    for (int album = 0; album < 12; ++album)
      add_album("Album " + std::to_string(album));
  }
};

TEST_F(ScrolledAlbumZoom, GrowsToTheCentreOfTheVisiblePart) {
  strip().setContentOffset({0, 120});
  for (const UIView one : tiles()) {
    const CGPoint middle = one.convertPointToView(one.bounds().centre(), view("albums"));
    if (middle.y < 150) continue;
    tap_on(one);
    settle();
    EXPECT_EQ(strip().contentOffset().y, 120);
    EXPECT_THAT(one.frame(),
                IsNear(CGRect{10, 120 + (frame("albums").size.height - zoomed_side()) / 2,
                              zoomed_side(), zoomed_side()}));
    return;
  }
  FAIL() << "no tile is in view";
}

}  // namespace
}  // namespace host::test
