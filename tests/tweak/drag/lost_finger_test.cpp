#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "tests/tweak/drag/drag_test.h"
#include "tests/tweak/method_spy.h"

// Drags whose touch the system cancels, and drags whose end something else could swallow.

namespace host::test {
namespace {

constexpr double kIconTravel = 0.5;

class LostFinger : public DragTest {
 protected:
  void SetUp() override {
    DragTest::SetUp();
    home_ = music_icon().frame();
  }
  void cancel_touch() { touches.cancelled(1, finger(), clock.now()); }

  void expect_closed() {
    EXPECT_FALSE(is("isShow"));
    EXPECT_TRUE(view("music").isHidden());
    EXPECT_EQ(music_icon().frame(), home_);
    EXPECT_THAT(frame("music"), IsNear(icon_on_screen()));
    EXPECT_EQ(alpha("cover"), 0);
    EXPECT_EQ(alpha("container"), 0);
    EXPECT_FALSE(view("window").isUserInteractionEnabled());
  }
  void expect_that_it_opens_and_closes() {
    open_panel();
    springboard::press_home();
    settle();
    expect_closed();
  }

  CGRect home_;
};
SONAVUE_ON_EVERY_SCREEN(LostFinger);

TEST_P(LostFinger, OnTheWayOutTheIconGoesStraightHome) {
  begin_drag();
  move_by(20, -120);
  cancel_touch();
  EXPECT_EQ(music_icon().frame(), home_);
  EXPECT_EQ(alpha("cover"), 0);
  EXPECT_FALSE(view("music").isHidden());
  EXPECT_FALSE(view("window").isUserInteractionEnabled());
  EXPECT_THAT(seconds_until([this] { return view("music").isHidden(); }), IsSoonAfter(kIconTravel));
  expect_closed();
  expect_that_it_opens_and_closes();
}

TEST_P(LostFinger, OnTheWayBackThePanelGoesStraightHome) {
  open_panel();
  hold(middle_of(view("music")));
  move_by(0, 12);
  move_by(-20, 90);
  cancel_touch();
  EXPECT_EQ(music_icon().frame(), home_);
  EXPECT_THAT(seconds_until([this] { return !is("isShow"); }), IsSoonAfter(kIconTravel));
  settle();
  expect_closed();
  expect_that_it_opens_and_closes();
}

UIGestureRecognizerState failed(UIGestureRecognizer) {
  return UIGestureRecognizerStateFailed;
}

/// The same with the state "failed", which touches cannot produce once a drag has begun.
class FailedDrag : public PanelTest {
 protected:
  void SetUp() override {
    launch();
    home_ = music_icon().frame();
  }
  /// Sends the action of the view's pan as if the pan had failed.
  void fail(UIView view, objc::Sel action) {
    const objc::Object pan = view.gestureRecognizers().lastObject();
    const objc::Class recognizers = UIGestureRecognizer::cls();
    objc::Imp state = nullptr;
    MSHookMessageEx(recognizers, "state"_sel,
                    reinterpret_cast<objc::Imp>(&objc::MethodOf<&failed>::call), &state);
    objc::send<>(application, action, pan);
    MSHookMessageEx(recognizers, "state"_sel, state, nullptr);
  }

  CGRect home_;
};

TEST_F(FailedDrag, OnTheWayOutItEndsAtHome) {
  begin_drag();
  move_by(10, -100);
  fail(music_icon(), "sposta:"_sel);
  settle();
  EXPECT_EQ(music_icon().frame(), home_);
  EXPECT_EQ(alpha("cover"), 0);
  EXPECT_TRUE(view("music").isHidden());
}

TEST_F(FailedDrag, OnTheWayBackItEndsAtHome) {
  open_panel();
  hold(middle_of(view("music")));
  move_by(0, 12);
  move_by(0, 60);
  fail(view("music"), "sposta1:"_sel);
  settle();
  EXPECT_EQ(music_icon().frame(), home_);
  EXPECT_FALSE(is("isShow"));
  EXPECT_EQ(alpha("cover"), 0);
  EXPECT_TRUE(view("music").isHidden());
}

class InterruptedDrag : public PanelTest {
 protected:
  void SetUp() override {
    launch();
    home_ = music_icon().frame();
    begin_drag();
    move_by(10, -100);
  }
  void expect_home() {
    settle();
    EXPECT_FALSE(is("isShow"));
    EXPECT_TRUE(view("music").isHidden());
    EXPECT_EQ(alpha("cover"), 0);
  }

  CGRect home_;
};

TEST_F(InterruptedDrag, ArrangingIconsDoesNotSwallowTheRelease) {
  springboard::set_editing(true);
  lift();
  expect_home();
  EXPECT_EQ(music_icon().frame(), home_);
}

TEST_F(InterruptedDrag, ArrangingThatRemovesTheRecognizerMovesTheIconHome) {
  springboard::set_editing(true);
  advance(0.2);
  lift();
  expect_home();
  EXPECT_EQ(music_icon().frame(), home_);
}

TEST_F(InterruptedDrag, ArrangingThatBeginsDuringTheGlideMovesTheIconHome) {
  lift();
  advance(0.03);
  springboard::set_editing(true);
  expect_home();
  EXPECT_EQ(music_icon().frame(), home_);
}

TEST_F(InterruptedDrag, AnIconThatHasMovedIntoAFolderStaysThere) {
  ASSERT_TRUE(springboard::move_to_folder(kMusic));
  const CGRect slot = music_icon().frame();
  advance(0.2);
  lift();
  expect_home();
  EXPECT_EQ(music_icon().frame(), slot);
}

TEST_F(InterruptedDrag, AChangeOfTheSettingsMovesTheIconHome) {
  objc::send<>(application, "changesPrefs"_sel);
  lift();
  expect_home();
  EXPECT_EQ(music_icon().frame(), home_);
  open_panel();
}

TEST_F(InterruptedDrag, AGestureShowsNoBannerMeanwhile) {
  objc::send<>(application, "showBanner"_sel);
  EXPECT_FALSE(is("isBanner"));
  lift();
  settle();
  EXPECT_TRUE(is("isShow"));
  EXPECT_FALSE(is("isBanner"));
}

}  // namespace
}  // namespace host::test
