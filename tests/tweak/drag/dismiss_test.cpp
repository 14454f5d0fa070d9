#include "host/springboard/system/system_actions.h"
#include "platform/UIKit/UIScrollView.h"
#include "platform/UIKit/UITextField.h"
#include "tests/tweak/drag/drag_test.h"
#include "tests/tweak/method_spy.h"

namespace host::test {
namespace {

constexpr double kTableSlide = 0.2;
constexpr double kContentFade = 0.7;
constexpr double kIconTravel = 0.5;

class Dismissal : public DragTest {
 protected:
  void SetUp() override {
    DragTest::SetUp();
    home_ = music_icon().frame();
    open_panel();
  }

  /// Slides the current album's table in by a double tap on the artwork.
  void show_album_table() {
    const CGPoint artwork = middle_of(view("art"));
    tap(artwork);
    advance(0.1);
    tap(artwork);
    settle();
    ASSERT_EQ(frame("blurTable").origin.x, 0);
  }

  CGRect home_;
};
SONAVUE_ON_EVERY_SCREEN(Dismissal);

TEST_P(Dismissal, HomeSlidesTheTableFadesTheContentAndMovesTheIconHome) {
  show_album_table();
  springboard::press_home();
  advance(0);
  EXPECT_DOUBLE_EQ(frame("blurTable").origin.x, frame("blurTable").size.width);
  EXPECT_EQ(alpha("container"), 1);
  EXPECT_THAT(seconds_until([this] { return alpha("container") == 0; }), IsSoonAfter(kTableSlide));
  EXPECT_EQ(alpha("cover"), 1);
  EXPECT_THAT(seconds_until([this] { return alpha("cover") == 0; }), IsSoonAfter(kContentFade));
  EXPECT_TRUE(is("isShow"));
  EXPECT_EQ(music_icon().frame(), home_);
  EXPECT_THAT(seconds_until([this] { return !is("isShow"); }), IsSoonAfter(kIconTravel));
}

TEST_P(Dismissal, ATableThatIsAlreadyAsideCausesNoDelay) {
  springboard::press_home();
  EXPECT_THAT(seconds_until([this] { return !is("isShow"); }),
              IsSoonAfter(kContentFade + kIconTravel));
}

TEST_P(Dismissal, TheIconIsBackInItsSlotWithTheTwinOverItAndHidden) {
  springboard::press_home();
  settle();
  EXPECT_EQ(music_icon().frame(), home_);
  EXPECT_THAT(frame("music"), IsNear(icon_on_screen()));
  EXPECT_TRUE(view("music").isHidden());
  EXPECT_EQ(alpha("cover"), 0);
  EXPECT_EQ(alpha("container"), 0);
}

class DismissalOnAPage : public PanelTest {
 protected:
  void SetUp() override {
    launch();
    open_panel();
  }
};

TEST_F(DismissalOnAPage, ATapOnTheBackgroundCloses) {
  tap({screen().width / 2, screen().height - 10});
  EXPECT_GE(seconds_until([this] { return !is("isShow"); }, 2), 0);
  EXPECT_TRUE(view("music").isHidden());
}

TEST_F(DismissalOnAPage, TouchesAreIgnoredFromTheStart) {
  view("window").setFrame({0, -5, screen().width, screen().height});
  springboard::press_home();
  EXPECT_FALSE(view("window").isUserInteractionEnabled());
  EXPECT_EQ(frame("window"), (CGRect{0, 0, screen().width, screen().height}));
  EXPECT_TRUE(is("isShow"));
}

TEST_F(DismissalOnAPage, TheArtworkPageComesBackOnceTheContentIsGone) {
  const auto container = global<UIScrollView>("container");
  container.setContentOffset({screen().width, 0});
  springboard::press_home();
  advance(kContentFade / 2);
  EXPECT_EQ(container.contentOffset(), (CGPoint{screen().width, 0}));
  settle();
  EXPECT_THAT(container.contentOffset(), IsNear(CGPoint{0, 0}));
}

TEST_F(DismissalOnAPage, TheCompletionRunsOnceWithYesAtTheEnd) {
  int runs = 0;
  BOOL finished = NO;
  const auto block = objc::block([&](BOOL value) {
    ++runs;
    finished = value;
    EXPECT_FALSE(is("isShow"));
    EXPECT_TRUE(view("music").isHidden());
  });
  const objc::Block<void(BOOL)> borrowed = block;
  objc::send<>(application, "dismis:"_sel, borrowed);
  advance(kContentFade + kIconTravel - 0.02);
  EXPECT_EQ(runs, 0);
  settle();
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(finished, YES);
}

TEST_F(DismissalOnAPage, ThePanelOpensAgainAfterwards) {
  springboard::press_home();
  settle();
  open_panel();
  EXPECT_EQ(alpha("container"), 1);
  EXPECT_TRUE(view("window").isUserInteractionEnabled());
}

TEST_F(DismissalOnAPage, TheSearchFieldReleasesTheKeyboard) {
  const auto field = global<UITextField>("searchBar");
  ASSERT_TRUE(field.becomeFirstResponder());
  springboard::press_home();
  EXPECT_FALSE(field.isFirstResponder());
}

class DismissalOfNothing : public PanelTest {};

TEST_F(DismissalOfNothing, OnlyTheSearchFieldResignsFirstResponder) {
  launch();
  const CGRect home = music_icon().frame();
  const auto field = global<UITextField>("searchBar");
  ASSERT_TRUE(field.becomeFirstResponder());
  view("window").setUserInteractionEnabled(YES);
  MethodSpy<"dismis:", void(SpringBoard, objc::Object)> dismissed(SpringBoard::cls());
  MethodSpy<"dismissBanner", void(SpringBoard)> banner_dismissed(SpringBoard::cls());
  objc::send<>(application, "dismisWithNoAction"_sel);
  settle();
  EXPECT_FALSE(field.isFirstResponder());
  EXPECT_EQ(dismissed.count() + banner_dismissed.count(), 0);
  EXPECT_TRUE(view("window").isUserInteractionEnabled());
  EXPECT_EQ(music_icon().frame(), home);
  EXPECT_TRUE(view("music").isHidden());
}

TEST_F(DismissalOfNothing, ABannerIsDismissed) {
  launch();
  global<BOOL>("isBanner") = YES;
  MethodSpy<"dismissBanner", void(SpringBoard)> banner_dismissed(SpringBoard::cls());
  objc::send<>(application, "dismisWithNoAction"_sel);
  EXPECT_EQ(banner_dismissed.count(), 1);
}

}  // namespace
}  // namespace host::test
