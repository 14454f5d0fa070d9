#include "tests/tweak/drag/drag_test.h"
#include "tests/tweak/method_spy.h"

namespace host::test {
namespace {

class DragOut : public DragTest {};
SONAVUE_ON_EVERY_SCREEN(DragOut);

TEST_P(DragOut, TheTwinCoversTheIconWhereverTheFingerIs) {
  begin_drag();
  for (const CGPoint step : {CGPoint{3, -40}, CGPoint{-7, -60}, CGPoint{20, 90}, CGPoint{1, -1}}) {
    move_by(step.x, step.y);
    EXPECT_THAT(frame("music"), IsNear(icon_on_screen()));
    EXPECT_EQ(frame("music").origin.x, music_icon().frame().origin.x);
    EXPECT_THAT(frame("music").origin.y, IsNear(music_icon().frame().origin.y + icon_offset()));
  }
}

TEST_P(DragOut, TheIconKeepsItsPositionUnderTheFinger) {
  const CGRect home = music_icon().frame();
  begin_drag();
  const CGPoint grabbed = finger();
  EXPECT_THAT(music_icon().frame(), IsNear(home));
  move_by(31, -77);
  const CGRect moved = music_icon().frame();
  EXPECT_THAT(moved.origin, IsNear(CGPoint{home.origin.x + 31, home.origin.y - 77}));
  EXPECT_EQ(moved.size, home.size);
  EXPECT_EQ(global<CGPoint>("startPoint"), grabbed);
  EXPECT_EQ(global<CGPoint>("endPoint"), finger());
}

TEST_P(DragOut, TheBackdropFadesInWithTheFingersHeight) {
  const CGFloat height = screen().height;
  begin_drag();
  for (const CGFloat y : {0.95 * height, 0.75 * height, 0.5 * height, 0.3 * height}) {
    move_finger({finger().x, y});
    EXPECT_THAT(alpha("cover"), IsNear((height - y) / (0.75 * height)));
  }
}

class DragOutOfAPage : public PanelTest {
 protected:
  void SetUp() override { launch(); }
};

TEST_F(DragOutOfAPage, TheBackdropIsOpaqueFromAQuarterOfTheScreenUpwards) {
  const CGFloat height = screen().height;
  begin_drag();
  // A view never shows more than 1, so the test checks the value that is set.
  MethodSpy<"setAlpha:", void(UIImageView, CGFloat)> faded(UIImageView::cls());
  for (const CGFloat y : {0.25 * height, 0.2 * height, 1.0}) {
    move_finger({finger().x, y});
    EXPECT_EQ(std::get<0>(faded.last()), 1);
  }
}

TEST_F(DragOutOfAPage, TheBackdropIsInvisibleAtTheBottomEdgeAndBelow) {
  begin_drag();
  move_finger({finger().x, screen().height});
  EXPECT_EQ(alpha("cover"), 0);
  MethodSpy<"setAlpha:", void(UIImageView, CGFloat)> faded(UIImageView::cls());
  move_finger({finger().x, screen().height + 75});
  EXPECT_THAT(std::get<0>(faded.last()), IsNear(-75 / (0.75 * screen().height)));
}

TEST_F(DragOutOfAPage, ItsStartShowsTheTwinAndCoversTheScreenWithTheWindow) {
  ASSERT_TRUE(view("music").isHidden());
  view("window").setFrame({0, -100, screen().width, screen().height});
  begin_drag();
  EXPECT_FALSE(view("music").isHidden());
  EXPECT_EQ(frame("window"), (CGRect{0, 0, screen().width, screen().height}));
  EXPECT_FALSE(is("isShow"));
}

TEST_F(DragOutOfAPage, ItsStartSavesTheIconsHomeFrame) {
  const CGRect home = music_icon().frame();
  hold(on_screen(music_icon()));
  // The touch has already saved it; the drag has to save it by itself too.
  global<CGRect>("saved") = {};
  move_by(0, -12);
  EXPECT_EQ(global<CGRect>("saved"), home);
  move_by(10, -100);
  EXPECT_EQ(global<CGRect>("saved"), home);
}

TEST_F(DragOutOfAPage, TheBannersGrabberHidesAsSoonAsTheDragStarts) {
  view("grabbers").setHidden(NO);
  begin_drag();
  EXPECT_TRUE(view("grabbers").isHidden());
}

TEST_F(DragOutOfAPage, PositionsAreRoundedToSinglePrecision) {
  const CGPoint home = music_icon().frame().origin;
  begin_drag();
  const CGPoint start = finger();
  const CGPoint end{start.x + 0.1, start.y - 100.3};
  move_finger(end);
  const double x = end.x - (start.x - home.x);
  const double y = end.y - (start.y - home.y);
  ASSERT_NE(x, static_cast<float>(x));
  ASSERT_NE(y, static_cast<float>(y));
  EXPECT_EQ(music_icon().frame().origin.x, static_cast<float>(x));
  EXPECT_EQ(music_icon().frame().origin.y, static_cast<float>(y));
}

TEST_F(DragOutOfAPage, IsIgnoredWhileIconsAreArranged) {
  // During a drag its recogniser stays, even though editing has begun.
  begin_drag();
  springboard::set_editing(true);
  const auto pan = music_icon().gestureRecognizers().firstObject();
  ASSERT_TRUE(pan);
  const CGRect elsewhere{70, 80, 60, 74};
  music_icon().setFrame(elsewhere);
  view("music").setFrame(elsewhere);
  view("grabbers").setHidden(NO);
  objc::send<>(application, "sposta:"_sel, pan);
  EXPECT_EQ(music_icon().frame(), elsewhere);
  EXPECT_EQ(frame("music"), elsewhere);
  EXPECT_FALSE(view("grabbers").isHidden());
  move_by(0, -80);
  lift();
  settle();
  EXPECT_FALSE(is("isShow"));
}

TEST_F(DragOutOfAPage, TheBannerIgnoresTheDrag) {
  global<BOOL>("isBanner") = YES;
  view("grabbers").setHidden(NO);
  const CGRect home = music_icon().frame();
  begin_drag();
  move_by(0, -100);
  EXPECT_EQ(music_icon().frame(), home);
  EXPECT_TRUE(view("music").isHidden());
  EXPECT_FALSE(view("grabbers").isHidden());
  lift();
  settle();
  EXPECT_FALSE(is("isShow"));
}

}  // namespace
}  // namespace host::test
