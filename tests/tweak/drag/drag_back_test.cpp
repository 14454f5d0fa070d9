#include "tests/tweak/drag/drag_test.h"
#include "tests/tweak/method_spy.h"

namespace host::test {
namespace {

constexpr double kTableSlide = 0.2;
constexpr double kGlide = 0.1f;
constexpr double kIconTravel = 0.5;
constexpr double kContentFade = 0.7;

class DragBack : public DragTest {
 protected:
  void SetUp() override {
    DragTest::SetUp();
    home_ = music_icon().frame();
    open_panel();
    top_ = frame("music");
  }

  void begin_drag_back() {
    hold(middle_of(view("music")));
    move_by(0, 12);
  }

  void expect_closed() {
    EXPECT_FALSE(is("isShow"));
    EXPECT_TRUE(view("music").isHidden());
    EXPECT_EQ(music_icon().frame(), home_);
    EXPECT_EQ(alpha("cover"), 0);
    EXPECT_EQ(alpha("container"), 0);
  }

  CGRect home_;
  CGRect top_;
};
SONAVUE_ON_EVERY_SCREEN(DragBack);

TEST_P(DragBack, TwinAndIconFollowTheFingerTogether) {
  begin_drag_back();
  EXPECT_EQ(global<CGRect>("firstPos"), top_);
  EXPECT_THAT(frame("music"), IsNear(top_));
  move_by(-20, 90);
  EXPECT_THAT(frame("music").origin, IsNear(CGPoint{top_.origin.x - 20, top_.origin.y + 90}));
  EXPECT_EQ(frame("music").size, top_.size);
  EXPECT_THAT(icon_on_screen(), IsNear(frame("music")));
}

TEST_P(DragBack, OnlyADockIconsDragFadesTheBackdropBeforeTheRelease) {
  const CGFloat height = screen().height;
  begin_drag_back();
  move_finger({finger().x, 0.6 * height});
  EXPECT_THAT(alpha("cover"), IsNear(GetParam().in_dock ? 0.4 / 0.75 : 1));
  move_finger({finger().x, 0.1 * height});
  EXPECT_EQ(alpha("cover"), 1);
}

TEST_P(DragBack, AReleaseAtRestClosesInSixTenthsOfASecond) {
  begin_drag_back();
  // Far enough down that the backdrop fades visibly while the icon is at rest.
  move_finger({finger().x, 0.6 * screen().height});
  advance(0.3);
  const CGRect rest = frame("music");
  lift();
  EXPECT_EQ(frame("music"), rest);
  EXPECT_TRUE(is("isShow"));
  EXPECT_THAT(seconds_until([this] { return !is("isShow"); }), IsSoonAfter(kGlide + kIconTravel));
  expect_closed();
}

TEST_P(DragBack, AReleaseInMotionFirstGlidesWithTheTwin) {
  begin_drag_back();
  for (int step = 0; step < 10; ++step)
    move_by(1, 5);
  const CGPoint before = frame("music").origin;
  MethodSpy<"setAlpha:", void(UIImageView, CGFloat)> faded(UIImageView::cls());
  lift();
  const CGPoint after = frame("music").origin;
  EXPECT_GT(after.y, before.y + 20);
  EXPECT_LT(after.y, before.y + 40);
  EXPECT_GT(after.x, before.x + 3);
  EXPECT_THAT(icon_on_screen().origin, IsNear(after));
  // Not clamped to 1, which is exceeded near the top.
  EXPECT_THAT(std::get<0>(faded.last()),
              IsNear((screen().height - after.y) / (0.75 * screen().height)));
  EXPECT_THAT(seconds_until([this] { return !is("isShow"); }), IsSoonAfter(kGlide + kIconTravel));
  expect_closed();
}

TEST_P(DragBack, AReleaseFurtherUpTheScreenAlsoCloses) {
  begin_drag_back();
  for (int step = 0; step < 6; ++step)
    move_by(0, -10);
  lift();
  settle();
  expect_closed();
}

TEST_P(DragBack, TheAlbumTableSlidesAsideBeforeTheContentFades) {
  const CGFloat width = frame("blurTable").size.width;
  view("blurTable").setFrame({{0, 0}, frame("blurTable").size});
  begin_drag_back();
  EXPECT_THAT(frame("blurTable").origin, IsNear(CGPoint{width, 0}));
  EXPECT_EQ(alpha("container"), 1);
  EXPECT_THAT(seconds_until([this] { return alpha("container") == 0; }), IsSoonAfter(kTableSlide));
}

class DragBackOnAPage : public PanelTest {
 protected:
  void SetUp() override {
    launch();
    open_panel();
    hold(middle_of(view("music")));
    move_by(0, 12);
  }
};

TEST_F(DragBackOnAPage, TheContentFadesOutInAWindowThatTakesNoTouches) {
  EXPECT_FALSE(view("window").isUserInteractionEnabled());
  EXPECT_TRUE(is("isShow"));
  EXPECT_THAT(seconds_until([this] { return alpha("container") == 0; }), IsSoonAfter(0));
  const auto shown = [this] { return view("container").layer().presentationLayer().opacity(); };
  EXPECT_GT(shown(), 0.9);
  EXPECT_NEAR(seconds_until([&] { return shown() == 0; }), kContentFade, 1.5 * RunLoop::kFrame);
  EXPECT_TRUE(is("isShow"));
  EXPECT_FALSE(view("music").isHidden());
}

TEST_F(DragBackOnAPage, TheBannerIgnoresIt) {
  const CGRect before = frame("music");
  global<BOOL>("isBanner") = YES;
  move_by(30, 30);
  EXPECT_EQ(frame("music"), before);
  lift();
  settle();
  EXPECT_TRUE(is("isShow"));
}

}  // namespace
}  // namespace host::test
